<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <source>a&#13;
b</source>
        <translation>a&#xd;</translation>
    </message>
</context>
</TS>
