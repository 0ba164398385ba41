<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="" language="">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt::Session</name>
      <message>
         <source>a </source>
         <translation type="unfinished">a </translation>
      </message>
      <message>
         <source>a</source>
         <translation type="unfinished">a</translation>
      </message>
   </context>
</TS>
