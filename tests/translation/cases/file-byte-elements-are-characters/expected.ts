<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt</name>
      <message>
         <source><byte value="x1b"/>[1m<byte value="x8"/></source>
         <translation type=""><byte value="x1b"/>[1m</translation>
      </message>
      <message>
         <source>tail</source>
         <translation type="">a<byte value="x7"/></translation>
      </message>
   </context>
</TS>
