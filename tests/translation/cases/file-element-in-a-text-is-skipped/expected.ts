<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt</name>
      <message>
         <source>a  word</source>
         <translation type="">ein  Wort</translation>
      </message>
   </context>
</TS>
