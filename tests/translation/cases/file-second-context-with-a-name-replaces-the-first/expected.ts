<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt</name>
      <message>
         <source>c</source>
         <translation type="">C</translation>
      </message>
   </context>
   <context>
      <name>Other</name>
      <message>
         <source>o</source>
         <translation type="">O</translation>
      </message>
   </context>
</TS>
