<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="" language="">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt::Material</name>
      <message>
         <source>Ice</source>
         <translation type="unfinished">Ice</translation>
      </message>
      <message>
         <source>Water</source>
         <translation type="unfinished">Water</translation>
      </message>
   </context>
</TS>
