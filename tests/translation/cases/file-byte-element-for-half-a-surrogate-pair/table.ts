<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <source>a<byte value="xd834"/>b</source>
        <translation><byte value="xfffe"/><byte value="xd"/></translation>
    </message>
</context>
</TS>
