<?xml version="1.0" encoding="utf-8"?>

<ProgramFile>
<Program name="Test">
</Program>
</ProgramFile>
