<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>MaterialTranslationTable</name>
    <message>
        <source>It is not a translation file</source>
        <translation>Dies ist keine Übersetzungsdatei</translation>
    </message>
    <message>
        <source>It cannot be written</source>
        <translation>Die Datei kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>mat::MaterialNameUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>Synchronisieren...</translation>
    </message>
    <message>
        <source>Synchronize with material database</source>
        <translation>Mit der Materialdatenbank synchronisieren</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Obsolete</source>
        <translation>Veraltet</translation>
    </message>
    <message>
        <source>New in the material database, to be translated</source>
        <translation>Neu in der Materialdatenbank, muss übersetzt werden</translation>
    </message>
    <message>
        <source>Obsolete: was not found in the material database; the translation is kept</source>
        <translation>Veraltet: wurde in der Materialdatenbank nicht gefunden; die Übersetzung bleibt erhalten</translation>
    </message>
    <message>
        <source>Material Name Utility</source>
        <translation>Materialnamen-Dienstprogramm</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>Übersetzung</translation>
    </message>
    <message>
        <source>Open Translation Table</source>
        <translation>Übersetzungstabelle öffnen</translation>
    </message>
    <message>
        <source>Save Translation Table</source>
        <translation>Übersetzungstabelle speichern</translation>
    </message>
    <message>
        <source>Could not load translation table</source>
        <translation>Die Übersetzungstabelle konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Created new translation table</source>
        <translation>Neue Übersetzungstabelle erstellt</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>%1 geöffnet</translation>
    </message>
    <message>
        <source>Saved translation table</source>
        <translation>Übersetzungstabelle gespeichert</translation>
    </message>
    <message>
        <source>Saved translation table as %1</source>
        <translation>Übersetzungstabelle als %1 gespeichert</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>Open Material Database</source>
        <translation>Materialdatenbank öffnen</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>Synchronisierung abgebrochen, die Tabelle ist unverändert</translation>
    </message>
    <message>
        <source>Load Material Database</source>
        <translation>Materialdatenbank laden</translation>
    </message>
    <message>
        <source>Cannot read material database</source>
        <translation>Die Materialdatenbank kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Found %1 names (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>%1 Namen gefunden (%2 neu, %3 vorhanden und %4 veraltet)</translation>
    </message>
</context>
</TS>
