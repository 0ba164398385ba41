<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Findings</name>
    <message>
        <source>no longer found in the sources</source>
        <translation>im Quellcode nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>not reviewed yet</source>
        <translation>noch nicht geprüft</translation>
    </message>
    <message>
        <source>Findings: %L1</source>
        <translation>Befunde: %L1</translation>
    </message>
    <message>
        <source>%1: %L2 finished, %L3 unfinished, %L4 obsolete, %L5 with different placeholders, %L6 with different accelerators, %L7 with different blanks</source>
        <translation>%1: %L2 fertig, %L3 unfertig, %L4 veraltet, %L5 mit anderen Platzhaltern, %L6 mit anderen Zugriffstasten, %L7 mit anderen Leerzeichen</translation>
    </message>
    <message>
        <source>no longer used</source>
        <translation>wird nicht mehr verwendet</translation>
    </message>
    <message>
        <source>not translated yet</source>
        <translation>noch nicht übersetzt</translation>
    </message>
</context>
<context>
    <name>MessageRemarks</name>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>begins with a blank</source>
        <translation>beginnt mit einem Leerzeichen</translation>
    </message>
    <message>
        <source>ends with a blank</source>
        <translation>endet mit einem Leerzeichen</translation>
    </message>
    <message>
        <source>the file cannot store the character %1</source>
        <translation>die Datei kann das Zeichen %1 nicht speichern</translation>
    </message>
    <message>
        <source>no translation is found, because %1 is not ASCII</source>
        <translation>es wird keine Übersetzung gefunden, weil %1 kein ASCII-Zeichen ist</translation>
    </message>
    <message>
        <source>%1 is not filled in</source>
        <translation>%1 wird nicht ersetzt</translation>
    </message>
    <message>
        <source>%1 is used, but %2 is not</source>
        <translation>%1 wird verwendet, aber %2 nicht</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>not saved with this severity</source>
        <translation>wird bei diesem Schweregrad nicht gespeichert</translation>
    </message>
    <message>
        <source>the accelerator is missing</source>
        <translation>die Zugriffstaste fehlt</translation>
    </message>
    <message>
        <source>the source has no accelerator</source>
        <translation>der Ausgangstext hat keine Zugriffstaste</translation>
    </message>
    <message>
        <source>begins with different blanks than the source</source>
        <translation>beginnt mit anderen Leerzeichen als der Ausgangstext</translation>
    </message>
    <message>
        <source>ends with different blanks than the source</source>
        <translation>endet mit anderen Leerzeichen als der Ausgangstext</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>the source has no %1</source>
        <translation>der Ausgangstext hat kein %1</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>Kontext</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Maßnahme</translation>
    </message>
</context>
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
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Find and Replace...</source>
        <translation>Suchen und ersetzen...</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Edit Message</source>
        <translation>Meldung bearbeiten</translation>
    </message>
    <message>
        <source>Mark as Reviewed</source>
        <translation>Als geprüft markieren</translation>
    </message>
    <message>
        <source>Next New Message</source>
        <translation>Nächste neue Meldung</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schweregrad</translation>
    </message>
    <message>
        <source>There are no new messages</source>
        <translation>Es gibt keine neuen Meldungen</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Messages changed: %L1</source>
        <translation>Geänderte Meldungen: %L1</translation>
    </message>
    <message>
        <source>New: %L1, obsolete: %L2, incomplete: %L3</source>
        <translation>Neu: %L1, veraltet: %L2, unvollständig: %L3</translation>
    </message>
    <message>
        <source>Untranslated strings with a translation in another context: %L1

Take these translations over? The strings stay unfinished.</source>
        <translation>Unübersetzte Texte, die in einem anderen Kontext übersetzt sind: %L1

Diese Übersetzungen übernehmen? Die Texte bleiben unfertig.</translation>
    </message>
    <message>
        <source>Adopt Texts From...</source>
        <translation>Texte übernehmen von...</translation>
    </message>
    <message>
        <source>Select a new message</source>
        <translation>Wählen Sie eine neue Meldung aus</translation>
    </message>
    <message>
        <source>No obsolete message has a similar tag or text</source>
        <translation>Keine veraltete Meldung hat eine ähnliche Kennung oder einen ähnlichen Text</translation>
    </message>
    <message>
        <source>Check Messages</source>
        <translation>Meldungen prüfen</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Messages with a title or an action that is not saved with their severity: %L1</source>
        <translation>Meldungen mit einem Titel oder einer Maßnahme, die bei ihrem Schweregrad nicht gespeichert wird: %L1</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Suchen und ersetzen</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>Die Texte werden ersetzt...</translation>
    </message>
    <message>
        <source>Cancelled; nothing was replaced</source>
        <translation>Abgebrochen, es wurde nichts ersetzt</translation>
    </message>
</context>
<context>
    <name>MessageWindow::AdoptionDialog</name>
    <message>
        <source>Adopt Texts</source>
        <translation>Texte übernehmen</translation>
    </message>
    <message>
        <source>Obsolete messages</source>
        <translation>Veraltete Meldungen</translation>
    </message>
    <message>
        <source>The message adopts the texts of this obsolete message, which is removed:</source>
        <translation>Die Meldung übernimmt die Texte dieser veralteten Meldung, die entfernt wird:</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindDialog</name>
    <message>
        <source>Match case</source>
        <translation>Groß-/Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Suchen und ersetzen</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Ersetzen durch:</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Alle ersetzen</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindingsPanel</name>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePanel</name>
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
        <source>Severity</source>
        <translation>Schweregrad</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Maßnahme</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>Select a message to edit it.</source>
        <translation>Wählen Sie eine Meldung aus, um sie zu bearbeiten.</translation>
    </message>
    <message>
        <source>Selected messages: %L1</source>
        <translation>Ausgewählte Meldungen: %L1</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePreview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
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
    <message>
        <source>These entries of the project were not resolved: the files that they list were not scanned.</source>
        <translation>Diese Einträge des Projekts konnten nicht aufgelöst werden; die darin genannten Quelldateien wurden nicht durchsucht.</translation>
    </message>
</context>
</TS>
