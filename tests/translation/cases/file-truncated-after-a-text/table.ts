<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<defaultcodec>UTF-8</defaultcodec>
<context>
    <message>
        <source>a</source>
        <translation>A</translation>
    </message>
</context>
<defaultcodec>UTF-1<!-- the rest is missing -->