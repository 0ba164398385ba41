<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="" language="">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt::Session</name>
      <message>
         <source>Text</source>
         <translation type="unfinished">Text</translation>
      </message>
   </context>
</TS>
