<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt::Session</name>
    <message>
        <source>No server</source>
        <translation>Kein Server</translation>
        <comment>box</comment>
    </message>
    <message>
        <source>Start the server.</source>
        <translation type="unfinished">Bitte starten</translation>
    </message>
</context>
</TS>
