<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>a&lt;b&gt;::c</name>
    <message>
        <source>&lt;b&gt; &amp; &quot;c&quot; &apos;d&apos;</source>
        <translation><![CDATA[<b>]]> &#228;</translation>
        <comment>&amp;</comment>
    </message>
</context>
</TS>
