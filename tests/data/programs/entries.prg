<?xml version="1.0" encoding="utf-8"?>

<ProgramFile>
<Program name="Test">
<ComputerInput><Key id="A"><Function keepSending="true"><Down><MidiNoteOn channel="0" note="60"/></Down></Function><Function><Up><MidiNoteOff channel="0" note="60"/></Up></Function><Function keepSending="yes"><Down/><Down><MidiNoteOn channel="0" note="61"/></Down><Down><MidiNoteOn channel="0" note="62"/></Down></Function></Key><Key id="B"><Function/><Function keepSending="true"><Down><MidiNoteOn channel="0" note="63"/></Down></Function></Key></ComputerInput>
</Program>
</ProgramFile>
