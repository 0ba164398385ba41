<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>MaterialTranslationTable</name>
    <message>
        <source>It is not a translation file</source>
        <translation>Non è un file di traduzione</translation>
    </message>
    <message>
        <source>It cannot be written</source>
        <translation>Impossibile scrivere il file</translation>
    </message>
</context>
<context>
    <name>mat::MaterialNameUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>Sincronizza...</translation>
    </message>
    <message>
        <source>Synchronize with material database</source>
        <translation>Sincronizza con il database dei materiali</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Obsolete</source>
        <translation>Obsoleto</translation>
    </message>
    <message>
        <source>New in the material database, to be translated</source>
        <translation>Nuovo nel database dei materiali, da tradurre</translation>
    </message>
    <message>
        <source>Obsolete: was not found in the material database; the translation is kept</source>
        <translation>Obsoleto: non trovato nel database dei materiali; la traduzione viene conservata</translation>
    </message>
    <message>
        <source>Material Name Utility</source>
        <translation>Utilità nomi dei materiali</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>Traduzione</translation>
    </message>
    <message>
        <source>Open Translation Table</source>
        <translation>Apri tabella di traduzione</translation>
    </message>
    <message>
        <source>Save Translation Table</source>
        <translation>Salva tabella di traduzione</translation>
    </message>
    <message>
        <source>Could not load translation table</source>
        <translation>Impossibile caricare la tabella di traduzione</translation>
    </message>
    <message>
        <source>Created new translation table</source>
        <translation>Creata una nuova tabella di traduzione</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>Aperto %1</translation>
    </message>
    <message>
        <source>Saved translation table</source>
        <translation>Tabella di traduzione salvata</translation>
    </message>
    <message>
        <source>Saved translation table as %1</source>
        <translation>Tabella di traduzione salvata come %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lettura di %1</translation>
    </message>
    <message>
        <source>Open Material Database</source>
        <translation>Apri database dei materiali</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>Sincronizzazione annullata, la tabella è invariata</translation>
    </message>
    <message>
        <source>Load Material Database</source>
        <translation>Carica database dei materiali</translation>
    </message>
    <message>
        <source>Cannot read material database</source>
        <translation>Impossibile leggere il database dei materiali</translation>
    </message>
    <message>
        <source>Found %1 names (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>Trovati %1 nomi (%2 nuovi, %3 esistenti e %4 obsoleti)</translation>
    </message>
</context>
</TS>
