<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <source>a</source>
        <translation>A</translation>
    </message>
    <message>
        <source>b</source>
        <translation>B</translation>
    </message>
</context>
<context>
    <name>Other</name>
    <message>
        <source>o</source>
        <translation>O</translation>
    </message>
</context>
<context>
    <name>Clt</name>
    <message>
        <source>c</source>
        <translation>C</translation>
    </message>
</context>
</TS>
