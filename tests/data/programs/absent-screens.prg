<?xml version="1.0" encoding="utf-8"?>

<ProgramFile>
<Program name="Test">
<ComputerInput><Key id="A"><Function><Down><ShowMidiInput type="on"/></Down></Function></Key><Key id="B"><Function><Down><ShowOscillator type="off"/></Down></Function></Key><Key id="C"><Function><Down><ShowJoystick type="on"/></Down></Function></Key><Key id="D"><Function><Down><ShowSaveDialog/></Down></Function></Key><Key id="E"><Function><Down><LoadMidiInputPreset preset="A"/></Down></Function></Key><Key id="F"><Function><Down><LoadOscillatorPreset preset="B"/></Down></Function></Key><Key id="G"><Function><Down><LoadJoystickInputPreset preset="C"/></Down></Function></Key><Key id="H"><Function><Down><DataSelectOsc type="up"/></Down></Function></Key><Key id="I"><Function><Down><ChangeOscPlaying type="all" value="on"/></Down></Function></Key><Key id="J"><Function><Down><ChangeOscSpeed type="2" value="+3"/></Down></Function></Key></ComputerInput>
</Program>
</ProgramFile>
