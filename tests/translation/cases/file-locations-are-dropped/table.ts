<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <location filename="../a.cpp" line="14"/>
        <location filename="b.cpp" line="+2"></location>
        <source>a</source>
        <translation>A</translation>
    </message>
</context>
</TS>
