<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Leftovers</name>
    <message>
        <source>Line %1: %2 is not kept</source>
        <translation>Ligne %1&#xa0;: %2 n&apos;est pas conservé</translation>
    </message>
    <message>
        <source>Line %1: %2 is not kept; it occurs again in line %3</source>
        <translation>Ligne %1&#xa0;: %2 n&apos;est pas conservé, il figure de nouveau à la ligne %3</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... et %1 autres</translation>
    </message>
    <message>
        <source>Parts of the file were dropped; the previous file is kept as %1</source>
        <translation>Des parties du fichier sont omises, l&apos;ancien fichier est %1</translation>
    </message>
</context>
<context>
    <name>MessageTable</name>
    <message>
        <source>The marks of an unfinished merge</source>
        <translation>Marques d&apos;une fusion inachevée</translation>
    </message>
</context>
<context>
    <name>Window::FilterField</name>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>Filtrer (Ctrl+F)</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text</source>
        <translation>Affiche uniquement les lignes contenant ce texte</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
</context>
<context>
    <name>Window::MarkedTableView</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>Window::Progress</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Window::RecentFiles</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Fichiers &amp;récents</translation>
    </message>
</context>
<context>
    <name>Window::TableWindow</name>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>%1 has unsaved changes. Save them?</source>
        <translation>%1 contient des modifications non enregistrées. Voulez-vous les enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>Could not save %1

The location may be write-protected or full. The table stays open, unsaved; save it in another location.</source>
        <translation>Impossible d&apos;enregistrer %1

L&apos;emplacement est peut-être protégé en écriture ou plein. La table reste ouverte ici, non enregistrée&#xa0;; enregistrez-la à un autre emplacement.</translation>
    </message>
    <message>
        <source>Rows: %L1</source>
        <translation>Lignes&#xa0;: %L1</translation>
    </message>
    <message>
        <source>Rows: %L1 of %L2</source>
        <translation>Lignes&#xa0;: %L1 sur %L2</translation>
    </message>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (non enregistré)</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Ouvrir...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Enregistrer sous...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>À propos...</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barre d&apos;outils</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Load it again?</source>
        <translation>%1 a été modifié par un autre programme. Le recharger&#xa0;?</translation>
    </message>
    <message>
        <source>Your unsaved changes will be lost.</source>
        <translation>Vos modifications non enregistrées seront perdues.</translation>
    </message>
    <message>
        <source>Not everything in the file was understood. Saving the table drops these parts: %1</source>
        <translation>Le fichier n&apos;a pas été entièrement compris. L&apos;enregistrement de la table omet ces parties&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 a été modifié par un autre programme.</translation>
    </message>
    <message>
        <source>Saving drops the parts of %1 that were not understood (%2). The old file is kept next to it.</source>
        <translation>L&apos;enregistrement omet les parties de %1 qui n&apos;ont pas été comprises (%2). L&apos;ancien fichier est conservé à côté.</translation>
    </message>
    <message>
        <source>Save the table anyway?</source>
        <translation>Voulez-vous enregistrer la table malgré tout&#xa0;?</translation>
    </message>
</context>
<context>
    <name>XmlSource</name>
    <message>
        <source>An element has too many attributes</source>
        <translation>Un élément a trop d&apos;attributs</translation>
    </message>
    <message>
        <source>The entities expand to too many characters</source>
        <translation>Les entités produisent trop de caractères</translation>
    </message>
</context>
</TS>
