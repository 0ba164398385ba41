<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <source>a<byte value="x0"/>b<byte/>c<byte value="boo"/>d<byte value="x1d11e"/></source>
        <translation>e</translation>
    </message>
</context>
</TS>
