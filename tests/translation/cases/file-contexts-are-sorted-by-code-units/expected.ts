<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec></defaultcodec>
   <context>
      <name>B</name>
      <message>
         <source>x</source>
         <translation type="">X</translation>
      </message>
   </context>
   <context>
      <name>a</name>
      <message>
         <source>x</source>
         <translation type="">X</translation>
      </message>
   </context>
   <context>
      <name>a::b</name>
      <message>
         <source>x</source>
         <translation type="">X</translation>
      </message>
   </context>
   <context>
      <name>b</name>
      <message>
         <source>x</source>
         <translation type="">X</translation>
      </message>
   </context>
   <context>
      <name>ä</name>
      <message>
         <source>x</source>
         <translation type="">X</translation>
      </message>
   </context>
</TS>
