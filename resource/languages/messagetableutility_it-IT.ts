<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>Findings</name>
    <message>
        <source>no longer found in the sources</source>
        <translation>non più presente nei sorgenti</translation>
    </message>
    <message>
        <source>not reviewed yet</source>
        <translation>non ancora verificato</translation>
    </message>
    <message>
        <source>Findings: %L1</source>
        <translation>Risultati: %L1</translation>
    </message>
    <message>
        <source>%1: %L2 finished, %L3 unfinished, %L4 obsolete, %L5 with different placeholders, %L6 with different accelerators, %L7 with different blanks</source>
        <translation>%1: %L2 completi, %L3 incompleti, %L4 obsoleti, %L5 con altri segnaposto, %L6 con altri tasti di scelta, %L7 con altri spazi</translation>
    </message>
    <message>
        <source>no longer used</source>
        <translation>non più usato</translation>
    </message>
    <message>
        <source>not translated yet</source>
        <translation>non ancora tradotto</translation>
    </message>
</context>
<context>
    <name>MessageRemarks</name>
    <message>
        <source>missing</source>
        <translation>manca</translation>
    </message>
    <message>
        <source>begins with a blank</source>
        <translation>inizia con uno spazio</translation>
    </message>
    <message>
        <source>ends with a blank</source>
        <translation>termina con uno spazio</translation>
    </message>
    <message>
        <source>the file cannot store the character %1</source>
        <translation>il file non può memorizzare il carattere %1</translation>
    </message>
    <message>
        <source>no translation is found, because %1 is not ASCII</source>
        <translation>non viene trovata alcuna traduzione, perché %1 non è un carattere ASCII</translation>
    </message>
    <message>
        <source>%1 is not filled in</source>
        <translation>%1 non viene sostituito</translation>
    </message>
    <message>
        <source>%1 is used, but %2 is not</source>
        <translation>%1 viene usato, ma %2 no</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>not saved with this severity</source>
        <translation>non salvabile con questa gravità</translation>
    </message>
    <message>
        <source>the accelerator is missing</source>
        <translation>manca il tasto di scelta</translation>
    </message>
    <message>
        <source>the source has no accelerator</source>
        <translation>l&apos;originale non ha un tasto di scelta</translation>
    </message>
    <message>
        <source>begins with different blanks than the source</source>
        <translation>inizia con spazi diversi dall&apos;originale</translation>
    </message>
    <message>
        <source>ends with different blanks than the source</source>
        <translation>termina con spazi diversi dall&apos;originale</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>manca %1</translation>
    </message>
    <message>
        <source>the source has no %1</source>
        <translation>l&apos;originale non ha %1</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>Contesto</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
</context>
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
        <translation>Trovato nei sorgenti, non ancora verificato</translation>
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
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Find and Replace...</source>
        <translation>Trova e sostituisci...</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Trova successivo</translation>
    </message>
    <message>
        <source>Edit Message</source>
        <translation>Modifica messaggio</translation>
    </message>
    <message>
        <source>Mark as Reviewed</source>
        <translation>Contrassegna come verificato</translation>
    </message>
    <message>
        <source>Next New Message</source>
        <translation>Messaggio nuovo successivo</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>Digitazione</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravità</translation>
    </message>
    <message>
        <source>There are no new messages</source>
        <translation>Non ci sono messaggi nuovi</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Non trovato</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Messages changed: %L1</source>
        <translation>Messaggi modificati: %L1</translation>
    </message>
    <message>
        <source>New: %L1, obsolete: %L2, incomplete: %L3</source>
        <translation>Nuovi: %L1, obsoleti: %L2, incompleti: %L3</translation>
    </message>
    <message>
        <source>Untranslated strings with a translation in another context: %L1

Take these translations over? The strings stay unfinished.</source>
        <translation>Testi non tradotti con una traduzione in un altro contesto: %L1

Riprendere queste traduzioni? I testi restano incompleti.</translation>
    </message>
    <message>
        <source>Adopt Texts From...</source>
        <translation>Riprendi testi da...</translation>
    </message>
    <message>
        <source>Select a new message</source>
        <translation>Selezionare un messaggio nuovo</translation>
    </message>
    <message>
        <source>No obsolete message has a similar tag or text</source>
        <translation>Nessun messaggio obsoleto ha un tag o un testo simile</translation>
    </message>
    <message>
        <source>Check Messages</source>
        <translation>Controlla messaggi</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>Messages with a title or an action that is not saved with their severity: %L1</source>
        <translation>Messaggi con un titolo o un&apos;azione che non viene salvata con la loro gravità: %L1</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Trova e sostituisci</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>Sostituzione in corso...</translation>
    </message>
    <message>
        <source>Cancelled; nothing was replaced</source>
        <translation>Operazione annullata, non è stato sostituito nulla</translation>
    </message>
</context>
<context>
    <name>MessageWindow::AdoptionDialog</name>
    <message>
        <source>Adopt Texts</source>
        <translation>Riprendi testi</translation>
    </message>
    <message>
        <source>Obsolete messages</source>
        <translation>Messaggi obsoleti</translation>
    </message>
    <message>
        <source>The message adopts the texts of this obsolete message, which is removed:</source>
        <translation>Il messaggio riprende i testi di questo messaggio obsoleto, che viene rimosso:</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindDialog</name>
    <message>
        <source>Match case</source>
        <translation>Maiuscole/minuscole</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Trova e sostituisci</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Trova:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Sostituisci con:</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Trova successivo</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Sostituisci tutto</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindingsPanel</name>
    <message>
        <source>Findings</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... e altri %1</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePanel</name>
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
        <source>Severity</source>
        <translation>Gravità</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Osservazioni</translation>
    </message>
    <message>
        <source>Select a message to edit it.</source>
        <translation>Selezionare un messaggio per modificarlo.</translation>
    </message>
    <message>
        <source>Selected messages: %L1</source>
        <translation>Messaggi selezionati: %L1</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePreview</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
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
    <message>
        <source>These entries of the project were not resolved: the files that they list were not scanned.</source>
        <translation>Queste voci del progetto non sono state risolte: i file sorgente che indicano non sono stati analizzati.</translation>
    </message>
</context>
</TS>
