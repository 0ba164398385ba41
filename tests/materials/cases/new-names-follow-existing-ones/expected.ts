<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec>UTF-8</defaultcodec>
   <context>
      <name>Clt::Material</name>
      <message>
         <source>Water</source>
         <translation type="">Wasser</translation>
      </message>
      <message>
         <source>Air</source>
         <translation type="unfinished">Air</translation>
      </message>
      <message>
         <source>Zinc</source>
         <translation type="unfinished">Zinc</translation>
      </message>
   </context>
</TS>
