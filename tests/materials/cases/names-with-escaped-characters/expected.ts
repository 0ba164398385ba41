<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="" language="">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt::Material</name>
      <message>
         <source> two  blanks </source>
         <translation type="unfinished"> two  blanks </translation>
      </message>
      <message>
         <source>A &lt;B&gt; &amp; &quot;C&quot;</source>
         <translation type="unfinished">A &lt;B&gt; &amp; &quot;C&quot;</translation>
      </message>
   </context>
</TS>
