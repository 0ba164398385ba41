<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec>UTF-8</defaultcodec>
   <context>
      <name>Clt::Session</name>
      <message>
         <source>Oil</source>
         <translation type="">Erdöl</translation>
      </message>
   </context>
   <context>
      <name>Clt::Fluid</name>
      <message>
         <source>Oil</source>
         <translation type="">Erdöl</translation>
      </message>
   </context>
</TS>
