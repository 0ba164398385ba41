<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec></defaultcodec>
   <context>
      <name>a&lt;b&gt;::c</name>
      <message>
         <source>&lt;b&gt; &amp; &quot;c&quot; 'd'</source>
         <translation type="">&lt;b&gt; ä</translation>
         <comment>&amp;</comment>
      </message>
   </context>
</TS>
