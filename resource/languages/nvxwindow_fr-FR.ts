<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
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
        <source>%1 was changed by another program. Replace it?</source>
        <translation>%1 a été modifié par un autre programme. Le remplacer&#xa0;?</translation>
    </message>
</context>
</TS>
