<?xml version="1.0" encoding="utf-8"?>

<ProgramFile>
<Program name="Test">
<ComputerInput useKeyUpMod="true"><Key id="F1"><Function><Down><MidiNoteOn channel="0" note="60"/></Down><Up><MidiNoteOff channel="0" note="60"/></Up></Function></Key><Key id="Shift F1"><Function><Down><MidiNoteOn channel="0" note="61"/></Down><Up><MidiNoteOff channel="0" note="61"/></Up></Function></Key></ComputerInput>
</Program>
</ProgramFile>
