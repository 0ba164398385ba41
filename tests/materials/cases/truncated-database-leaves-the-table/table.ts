<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec>UTF-8</defaultcodec>
   <context>
      <name>Clt::Material</name>
      <message>
         <source>Air</source>
         <translation type="">Luft</translation>
      </message>
   </context>
</TS>
