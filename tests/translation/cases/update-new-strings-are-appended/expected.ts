<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt::Session</name>
      <message>
         <source>z</source>
         <translation type="">Z</translation>
      </message>
      <message>
         <source>c</source>
         <translation type="">C</translation>
      </message>
      <message>
         <source>a</source>
         <translation type="unfinished">a</translation>
      </message>
   </context>
</TS>
