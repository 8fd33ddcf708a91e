<?xml version="1.0" encoding="utf-8"?>

<ProgramFile>
<Program name="Single" tempo="60" tempoSource="-1">
	<ComputerInput merge="false" useKeyUpMod="false">
	</ComputerInput>
	<Controls merge="false">
	</Controls>
	<Layers merge="false">
		<Layer mute="false" mono="false" toggle="off" useNoteStack="true" minNote="C-1" maxNote="G9" minVelocity="0" maxVelocity="127" zone="-1" output="-1" channel="9" transpose="-12" key="" velocity="" compress="1_1">
		</Layer>
	</Layers>
	<Zones merge="false">
	</Zones>
</Program>
</ProgramFile>
