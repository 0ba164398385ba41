<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="" language="">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt::Clock</name>
      <message>
         <source>Late</source>
         <translation type="unfinished">Late</translation>
      </message>
   </context>
   <context>
      <name>Clt::Session</name>
      <message>
         <source>No server</source>
         <translation type="unfinished">No server</translation>
      </message>
      <message>
         <source>The server %1 does not answer.</source>
         <translation type="unfinished">The server %1 does not answer.</translation>
      </message>
      <message>
         <source>Start the server.</source>
         <translation type="unfinished">Start the server.</translation>
      </message>
   </context>
</TS>
