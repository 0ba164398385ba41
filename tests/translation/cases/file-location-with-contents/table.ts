<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <location line="1"><note>x</note></location>
        <source>a</source>
        <translation>A</translation>
    </message>
</context>
</TS>
