<?xml version="1.0"?>
<all>
<notes><note>one</note><note>two</note></notes>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <source>a</source>
        <translation>A</translation>
    </message>
</context>
</TS>
<notes/>
</all>
