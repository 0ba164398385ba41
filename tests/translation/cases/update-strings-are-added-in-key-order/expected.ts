<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="" language="">
   <defaultcodec></defaultcodec>
   <context>
      <name>One</name>
      <message>
         <source>z</source>
         <translation type="unfinished">z</translation>
      </message>
   </context>
   <context>
      <name>Two</name>
      <message>
         <source>a</source>
         <translation type="unfinished">a</translation>
      </message>
      <message>
         <source>b</source>
         <translation type="unfinished">b</translation>
      </message>
   </context>
</TS>
