<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<!-- c --><context>
    <name>Clt</name>
    <message>
        <source>a<!-- not this -->b</source>
        <translation><?p?>A</translation>
    </message>
<!-- d --></context>
</TS>
