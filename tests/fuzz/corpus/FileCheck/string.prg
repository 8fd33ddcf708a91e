<MirelProgramFile>
<Program name="p"><ComputerInput preset="x"/><Zones><Zone id="1"/><Zone id="1"/></Zones></Program></MirelProgramFile>