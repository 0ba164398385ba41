<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>Leftovers</name>
    <message>
        <source>Line %1: %2 is not kept</source>
        <translation>Riga %1: %2 non viene conservato</translation>
    </message>
    <message>
        <source>Line %1: %2 is not kept; it occurs again in line %3</source>
        <translation>Riga %1: %2 non viene conservato, ricompare alla riga %3</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... e altri %1</translation>
    </message>
    <message>
        <source>Parts of the file were dropped; the previous file is kept as %1</source>
        <translation>Parti del file sono state omesse, il vecchio file è %1</translation>
    </message>
</context>
<context>
    <name>MessageTable</name>
    <message>
        <source>The marks of an unfinished merge</source>
        <translation>Marcatori di un&apos;unione non completata</translation>
    </message>
</context>
<context>
    <name>Window::FilterField</name>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>Filtra (Ctrl+F)</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text</source>
        <translation>Mostra solo le righe che contengono questo testo</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
</context>
<context>
    <name>Window::MarkedTableView</name>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
</context>
<context>
    <name>Window::Progress</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>Window::RecentFiles</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>File &amp;recenti</translation>
    </message>
</context>
<context>
    <name>Window::TableWindow</name>
    <message>
        <source>Untitled</source>
        <translation>Senza titolo</translation>
    </message>
    <message>
        <source>%1 has unsaved changes. Save them?</source>
        <translation>%1 contiene modifiche non salvate. Salvarle?</translation>
    </message>
    <message>
        <source>Could not save %1

The location may be write-protected or full. The table stays open, unsaved; save it in another location.</source>
        <translation>Impossibile salvare %1

La posizione potrebbe essere protetta da scrittura o piena. La tabella resta aperta qui, non salvata; salvarla in un&apos;altra posizione.</translation>
    </message>
    <message>
        <source>Rows: %L1</source>
        <translation>Righe: %L1</translation>
    </message>
    <message>
        <source>Rows: %L1 of %L2</source>
        <translation>Righe: %L1 di %L2</translation>
    </message>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (non salvato)</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Apri...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Salva con nome...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Informazioni...</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra degli strumenti</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Load it again?</source>
        <translation>%1 è stato modificato da un altro programma. Ricaricarlo?</translation>
    </message>
    <message>
        <source>Your unsaved changes will be lost.</source>
        <translation>Le modifiche non salvate andranno perse.</translation>
    </message>
    <message>
        <source>Not everything in the file was understood. Saving the table drops these parts: %1</source>
        <translation>Non tutto il file è stato compreso. Il salvataggio della tabella omette queste parti: %1</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 è stato modificato da un altro programma.</translation>
    </message>
    <message>
        <source>Saving drops the parts of %1 that were not understood (%2). The old file is kept next to it.</source>
        <translation>Il salvataggio omette le parti di %1 che non sono state comprese (%2). Il vecchio file resta accanto.</translation>
    </message>
    <message>
        <source>Save the table anyway?</source>
        <translation>Salvare comunque la tabella?</translation>
    </message>
</context>
<context>
    <name>XmlSource</name>
    <message>
        <source>An element has too many attributes</source>
        <translation>Un elemento ha troppi attributi</translation>
    </message>
    <message>
        <source>The entities expand to too many characters</source>
        <translation>Le entità producono troppi caratteri</translation>
    </message>
</context>
</TS>
