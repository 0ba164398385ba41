<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt::Session</name>
    <message>
        <source>a</source>
        <translation>A</translation>
        <comment>c</comment>
    </message>
</context>
</TS>
