<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <source><byte value="x1b"/>[1m<byte value="8"/></source>
        <translation><byte value="x1B"/>[1m</translation>
    </message>
    <message>
        <source>tail</source>
        <translation>a<byte value="x7"/></translation>
    </message>
</context>
</TS>
