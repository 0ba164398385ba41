<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<group><context><name>Hidden</name>    <message>
        <source>h</source>
        <translation>H</translation>
    </message>
</context></group>
<context>
    <name>Clt</name>
<group>    <message>
        <source>h</source>
        <translation>H</translation>
    </message>
</group>
    <message>
        <old><source>h</source></old>
        <source>a</source>
        <translation>A</translation>
    </message>
</context>
</TS>
