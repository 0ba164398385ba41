<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="" language="">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt::Material</name>
      <message>
         <source>Air</source>
         <translation type="unfinished">Air</translation>
      </message>
   </context>
</TS>
