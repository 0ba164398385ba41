<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt</name>
      <message>
         <source>  two
 lines	</source>
         <translation type="">
</translation>
      </message>
   </context>
</TS>
