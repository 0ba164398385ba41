<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="" language="">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt::Session</name>
      <message>
         <source>same</source>
         <translation type="unfinished">same</translation>
      </message>
   </context>
</TS>
