<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt::Session</name>
      <message>
         <source>gone</source>
         <translation type="">Weg</translation>
      </message>
      <message>
         <source>a</source>
         <translation type="">A</translation>
      </message>
   </context>
   <context>
      <name>Gone</name>
      <message>
         <source>b</source>
         <translation type="">B</translation>
      </message>
   </context>
</TS>
