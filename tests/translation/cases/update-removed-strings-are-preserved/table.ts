<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt::Session</name>
    <message>
        <source>gone</source>
        <translation>Weg</translation>
    </message>
    <message>
        <source>a</source>
        <translation>A</translation>
    </message>
</context>
<context>
    <name>Gone</name>
    <message>
        <source>b</source>
        <translation>B</translation>
    </message>
</context>
</TS>
