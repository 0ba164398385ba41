<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="" language="">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt::Session</name>
      <message>
         <source>first</source>
         <translation type="unfinished">first</translation>
      </message>
      <message>
         <source>second</source>
         <translation type="unfinished">second</translation>
      </message>
      <message>
         <source>third</source>
         <translation type="unfinished">third</translation>
      </message>
   </context>
</TS>
