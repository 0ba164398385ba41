<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="" language="">
   <defaultcodec></defaultcodec>
   <context>
      <name>Größe</name>
      <message>
         <source>保存 𝄞 &amp; &lt;ü&gt;</source>
         <translation type="unfinished">保存 𝄞 &amp; &lt;ü&gt;</translation>
      </message>
   </context>
</TS>
