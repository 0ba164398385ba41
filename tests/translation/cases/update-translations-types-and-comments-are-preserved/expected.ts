<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
   <defaultcodec></defaultcodec>
   <context>
      <name>Clt::Session</name>
      <message>
         <source>No server</source>
         <translation type="">Kein Server</translation>
         <comment>box</comment>
      </message>
      <message>
         <source>Start the server.</source>
         <translation type="unfinished">Bitte starten</translation>
      </message>
      <message>
         <source>The server %1 does not answer.</source>
         <translation type="unfinished">The server %1 does not answer.</translation>
      </message>
   </context>
</TS>
