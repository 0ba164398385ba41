<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>MessageTableFile</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>MessageTableUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>Synchroniser...</translation>
    </message>
    <message>
        <source>Synchronize with source code</source>
        <translation>Synchroniser avec le code source</translation>
    </message>
    <message>
        <source>Update Translation...</source>
        <translation>Mettre à jour la traduction...</translation>
    </message>
    <message>
        <source>Update translation</source>
        <translation>Mettre à jour la traduction</translation>
    </message>
    <message>
        <source>tr</source>
        <translation>tr</translation>
    </message>
    <message>
        <source>Found in the sources, not reviewed yet</source>
        <translation>Trouvé dans le code source, pas encore vérifié</translation>
    </message>
    <message>
        <source>No longer found in the sources</source>
        <translation>Ne figure plus dans le code source</translation>
    </message>
    <message>
        <source>Message Table Utility</source>
        <translation>Utilitaire de table de messages</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>Contexte</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Open Message Table</source>
        <translation>Ouvrir une table de messages</translation>
    </message>
    <message>
        <source>Save Message Table</source>
        <translation>Enregistrer la table de messages</translation>
    </message>
    <message>
        <source>Could not load message table</source>
        <translation>Impossible de charger la table de messages</translation>
    </message>
    <message>
        <source>Table saved</source>
        <translation>Table enregistrée</translation>
    </message>
    <message>
        <source>Table saved as %1</source>
        <translation>Table enregistrée sous %1</translation>
    </message>
    <message>
        <source>Loading message table &quot;%1&quot;...</source>
        <translation>Chargement de la table de messages «&#xa0;%1&#xa0;»...</translation>
    </message>
    <message>
        <source>Open Visual Studio Project</source>
        <translation>Ouvrir un projet Visual Studio</translation>
    </message>
    <message>
        <source>Visual Studio Project Error</source>
        <translation>Erreur de projet Visual Studio</translation>
    </message>
    <message>
        <source>Could not parse %1</source>
        <translation>Impossible d&apos;analyser %1</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>Synchronisation annulée, la table est inchangée</translation>
    </message>
    <message>
        <source>Parser Error</source>
        <translation>Erreur d&apos;analyse</translation>
    </message>
    <message>
        <source>Parsing</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Parsing source files from %1</source>
        <translation>Analyse des fichiers source de %1</translation>
    </message>
    <message>
        <source>Found %1 keys</source>
        <translation>%1 clés trouvées</translation>
    </message>
    <message>
        <source>Found 0 keys</source>
        <translation>0 clé trouvée</translation>
    </message>
    <message>
        <source>Found %1 keys (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>%1 clés trouvées (%2 nouvelles, %3 existantes et %4 obsolètes)</translation>
    </message>
    <message>
        <source>Elapsed time: %1 sec</source>
        <translation>Temps écoulé&#xa0;: %1&#xa0;s</translation>
    </message>
    <message>
        <source>Open Qt Translation File</source>
        <translation>Ouvrir un fichier de traduction Qt</translation>
    </message>
    <message>
        <source>Qt Translation File Error</source>
        <translation>Erreur de fichier de traduction Qt</translation>
    </message>
    <message>
        <source>Could not load &apos;%1&apos;: %2</source>
        <translation>Impossible de charger «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Added %1 new strings to %2</source>
        <translation>%1 nouvelles chaînes ajoutées à %2</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>Impossible d&apos;enregistrer %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lecture de %1</translation>
    </message>
    <message>
        <source>Update cancelled; the translation is unchanged</source>
        <translation>Mise à jour annulée, la traduction est inchangée</translation>
    </message>
</context>
<context>
    <name>ProjectScan</name>
    <message>
        <source>... and %1 more</source>
        <translation>... et %1 autres</translation>
    </message>
    <message>
        <source>These files were skipped: their messages were not found.</source>
        <translation>Ces fichiers ont été ignorés&#xa0;: leurs messages n&apos;ont pas été trouvés.</translation>
    </message>
</context>
</TS>
