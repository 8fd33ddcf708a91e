<?xml version="1.0" encoding="utf-8"?>

<ProgramFile>
<Program name="Groups" tempo="120" tempoSource="-1">
	<ComputerInput merge="false" useKeyUpMod="false"/>
	<Controls merge="false">
		<Control cell="0,0" type="edit" name="A" value="100">
			<Function midiEvent="Controller Change,7"/>
		</Control>
		<Control cell="0,1" type="edit" name="B" value="50">
			<Function midiEvent="Controller Change,7"/>
		</Control>
		<Control cell="0,2" type="edit" name="C" value="30">
			<Function midiEvent="Controller Change,7"/>
		</Control>
		<Control cell="1,0" type="edit" name="Middle" value="0">
			<Function midiEvent="Controller Change,20"/>
		</Control>
		<Control cell="1,1" type="edit" name="Highest" value="2147483647" min="-2147483648" max="2147483647">
			<Function midiEvent="Controller Change,21"/>
		</Control>
		<Control cell="1,2" type="edit" name="Lowest" value="-2147483648" min="-2147483648" max="2147483647">
			<Function midiEvent="Controller Change,22"/>
		</Control>
	</Controls>
	<Layers merge="false"/>
	<Zones merge="false"/>
</Program>
</ProgramFile>
