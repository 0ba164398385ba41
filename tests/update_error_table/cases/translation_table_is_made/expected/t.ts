<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="" language="">
   <defaultcodec></defaultcodec>
   <context>
      <name>N::C::f</name>
      <message>
         <source>Title</source>
         <translation type="unfinished">Title</translation>
      </message>
      <message>
         <source>Body</source>
         <translation type="unfinished">Body</translation>
      </message>
      <message>
         <source>Do</source>
         <translation type="unfinished">Do</translation>
      </message>
   </context>
</TS>
