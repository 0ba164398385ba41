<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="" language="">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt::Material</name>
      <message>
         <source></source>
         <translation type="unfinished"></translation>
      </message>
   </context>
</TS>
