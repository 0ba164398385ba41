<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt::Material</name>
      <message>
         <source>ABS</source>
         <translation type="obsolete">ABS</translation>
      </message>
      <message>
         <source>Air</source>
         <translation type="">空気</translation>
      </message>
      <message>
         <source>Aluminium</source>
         <translation type="">アルミニウム</translation>
      </message>
      <message>
         <source>Copper</source>
         <translation type="">銅</translation>
      </message>
      <message>
         <source>Glass</source>
         <translation type="">ガラス</translation>
      </message>
      <message>
         <source>Helium</source>
         <translation type="unfinished">Helium</translation>
      </message>
      <message>
         <source>Oil</source>
         <translation type="obsolete">油</translation>
      </message>
      <message>
         <source>Steel</source>
         <translation type="">鋼</translation>
      </message>
      <message>
         <source>Water</source>
         <translation type="">水</translation>
      </message>
   </context>
</TS>
