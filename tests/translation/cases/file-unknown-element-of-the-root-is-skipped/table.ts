<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<dependencies>
<dependency catalog="qtbase_de"/>
</dependencies>
<extra-loc>e</extra-loc>
<context>
    <name>Clt</name>
    <message>
        <source>a</source>
        <translation>A</translation>
    </message>
</context>
</TS>
