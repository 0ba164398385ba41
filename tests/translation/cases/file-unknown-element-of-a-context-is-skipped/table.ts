<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <comment>about the context</comment>
    <message>
        <source>a</source>
        <translation>A</translation>
    </message>
</context>
<context>
    <name>Next</name>
    <message>
        <source>b</source>
        <translation>B</translation>
    </message>
</context>
</TS>
