<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <source>  two
 lines	</source>
        <translation>
</translation>
    </message>
</context>
</TS>
