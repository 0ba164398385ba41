<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <source>a</source>
        <translation variants="yes">
            <lengthvariant>long</lengthvariant>
            <lengthvariant>l</lengthvariant>
        </translation>
    </message>
</context>
</TS>
