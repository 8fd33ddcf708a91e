<?xml version="1.0" encoding="utf-8"?>

<ProgramFile>
<Program name="Test">
<ComputerInput><Key id="A"><Function><Down><LoadComputerInputPreset preset="New"/></Down></Function><Function><Down><MidiNoteOn channel="0" note="61"/></Down><Up><MidiNoteOff channel="0" note="61"/></Up></Function></Key></ComputerInput>
</Program>
</ProgramFile>
