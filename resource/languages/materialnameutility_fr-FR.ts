<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>MaterialTranslationTable</name>
    <message>
        <source>It is not a translation file</source>
        <translation>Ce n&apos;est pas un fichier de traduction</translation>
    </message>
    <message>
        <source>It cannot be written</source>
        <translation>Impossible d&apos;écrire le fichier</translation>
    </message>
</context>
<context>
    <name>mat::MaterialNameUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>Synchroniser...</translation>
    </message>
    <message>
        <source>Synchronize with material database</source>
        <translation>Synchroniser avec la base de données de matériaux</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Obsolete</source>
        <translation>Obsolète</translation>
    </message>
    <message>
        <source>New in the material database, to be translated</source>
        <translation>Nouveau dans la base de données de matériaux, à traduire</translation>
    </message>
    <message>
        <source>Obsolete: was not found in the material database; the translation is kept</source>
        <translation>Obsolète&#xa0;: introuvable dans la base de données de matériaux&#xa0;; la traduction est conservée</translation>
    </message>
    <message>
        <source>Material Name Utility</source>
        <translation>Utilitaire de noms de matériaux</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>Traduction</translation>
    </message>
    <message>
        <source>Open Translation Table</source>
        <translation>Ouvrir une table de traduction</translation>
    </message>
    <message>
        <source>Save Translation Table</source>
        <translation>Enregistrer la table de traduction</translation>
    </message>
    <message>
        <source>Could not load translation table</source>
        <translation>Impossible de charger la table de traduction</translation>
    </message>
    <message>
        <source>Created new translation table</source>
        <translation>Nouvelle table de traduction créée</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>%1 ouvert</translation>
    </message>
    <message>
        <source>Saved translation table</source>
        <translation>Table de traduction enregistrée</translation>
    </message>
    <message>
        <source>Saved translation table as %1</source>
        <translation>Table de traduction enregistrée sous %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lecture de %1</translation>
    </message>
    <message>
        <source>Open Material Database</source>
        <translation>Ouvrir une base de données de matériaux</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>Synchronisation annulée, la table est inchangée</translation>
    </message>
    <message>
        <source>Load Material Database</source>
        <translation>Charger la base de données de matériaux</translation>
    </message>
    <message>
        <source>Cannot read material database</source>
        <translation>Impossible de lire la base de données de matériaux</translation>
    </message>
    <message>
        <source>Found %1 names (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>%1 noms trouvés (%2 nouveaux, %3 existants et %4 obsolètes)</translation>
    </message>
</context>
</TS>
