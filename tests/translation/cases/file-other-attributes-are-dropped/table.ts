<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Clt</name>
    <message id="m1" utf8="true">
        <source>a</source>
        <translation variants="no">A</translation>
    </message>
</context>
</TS>
