<?xml version="1.0" encoding="utf-8"?>

<ProgramFile>
<Program name="Layers" tempo="120" tempoSource="-1">
	<ComputerInput merge="false" useKeyUpMod="false"/>
	<Controls merge="false"/>
	<Layers merge="false">
		<Layer channel="0"/>
		<Layer channel="1" transpose="+12" velocity="64"/>
		<Layer channel="2" mute="true"/>
	</Layers>
	<Zones merge="false">
		<Zone id="0" transpose="0"/>
		<Zone id="2" transpose="5"/>
		<Zone id="7" transpose="-12"/>
	</Zones>
</Program>
</ProgramFile>
