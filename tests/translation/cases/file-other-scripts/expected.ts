<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec></defaultcodec>
   <context>
      <name>Größe::Ω</name>
      <message>
         <source>保存 שלום 𝄞😀</source>
         <translation type="">Übergröße</translation>
      </message>
   </context>
</TS>
