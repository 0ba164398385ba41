<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>MessageTableFile</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Riga %1: %2</translation>
    </message>
</context>
<context>
    <name>MessageTableUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>Sincronizza...</translation>
    </message>
    <message>
        <source>Synchronize with source code</source>
        <translation>Sincronizza con il codice sorgente</translation>
    </message>
    <message>
        <source>Update Translation...</source>
        <translation>Aggiorna traduzione...</translation>
    </message>
    <message>
        <source>Update translation</source>
        <translation>Aggiorna la traduzione</translation>
    </message>
    <message>
        <source>tr</source>
        <translation>tr</translation>
    </message>
    <message>
        <source>Found in the sources, not reviewed yet</source>
        <translation>Trovato nei sorgenti, non ancora revisionato</translation>
    </message>
    <message>
        <source>No longer found in the sources</source>
        <translation>Non più presente nei sorgenti</translation>
    </message>
    <message>
        <source>Message Table Utility</source>
        <translation>Utilità tabella messaggi</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Processo</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>Contesto</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Open Message Table</source>
        <translation>Apri tabella messaggi</translation>
    </message>
    <message>
        <source>Save Message Table</source>
        <translation>Salva tabella messaggi</translation>
    </message>
    <message>
        <source>Could not load message table</source>
        <translation>Impossibile caricare la tabella messaggi</translation>
    </message>
    <message>
        <source>Table saved</source>
        <translation>Tabella salvata</translation>
    </message>
    <message>
        <source>Table saved as %1</source>
        <translation>Tabella salvata come %1</translation>
    </message>
    <message>
        <source>Loading message table &quot;%1&quot;...</source>
        <translation>Caricamento della tabella messaggi “%1”...</translation>
    </message>
    <message>
        <source>Open Visual Studio Project</source>
        <translation>Apri progetto Visual Studio</translation>
    </message>
    <message>
        <source>Visual Studio Project Error</source>
        <translation>Errore nel progetto Visual Studio</translation>
    </message>
    <message>
        <source>Could not parse %1</source>
        <translation>Impossibile analizzare %1</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>Sincronizzazione annullata, la tabella è invariata</translation>
    </message>
    <message>
        <source>Parser Error</source>
        <translation>Errore di analisi</translation>
    </message>
    <message>
        <source>Parsing</source>
        <translation>Analisi</translation>
    </message>
    <message>
        <source>Parsing source files from %1</source>
        <translation>Analisi dei file sorgente di %1</translation>
    </message>
    <message>
        <source>Found %1 keys</source>
        <translation>Trovate %1 chiavi</translation>
    </message>
    <message>
        <source>Found 0 keys</source>
        <translation>Trovate 0 chiavi</translation>
    </message>
    <message>
        <source>Found %1 keys (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>Trovate %1 chiavi (%2 nuove, %3 esistenti e %4 obsolete)</translation>
    </message>
    <message>
        <source>Elapsed time: %1 sec</source>
        <translation>Tempo trascorso: %1 s</translation>
    </message>
    <message>
        <source>Open Qt Translation File</source>
        <translation>Apri file di traduzione Qt</translation>
    </message>
    <message>
        <source>Qt Translation File Error</source>
        <translation>Errore nel file di traduzione Qt</translation>
    </message>
    <message>
        <source>Could not load &apos;%1&apos;: %2</source>
        <translation>Impossibile caricare “%1”: %2</translation>
    </message>
    <message>
        <source>Added %1 new strings to %2</source>
        <translation>Aggiunte %1 nuove stringhe a %2</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>Impossibile salvare %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lettura di %1</translation>
    </message>
    <message>
        <source>Update cancelled; the translation is unchanged</source>
        <translation>Aggiornamento annullato, la traduzione è invariata</translation>
    </message>
</context>
<context>
    <name>ProjectScan</name>
    <message>
        <source>... and %1 more</source>
        <translation>... e altri %1</translation>
    </message>
    <message>
        <source>These files were skipped: their messages were not found.</source>
        <translation>Questi file sono stati ignorati: i loro messaggi non sono stati trovati.</translation>
    </message>
</context>
</TS>
