<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>MessageTableFile</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>MessageTableUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>Synchronisieren...</translation>
    </message>
    <message>
        <source>Synchronize with source code</source>
        <translation>Mit dem Quellcode synchronisieren</translation>
    </message>
    <message>
        <source>Update Translation...</source>
        <translation>Übersetzung aktualisieren...</translation>
    </message>
    <message>
        <source>Update translation</source>
        <translation>Übersetzung aktualisieren</translation>
    </message>
    <message>
        <source>tr</source>
        <translation>tr</translation>
    </message>
    <message>
        <source>Found in the sources, not reviewed yet</source>
        <translation>Im Quellcode gefunden, noch nicht geprüft</translation>
    </message>
    <message>
        <source>No longer found in the sources</source>
        <translation>Im Quellcode nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>Message Table Utility</source>
        <translation>Meldungstabellen-Dienstprogramm</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Prozess</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>Kontext</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Open Message Table</source>
        <translation>Meldungstabelle öffnen</translation>
    </message>
    <message>
        <source>Save Message Table</source>
        <translation>Meldungstabelle speichern</translation>
    </message>
    <message>
        <source>Could not load message table</source>
        <translation>Die Meldungstabelle konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Table saved</source>
        <translation>Tabelle gespeichert</translation>
    </message>
    <message>
        <source>Table saved as %1</source>
        <translation>Tabelle als %1 gespeichert</translation>
    </message>
    <message>
        <source>Loading message table &quot;%1&quot;...</source>
        <translation>Meldungstabelle „%1“ wird geladen...</translation>
    </message>
    <message>
        <source>Open Visual Studio Project</source>
        <translation>Visual-Studio-Projekt öffnen</translation>
    </message>
    <message>
        <source>Visual Studio Project Error</source>
        <translation>Fehler im Visual-Studio-Projekt</translation>
    </message>
    <message>
        <source>Could not parse %1</source>
        <translation>%1 konnte nicht analysiert werden</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>Synchronisierung abgebrochen, die Tabelle ist unverändert</translation>
    </message>
    <message>
        <source>Parser Error</source>
        <translation>Analysefehler</translation>
    </message>
    <message>
        <source>Parsing</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Parsing source files from %1</source>
        <translation>Die Quelldateien aus %1 werden analysiert</translation>
    </message>
    <message>
        <source>Found %1 keys</source>
        <translation>%1 Schlüssel gefunden</translation>
    </message>
    <message>
        <source>Found 0 keys</source>
        <translation>0 Schlüssel gefunden</translation>
    </message>
    <message>
        <source>Found %1 keys (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>%1 Schlüssel gefunden (%2 neu, %3 vorhanden und %4 veraltet)</translation>
    </message>
    <message>
        <source>Elapsed time: %1 sec</source>
        <translation>Verstrichene Zeit: %1 s</translation>
    </message>
    <message>
        <source>Open Qt Translation File</source>
        <translation>Qt-Übersetzungsdatei öffnen</translation>
    </message>
    <message>
        <source>Qt Translation File Error</source>
        <translation>Fehler in der Qt-Übersetzungsdatei</translation>
    </message>
    <message>
        <source>Could not load &apos;%1&apos;: %2</source>
        <translation>„%1“ konnte nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>Added %1 new strings to %2</source>
        <translation>%1 neue Texte zu %2 hinzugefügt</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>%1 konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>Update cancelled; the translation is unchanged</source>
        <translation>Aktualisierung abgebrochen, die Übersetzung ist unverändert</translation>
    </message>
</context>
<context>
    <name>ProjectScan</name>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <source>These files were skipped: their messages were not found.</source>
        <translation>Diese Dateien wurden übersprungen; die darin enthaltenen Meldungen wurden nicht gefunden.</translation>
    </message>
</context>
</TS>
