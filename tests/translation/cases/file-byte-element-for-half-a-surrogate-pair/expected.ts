<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt</name>
      <message>
         <source>a<byte value="xd834"/>b</source>
         <translation type=""><byte value="xfffe"/>&#13;</translation>
      </message>
   </context>
</TS>
