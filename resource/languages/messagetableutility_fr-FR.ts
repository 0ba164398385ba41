<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Findings</name>
    <message>
        <source>no longer found in the sources</source>
        <translation>ne figure plus dans le code source</translation>
    </message>
    <message>
        <source>not reviewed yet</source>
        <translation>pas encore vérifié</translation>
    </message>
    <message>
        <source>Findings: %L1</source>
        <translation>Constats&#xa0;: %L1</translation>
    </message>
    <message>
        <source>%1: %L2 finished, %L3 unfinished, %L4 obsolete, %L5 with different placeholders, %L6 with different accelerators, %L7 with different blanks</source>
        <translation>%1&#xa0;: %L2 terminés, %L3 inachevés, %L4 obsolètes, %L5 avec d&apos;autres paramètres, %L6 avec d&apos;autres touches d&apos;accès, %L7 avec d&apos;autres espaces</translation>
    </message>
    <message>
        <source>no longer used</source>
        <translation>n&apos;est plus utilisé</translation>
    </message>
    <message>
        <source>not translated yet</source>
        <translation>pas encore traduit</translation>
    </message>
</context>
<context>
    <name>MessageRemarks</name>
    <message>
        <source>missing</source>
        <translation>valeur manquante</translation>
    </message>
    <message>
        <source>begins with a blank</source>
        <translation>commence par un espace</translation>
    </message>
    <message>
        <source>ends with a blank</source>
        <translation>se termine par un espace</translation>
    </message>
    <message>
        <source>the file cannot store the character %1</source>
        <translation>le fichier ne peut pas enregistrer le caractère %1</translation>
    </message>
    <message>
        <source>no translation is found, because %1 is not ASCII</source>
        <translation>aucune traduction ne sera trouvée, car %1 n&apos;est pas un caractère ASCII</translation>
    </message>
    <message>
        <source>%1 is not filled in</source>
        <translation>%1 n&apos;est pas remplacé</translation>
    </message>
    <message>
        <source>%1 is used, but %2 is not</source>
        <translation>%1 est utilisé, mais pas %2</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>not saved with this severity</source>
        <translation>ne s&apos;enregistre pas avec cette gravité</translation>
    </message>
    <message>
        <source>the accelerator is missing</source>
        <translation>la touche d&apos;accès manque</translation>
    </message>
    <message>
        <source>the source has no accelerator</source>
        <translation>la source n&apos;a pas de touche d&apos;accès</translation>
    </message>
    <message>
        <source>begins with different blanks than the source</source>
        <translation>commence par d&apos;autres espaces que la source</translation>
    </message>
    <message>
        <source>ends with different blanks than the source</source>
        <translation>se termine par d&apos;autres espaces que la source</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 manque</translation>
    </message>
    <message>
        <source>the source has no %1</source>
        <translation>la source n&apos;a pas de %1</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>Contexte</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
</context>
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
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Find and Replace...</source>
        <translation>Rechercher et remplacer...</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Edit Message</source>
        <translation>Modifier le message</translation>
    </message>
    <message>
        <source>Mark as Reviewed</source>
        <translation>Marquer comme vérifié</translation>
    </message>
    <message>
        <source>Next New Message</source>
        <translation>Nouveau message suivant</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>Saisie</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravité</translation>
    </message>
    <message>
        <source>There are no new messages</source>
        <translation>Il n&apos;y a pas de nouveaux messages</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Messages changed: %L1</source>
        <translation>Messages modifiés&#xa0;: %L1</translation>
    </message>
    <message>
        <source>New: %L1, obsolete: %L2, incomplete: %L3</source>
        <translation>Nouveaux&#xa0;: %L1, obsolètes&#xa0;: %L2, incomplets&#xa0;: %L3</translation>
    </message>
    <message>
        <source>Untranslated strings with a translation in another context: %L1

Take these translations over? The strings stay unfinished.</source>
        <translation>Textes non traduits ayant une traduction dans un autre contexte&#xa0;: %L1

Reprendre ces traductions&#xa0;? Les textes restent inachevés.</translation>
    </message>
    <message>
        <source>Adopt Texts From...</source>
        <translation>Reprendre les textes de...</translation>
    </message>
    <message>
        <source>Select a new message</source>
        <translation>Sélectionnez un nouveau message</translation>
    </message>
    <message>
        <source>No obsolete message has a similar tag or text</source>
        <translation>Aucun message obsolète n&apos;a une étiquette ou un texte semblable</translation>
    </message>
    <message>
        <source>Check Messages</source>
        <translation>Vérifier les messages</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Constats</translation>
    </message>
    <message>
        <source>Messages with a title or an action that is not saved with their severity: %L1</source>
        <translation>Messages avec un titre ou une action que leur gravité ne permet pas d&apos;enregistrer&#xa0;: %L1</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>Remplacement en cours...</translation>
    </message>
    <message>
        <source>Cancelled; nothing was replaced</source>
        <translation>Annulé, rien n&apos;a été remplacé</translation>
    </message>
</context>
<context>
    <name>MessageWindow::AdoptionDialog</name>
    <message>
        <source>Adopt Texts</source>
        <translation>Reprendre les textes</translation>
    </message>
    <message>
        <source>Obsolete messages</source>
        <translation>Messages obsolètes</translation>
    </message>
    <message>
        <source>The message adopts the texts of this obsolete message, which is removed:</source>
        <translation>Le message reprend les textes de ce message obsolète, qui est supprimé&#xa0;:</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindDialog</name>
    <message>
        <source>Match case</source>
        <translation>Respecter la casse</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Remplacer par&#xa0;:</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Remplacer tout</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindingsPanel</name>
    <message>
        <source>Findings</source>
        <translation>Constats</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... et %1 autres</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePanel</name>
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
        <source>Severity</source>
        <translation>Gravité</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>Select a message to edit it.</source>
        <translation>Sélectionnez un message pour le modifier.</translation>
    </message>
    <message>
        <source>Selected messages: %L1</source>
        <translation>Messages sélectionnés&#xa0;: %L1</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePreview</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
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
    <message>
        <source>These entries of the project were not resolved: the files that they list were not scanned.</source>
        <translation>Ces entrées du projet n&apos;ont pas pu être résolues&#xa0;: les fichiers sources qu&apos;elles désignent n&apos;ont pas été analysés.</translation>
    </message>
</context>
</TS>
