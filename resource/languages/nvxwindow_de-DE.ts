<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Leftovers</name>
    <message>
        <source>Line %1: %2 is not kept</source>
        <translation>Zeile %1: %2 wird nicht übernommen</translation>
    </message>
    <message>
        <source>Line %1: %2 is not kept; it occurs again in line %3</source>
        <translation>Zeile %1: %2 wird nicht übernommen, es kommt in Zeile %3 noch einmal vor</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <source>Parts of the file were dropped; the previous file is kept as %1</source>
        <translation>Teile der Datei sind entfallen, die alte Datei ist %1</translation>
    </message>
</context>
<context>
    <name>MessageTable</name>
    <message>
        <source>The marks of an unfinished merge</source>
        <translation>Markierungen einer unvollständigen Zusammenführung</translation>
    </message>
</context>
<context>
    <name>Window::FilterField</name>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>Filtern (Strg+F)</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text</source>
        <translation>Zeigt nur die Zeilen mit diesem Text</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
</context>
<context>
    <name>Window::MarkedTableView</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>Window::Progress</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Window::RecentFiles</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt verwendet</translation>
    </message>
</context>
<context>
    <name>Window::TableWindow</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>%1 has unsaved changes. Save them?</source>
        <translation>%1 enthält Änderungen, die nicht gespeichert sind. Sollen sie gespeichert werden?</translation>
    </message>
    <message>
        <source>Could not save %1

The location may be write-protected or full. The table stays open, unsaved; save it in another location.</source>
        <translation>%1 konnte nicht gespeichert werden

Der Speicherort ist möglicherweise schreibgeschützt oder voll. Die Tabelle bleibt hier ungespeichert erhalten; speichern Sie sie an einem anderen Ort.</translation>
    </message>
    <message>
        <source>Rows: %L1</source>
        <translation>Zeilen: %L1</translation>
    </message>
    <message>
        <source>Rows: %L1 of %L2</source>
        <translation>Zeilen: %L1 von %L2</translation>
    </message>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (nicht gespeichert)</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Info...</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Load it again?</source>
        <translation>%1 wurde von einem anderen Programm geändert. Neu laden?</translation>
    </message>
    <message>
        <source>Your unsaved changes will be lost.</source>
        <translation>Ihre nicht gespeicherten Änderungen gehen dann verloren.</translation>
    </message>
    <message>
        <source>Not everything in the file was understood. Saving the table drops these parts: %1</source>
        <translation>Nicht alles in der Datei wurde verstanden. Beim Speichern der Tabelle entfallen diese Teile: %1</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>Saving drops the parts of %1 that were not understood (%2). The old file is kept next to it.</source>
        <translation>Beim Speichern entfallen die nicht verstandenen Teile von %1 (%2). Die alte Datei bleibt daneben erhalten.</translation>
    </message>
    <message>
        <source>Save the table anyway?</source>
        <translation>Soll die Tabelle trotzdem gespeichert werden?</translation>
    </message>
</context>
<context>
    <name>XmlSource</name>
    <message>
        <source>An element has too many attributes</source>
        <translation>Ein Element hat zu viele Attribute</translation>
    </message>
    <message>
        <source>The entities expand to too many characters</source>
        <translation>Die Entitäten ergeben zu viele Zeichen</translation>
    </message>
</context>
</TS>
