<?xml version="1.0"?>
<all>
<TS version="2.0" language="fr">
<defaultcodec>UTF-8</defaultcodec>
<context>
    <name>Clt</name>
    <message>
        <source>a</source>
        <translation>A</translation>
    </message>
</context>
</TS>
<TS language="it">
<context>
    <name>Net</name>
    <message>
        <source>b</source>
        <translation>B</translation>
    </message>
</context>
</TS>
</all>
