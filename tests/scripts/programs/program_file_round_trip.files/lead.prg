<?xml version="1.0" encoding="utf-8"?>

<ProgramFile>
<Program name="Lead" tempo="97" tempoSource="-1">
	<ComputerInput merge="false" useKeyUpMod="false">
		<Key id="Q" global="true">
			<Function keepSending="false">
				<Down>
					<MidiNoteOn zone="0" note="C4" velocity="100"/>
				</Down>
				<Up>
					<MidiNoteOff zone="0" note="C4" velocity="0"/>
				</Up>
			</Function>
		</Key>
	</ComputerInput>
	<Controls merge="false">
		<Control cell="0,0" type="vfader" name="Volume" value="90" min="0" max="127" release="-1" autoSend="true" size="2">
			<Function midiEvent="Controller Change,7" output="-1" channel="-1" zone="-1"/>
		</Control>
		<Control cell="0,1" type="label" name="Lead" value="0" min="0" max="127" release="-1" autoSend="true" size="1">
		</Control>
	</Controls>
	<Layers merge="false">
		<Layer mute="false" mono="false" toggle="off" useNoteStack="true" minNote="C-1" maxNote="G9" minVelocity="0" maxVelocity="127" zone="-1" output="-1" channel="0" transpose="" key="" velocity="" compress="1_1">
		</Layer>
	</Layers>
	<Zones merge="false">
		<Zone id="0" transpose="2"/>
	</Zones>
</Program>
</ProgramFile>
