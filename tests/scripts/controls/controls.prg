<?xml version="1.0" encoding="utf-8"?>

<ProgramFile>
<Program name="Controls" tempo="120" tempoSource="-1">
	<ComputerInput merge="false" useKeyUpMod="false"/>
	<Controls merge="false">
		<Control cell="0,0" type="edit" name="A" value="10">
			<Function midiEvent="Controller Change,20"/>
		</Control>
		<Control cell="0,1" type="edit" name="B" value="100">
			<Function midiEvent="Controller Change,21"/>
		</Control>
		<Control cell="3,15" type="hfader" name="C" value="50">
			<Function midiEvent="Controller Change,22"/>
		</Control>
		<Control cell="4,0" type="knob" name="D" value="0" min="100" max="0">
			<Function midiEvent="Controller Change,23"/>
		</Control>
		<Control cell="5,2" type="label" name="E" value="9" autoSend="true">
			<Function midiEvent="Controller Change,24"/>
		</Control>
		<Control cell="5,3" type="vfader" name="F" value="7" autoSend="true">
			<Function midiEvent="Channel Pressure" output="1" channel="2" zone="3"/>
			<Function midiEvent="Controller Change,25"/>
		</Control>
		<Control cell="6,0" type="edit" name="MSB" value="1">
			<Function midiEvent="Controller Change,0" channel="5"/>
		</Control>
		<Control cell="6,1" type="edit" name="LSB" value="2">
			<Function midiEvent="Controller Change,32" channel="5"/>
		</Control>
		<Control cell="6,2" type="edit" name="PROG" value="3">
			<Function midiEvent="Program Change" channel="5"/>
		</Control>
		<Control cell="6,3" type="edit" name="MSB 6" value="9">
			<Function midiEvent="Controller Change,0" channel="6"/>
		</Control>
		<Control cell="6,4" type="edit" name="PROG 6" value="8">
			<Function midiEvent="Program Change" channel="6"/>
		</Control>
	</Controls>
	<Layers merge="false">
		<Layer/>
	</Layers>
	<Zones merge="false"/>
</Program>
</ProgramFile>
