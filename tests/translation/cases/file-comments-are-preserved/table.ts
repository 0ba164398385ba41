<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <source>a</source>
        <translation>A</translation>
        <comment>Title of a box</comment>
    </message>
    <message>
        <source>a</source>
        <translation>A2</translation>
        <comment></comment>
    </message>
</context>
</TS>
