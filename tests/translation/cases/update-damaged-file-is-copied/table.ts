<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Clt</name>
    <message>
        <source>a</source>
        <translation>A</translation>
    </message>
</context>
<context>
    <name>Net</name>
    <message>
        <source>b</source>
        <translation>B</translation>
    </message>
    <message>
        <source>half a sour