<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Clt</name>
    <message>
        <oldsource>aa</oldsource>
        <extracomment>for you</extracomment>
        <translatorcomment>hm</translatorcomment>
        <userdata>u</userdata>
        <extra-id>7</extra-id>
        <source>a</source>
        <translation>A</translation>
    </message>
    <message>
        <source>b</source>
        <translation>B</translation>
    </message>
</context>
</TS>
