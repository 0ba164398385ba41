<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt</name>
      <message>
         <source>a</source>
         <translation type="unfinished">A</translation>
      </message>
      <message>
         <source>b</source>
         <translation type="obsolete">B</translation>
      </message>
      <message>
         <source>c</source>
         <translation type="vanished">C</translation>
      </message>
      <message>
         <source>d</source>
         <translation type="">D</translation>
      </message>
   </context>
</TS>
