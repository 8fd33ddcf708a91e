<?xml version="1.0" encoding="utf-8"?>

<ProgramFile>
<Program name="Zones" tempo="120" tempoSource="-1">
	<ComputerInput merge="false" useKeyUpMod="false">
		<Key id="D" global="true">
			<Function keepSending="false">
				<Down>
					<MidiNoteOn zone="4" note="C5" velocity="100"/>
				</Down>
				<Up>
					<MidiNoteOff zone="4" note="C5" velocity="100"/>
				</Up>
			</Function>
		</Key>
	</ComputerInput>
	<Controls merge="false"/>
	<Layers merge="false">
		<Layer/>
	</Layers>
	<Zones merge="false">
		<Zone id="4" transpose="0"/>
	</Zones>
</Program>
</ProgramFile>
