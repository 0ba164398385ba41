<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec>UTF-8</defaultcodec>
   <context>
      <name>Clt::Material</name>
      <message>
         <source>Oil</source>
         <translation type="">Öl</translation>
         <comment>lubricant</comment>
      </message>
      <message>
         <source>Air</source>
         <translation type="">Luft</translation>
      </message>
      <message>
         <source>Mud</source>
         <translation type="unfinished">Mud</translation>
      </message>
   </context>
</TS>
