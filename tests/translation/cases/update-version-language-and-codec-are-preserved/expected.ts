<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="ja_JP">
   <defaultcodec>UTF-8</defaultcodec>
   <context>
      <name>Clt::Session</name>
      <message>
         <source>a</source>
         <translation type="unfinished">a</translation>
      </message>
   </context>
</TS>
