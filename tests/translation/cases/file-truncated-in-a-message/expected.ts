<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt</name>
      <message>
         <source>a</source>
         <translation type="">A</translation>
      </message>
   </context>
   <context>
      <name>Net</name>
      <message>
         <source>b</source>
         <translation type="">B</translation>
      </message>
   </context>
</TS>
