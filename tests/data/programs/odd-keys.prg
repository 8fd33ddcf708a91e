<?xml version="1.0" encoding="utf-8"?>

<ProgramFile>
<Program name="Test">
<ComputerInput merge="True" useKeyUpMod="1">text<!-- note --><Key id="A" global="False"><Function keepSending="on"><Down><!-- first --><MidiNoteOn zone="300" output="-129" channel="1000" note="H9" velocity="x"/><ResetMirel/></Down><Up><Wrap><ResetMirel/></Wrap></Up></Function></Key><Key id="B"><Function><Down><NoFunction/></Down><Down><MidiEndOfSysEx zone="-1" output="5"/></Down><Down><ResetMirel/></Down></Function><function/><Other/></Key><Key id="A B"/><Key/><Key id="Win Left"><Function><Up><ShowZone/></Up></Function></Key><Group><Key id="Z"/></Group><key id="Y"/><Key id="shift A"/></ComputerInput>
</Program>
</ProgramFile>
