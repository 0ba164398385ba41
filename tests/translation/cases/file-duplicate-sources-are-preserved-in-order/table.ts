<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <source>b</source>
        <translation>B</translation>
    </message>
    <message>
        <source>a</source>
        <translation>A1</translation>
    </message>
    <message>
        <source>a</source>
        <translation>A2</translation>
    </message>
    <message>
        <source>b</source>
        <translation>B</translation>
    </message>
</context>
</TS>
