<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Größe::Ω</name>
    <message>
        <source>保存 שלום 𝄞😀</source>
        <translation>Übergröße</translation>
    </message>
</context>
</TS>
