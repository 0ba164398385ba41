<?xml version="1.0"?>
<all><part>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <source>a</source>
        <translation>A</translation>
    </message>
</context>
</TS>
</part></all>
