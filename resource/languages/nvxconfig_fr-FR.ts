<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>ArchiveComponents</name>
    <message>
        <source> Tutorials</source>
        <translation> des tutoriels</translation>
    </message>
    <message>
        <source>Installing Tutorials</source>
        <translation>Installation des tutoriels en cours</translation>
    </message>
    <message>
        <source> Python (locally for NVX)</source>
        <translation> de Python (en local pour NVX)</translation>
    </message>
    <message>
        <source>Installing Python</source>
        <translation>Installation de Python en cours</translation>
    </message>
    <message>
        <source> Mertle Server</source>
        <translation> de Mertle Server</translation>
    </message>
    <message>
        <source>No translators folder is set; the Mertle Server is not installed or removed</source>
        <translation>Aucun dossier de traducteurs, Mertle Server reste inchangé</translation>
    </message>
    <message>
        <source>Installing Mertle Server</source>
        <translation>Installation de Mertle Server en cours</translation>
    </message>
</context>
<context>
    <name>BrevantLauncher</name>
    <message>
        <source>Configure Brevant</source>
        <translation>Configuration de Brevant</translation>
    </message>
</context>
<context>
    <name>ClassWizard</name>
    <message>
        <source>%1 %2 Configuration Wizard</source>
        <translation>Assistant de configuration de %1 %2</translation>
    </message>
    <message>
        <source>Program exiting</source>
        <translation>Fermeture du programme</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Valid NVX command line arguments are:
-I Install mode(default)
-U UnInstall mode
-STop Stop Services
-S Slient mode
-L Install USA language
-Lxxx Install language xxx
-E look in %temp%NVXENv.txt for install language

 Do you want to continue?
</source>
        <translation>Les arguments de ligne de commande valides pour NVX sont&#xa0;:
-I Mode installation (par défaut)
-U Mode désinstallation
-STop Arrêter les services
-S Mode silencieux
-L Installer la langue anglaise (États-Unis)
-Lxxx Installer la langue xxx
-E Rechercher la langue d&apos;installation dans %temp%NVXENv.txt

 Voulez-vous continuer&#xa0;?
</translation>
    </message>
</context>
<context>
    <name>CommandRunner</name>
    <message>
        <source>The program could not be started.</source>
        <translation>Impossible de démarrer le programme.</translation>
    </message>
    <message>
        <source>The program was still running after %1 ms and has been ended.</source>
        <translation>Le programme était toujours en cours d&apos;exécution après %1&#xa0;ms et a été arrêté.</translation>
    </message>
    <message>
        <source>The program crashed.</source>
        <translation>Le programme s&apos;est arrêté de manière inattendue.</translation>
    </message>
    <message>
        <source>The name of this folder cannot be written in the command interpreter&apos;s code page; it is not removed: %1</source>
        <translation>Le nom de ce dossier ne peut pas être représenté dans la page de codes de l&apos;interpréteur de commandes, le dossier n&apos;est pas supprimé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Unable to create %1; this folder is not removed: %2</source>
        <translation>Impossible de créer %1, ce dossier n&apos;est pas supprimé&#xa0;: %2</translation>
    </message>
    <message>
        <source>The name of this folder contains a character that ends or changes a command; it is not removed: %1</source>
        <translation>Le nom de ce dossier contient un caractère qui termine ou modifie une commande, le dossier n&apos;est pas supprimé&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ConclusionPage</name>
    <message>
        <source>Conclusion </source>
        <translation>Fin de la configuration </translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
</context>
<context>
    <name>ContextHelp</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>CreoLauncher</name>
    <message>
        <source> Creo Remove:</source>
        <translation> Creo - suppression&#xa0;:</translation>
    </message>
    <message>
        <source>Removing Ostrade from:</source>
        <translation>Suppression d&apos;Ostrade de&#xa0;:</translation>
    </message>
    <message>
        <source>Writing </source>
        <translation>Écriture de </translation>
    </message>
    <message>
        <source>Creating  </source>
        <translation>Création de  </translation>
    </message>
    <message>
        <source>Ostrade %1 already exists, do nothing</source>
        <translation>Ostrade %1 existe déjà, aucune modification</translation>
    </message>
</context>
<context>
    <name>Detection</name>
    <message>
        <source>%1 Install Dir:%2</source>
        <translation>Dossier d&apos;installation de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Using %1 Install Dir:%2</source>
        <translation>Utilisation de %1, dossier d&apos;installation&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 Product Code =%2</source>
        <translation>Code de produit de %1 =%2</translation>
    </message>
</context>
<context>
    <name>FeaturePage</name>
    <message>
        <source>Pro/ENGINEER Creo</source>
        <translation>Pro/ENGINEER Creo</translation>
    </message>
    <message>
        <source>SolidWorks</source>
        <translation>SolidWorks</translation>
    </message>
    <message>
        <source>Brevant</source>
        <translation>Brevant</translation>
    </message>
    <message>
        <source>UGS NX</source>
        <translation>UGS NX</translation>
    </message>
    <message>
        <source>Tamsel</source>
        <translation>Tamsel</translation>
    </message>
    <message>
        <source>Tamsel Architecture</source>
        <translation>Tamsel Architecture</translation>
    </message>
    <message>
        <source>Tamsel MEP</source>
        <translation>Tamsel MEP</translation>
    </message>
    <message>
        <source>SpaceClaim</source>
        <translation>SpaceClaim</translation>
    </message>
    <message>
        <source>CAD Launchers </source>
        <translation>Lanceurs CAO </translation>
    </message>
    <message>
        <source>NVX launchers will be installed for the CAD systems that are checked.</source>
        <translation>Les lanceurs NVX seront installés pour les systèmes de CAO cochés.</translation>
    </message>
</context>
<context>
    <name>FileAssociations</name>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; no files are associated with the product: %1</source>
        <translation>Le dossier ne peut pas être représenté dans la page de codes du système, aucun fichier n&apos;est associé au produit&#xa0;: %1</translation>
    </message>
    <message>
        <source>Create file associations</source>
        <translation>Création des associations de fichiers</translation>
    </message>
    <message>
        <source>The install folder is unknown; no files are associated</source>
        <translation>Le dossier d&apos;installation n&apos;est pas connu, aucun fichier n&apos;est associé</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>The install folder&apos;s path cannot be written in the system&apos;s code page; the launcher is not added to %1</source>
        <translation>Le nom du dossier d&apos;installation ne peut pas être représenté dans la page de codes du système, le lanceur n&apos;est pas inscrit dans %1</translation>
    </message>
</context>
<context>
    <name>Localization::TranslationJob</name>
    <message>
        <source>%1 is a link, which is not followed</source>
        <translation>%1 est un lien, il n&apos;est pas suivi</translation>
    </message>
    <message>
        <source>%1 has more than %2 files; the others are not downloaded</source>
        <translation>%1 contient plus de %2 fichiers, les autres ne sont pas téléchargés</translation>
    </message>
    <message>
        <source>%1 is refused: %2</source>
        <translation>%1 est refusé&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>MaterialDatabase</name>
    <message>
        <source>Checking material database</source>
        <translation>Vérification de la base de données de matériaux</translation>
    </message>
    <message>
        <source>Installation error matprop.mdb does not exist?</source>
        <translation>Erreur d&apos;installation&#xa0;: matprop.mdb n&apos;existe pas&#xa0;?</translation>
    </message>
    <message>
        <source>Installation error: </source>
        <translation>Erreur d&apos;installation&#xa0;: </translation>
    </message>
    <message>
        <source> does not exist.</source>
        <translation> n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Copy: </source>
        <translation>Copie&#xa0;: </translation>
    </message>
    <message>
        <source> to: </source>
        <translation> vers&#xa0;: </translation>
    </message>
    <message>
        <source>Remove: </source>
        <translation>Suppression&#xa0;: </translation>
    </message>
</context>
<context>
    <name>Nvx::Wizard::ProgressList</name>
    <message>
        <source>&amp;Copy</source>
        <translation>Cop&amp;ier</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>NxLauncher</name>
    <message>
        <source>Copying %1 to %2</source>
        <translation>Copie de %1 vers %2</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Vérification&#xa0;:</translation>
    </message>
    <message>
        <source>Creating</source>
        <translation>Création&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ParallelConfiguration</name>
    <message>
        <source>Created NVX2 default configuration: %1</source>
        <translation>Configuration NVX2 par défaut créée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 default configuration: %1</source>
        <translation>Impossible de créer la configuration NVX2 par défaut&#xa0;: %1</translation>
    </message>
    <message>
        <source>Created NVX2 analyze folder: %1</source>
        <translation>Dossier d&apos;analyse NVX2 créé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 analyze folder: %1</source>
        <translation>Impossible de créer le dossier d&apos;analyse NVX2&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>%1 terminated</source>
        <translation>%1 a été arrêté</translation>
    </message>
    <message>
        <source>%1 was not terminated</source>
        <translation>%1 n&apos;a pas été arrêté</translation>
    </message>
</context>
<context>
    <name>ProcessGuard</name>
    <message>
        <source>Click Yes to continue after the process is stopped.
Click No to continue without stopping the process.</source>
        <translation>Cliquez sur «&#xa0;Oui&#xa0;» pour arrêter le processus et continuer.
Cliquez sur «&#xa0;Non&#xa0;» pour continuer sans arrêter le processus.</translation>
    </message>
    <message>
        <source>Click Yes to continue after the processes are stopped.
Click No to continue without stopping the processes.</source>
        <translation>Cliquez sur «&#xa0;Oui&#xa0;» pour arrêter les processus et continuer.
Cliquez sur «&#xa0;Non&#xa0;» pour continuer sans arrêter les processus.</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1 est en cours d&apos;exécution et doit être arrêté avant la configuration du complément du lanceur NVX.</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1 sont en cours d&apos;exécution et doivent être arrêtés avant la configuration du complément du lanceur NVX.</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before continuing.</source>
        <translation>%1 est en cours d&apos;exécution et doit être arrêté avant de continuer.</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before continuing.</source>
        <translation>%1 sont en cours d&apos;exécution et doivent être arrêtés avant de continuer.</translation>
    </message>
    <message>
        <source>CAD Launcher Installation</source>
        <translation>Installation des lanceurs CAO</translation>
    </message>
    <message>
        <source>Velmora %1 Installation</source>
        <translation>Installation de Velmora %1</translation>
    </message>
</context>
<context>
    <name>ProductFiles</name>
    <message>
        <source>%1 does not belong to administrators and may lead elsewhere; this is left unchanged: %2</source>
        <translation>%1 n&apos;appartient pas aux administrateurs et peut mener ailleurs, ceci reste inchangé&#xa0;: %2</translation>
    </message>
    <message>
        <source>Unable to limit write access to this folder to administrators: %1</source>
        <translation>Impossible de limiter aux administrateurs l&apos;accès en écriture à ce dossier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Unable to take this folder over from the user who created it: %1</source>
        <translation>Impossible de reprendre ce dossier à l&apos;utilisateur qui l&apos;a créé&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ProductRegistry</name>
    <message>
        <source>Updating language registry uninstall </source>
        <translation>Mise à jour de la langue de désinstallation dans le Registre </translation>
    </message>
    <message>
        <source>Updating language registry uninstall currently is:</source>
        <translation>Langue de désinstallation dans le Registre, valeur actuelle&#xa0;:</translation>
    </message>
    <message>
        <source>Updating language registry uninstall locale=</source>
        <translation>Langue de désinstallation dans le Registre, paramètres régionaux=</translation>
    </message>
    <message>
        <source>Updating language registry uninstall set to:</source>
        <translation>Langue de désinstallation dans le Registre, nouvelle valeur&#xa0;:</translation>
    </message>
    <message>
        <source>Registry paths</source>
        <translation>Chemins du Registre</translation>
    </message>
</context>
<context>
    <name>ServerService</name>
    <message>
        <source>Unable to find server executable; Check_ Installation Directory path:</source>
        <translation>Impossible de trouver le programme du serveur&#xa0;; vérifiez le chemin du dossier d&apos;installation&#xa0;:</translation>
    </message>
    <message>
        <source>Unable to install the server</source>
        <translation>Impossible d&apos;installer le serveur</translation>
    </message>
    <message>
        <source>Server Error</source>
        <translation>Erreur de serveur</translation>
    </message>
    <message>
        <source>Manages communication between NVX components.</source>
        <translation>Gère la communication entre les composants de NVX.</translation>
    </message>
    <message>
        <source>uninstallServer </source>
        <translation>uninstallServer </translation>
    </message>
    <message>
        <source>uninstallServer - could not stop service</source>
        <translation>uninstallServer - impossible d&apos;arrêter le service</translation>
    </message>
    <message>
        <source>uninstallServer - service was not installed</source>
        <translation>uninstallServer - le service n&apos;était pas installé</translation>
    </message>
    <message>
        <source>uninstallServer - could not uninstall service</source>
        <translation>uninstallServer - impossible de désinstaller le service</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Desktop=</source>
        <translation>Bureau=</translation>
    </message>
    <message>
        <source>The shared desktop folder was not found; no shortcut was created</source>
        <translation>Il n&apos;existe pas de dossier Bureau pour tous les utilisateurs, aucun raccourci n&apos;y est créé</translation>
    </message>
    <message>
        <source>Unable to remove %1</source>
        <translation>Impossible de supprimer %1</translation>
    </message>
    <message>
        <source>This text is too long for a shortcut: %1</source>
        <translation>Ce texte est trop long pour un raccourci&#xa0;: %1</translation>
    </message>
    <message>
        <source>Create shortcut </source>
        <translation>Création du raccourci </translation>
    </message>
</context>
<context>
    <name>SpaceClaimLauncher</name>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>Copie&#xa0;: %1 vers&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Stopping Services</source>
        <translation>Arrêt des services</translation>
    </message>
</context>
<context>
    <name>TamselLauncher</name>
    <message>
        <source>Open failed:</source>
        <translation>Échec de l&apos;ouverture&#xa0;:</translation>
    </message>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>Copie&#xa0;: %1 vers&#xa0;: %2</translation>
    </message>
    <message>
        <source>Tamsel Addin</source>
        <translation>Complément Tamsel</translation>
    </message>
    <message>
        <source>Removing:</source>
        <translation>Suppression&#xa0;:</translation>
    </message>
</context>
<context>
    <name>TranslationAnswer</name>
    <message>
        <source>it is for the language %1</source>
        <translation>le fichier est destiné à la langue %1</translation>
    </message>
    <message>
        <source>the values such as %1 differ between &quot;%2&quot; and its translation &quot;%3&quot;</source>
        <translation>les valeurs telles que %1 diffèrent entre «&#xa0;%2&#xa0;» et la traduction «&#xa0;%3&#xa0;»</translation>
    </message>
    <message>
        <source>it has %1 finished texts, and the existing file has %2</source>
        <translation>textes terminés&#xa0;: %1, dans le fichier existant&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>UserFiles</name>
    <message>
        <source>Remove: </source>
        <translation>Suppression&#xa0;: </translation>
    </message>
    <message>
        <source>Remove: Report .pyc files</source>
        <translation>Suppression&#xa0;: fichiers .pyc des rapports</translation>
    </message>
    <message>
        <source> Sorvane</source>
        <translation> de Sorvane</translation>
    </message>
</context>
<context>
    <name>ViewerConfiguration</name>
    <message>
        <source>Running NVX 3D-ViewerConfig.</source>
        <translation>Exécution de NVX 3D-ViewerConfig.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation>Chinois (simplifié)</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation>Chinois (traditionnel)</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Allemand</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonais</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italien</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coréen</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russe</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>This wizard will configure Velmora %1 %2 for your system.</source>
        <translation>Cet assistant va configurer Velmora %1 %2 pour votre système.</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Changer de langue</translation>
    </message>
</context>
<context>
    <name>cfg_utilitys</name>
    <message>
        <source>Program startup - %1 DIR== %2</source>
        <translation>Démarrage du programme - %1 DIR== %2</translation>
    </message>
    <message>
        <source>NVX Configuration Utility</source>
        <translation>Utilitaire de configuration NVX</translation>
    </message>
    <message>
        <source>Processing </source>
        <translation>Traitement de </translation>
    </message>
    <message>
        <source> has not changed</source>
        <translation> n&apos;a pas été modifié</translation>
    </message>
    <message>
        <source> has changed, not removing</source>
        <translation> a été modifié et n&apos;est pas supprimé</translation>
    </message>
    <message>
        <source>Creating </source>
        <translation>Création de </translation>
    </message>
    <message>
        <source>Unable to create %1</source>
        <translation>Impossible de créer %1</translation>
    </message>
    <message>
        <source>Language </source>
        <translation>Langue&#xa0;: </translation>
    </message>
    <message>
        <source>No Language locale Specified</source>
        <translation>Aucune langue spécifiée</translation>
    </message>
    <message>
        <source>Install Language: </source>
        <translation>Langue d&apos;installation&#xa0;: </translation>
    </message>
    <message>
        <source>ChangeLanguage = </source>
        <translation>Changement de langue = </translation>
    </message>
    <message>
        <source>COPY:%1 to %2</source>
        <translation>COPIE&#xa0;: %1 vers %2</translation>
    </message>
    <message>
        <source>Remove:</source>
        <translation>Suppression&#xa0;:</translation>
    </message>
    <message>
        <source>zorv :</source>
        <translation>zorv :</translation>
    </message>
    <message>
        <source>Beginning </source>
        <translation>Début&#xa0;: </translation>
    </message>
    <message>
        <source>The installation or update is complete. Click finish to continue.</source>
        <translation>L&apos;installation ou la mise à jour est terminée. Cliquez sur «&#xa0;Terminer&#xa0;» pour continuer.</translation>
    </message>
    <message>
        <source>Processors: %1, Cores per processor: %2</source>
        <translation>Processeurs&#xa0;: %1, cœurs par processeur&#xa0;: %2</translation>
    </message>
    <message>
        <source>Command Line:</source>
        <translation>Ligne de commande&#xa0;:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installation</translation>
    </message>
    <message>
        <source>UnInstall</source>
        <translation>Désinstallation</translation>
    </message>
    <message>
        <source>Found </source>
        <translation>Trouvé&#xa0;: </translation>
    </message>
    <message>
        <source> Success</source>
        <translation> - réussite</translation>
    </message>
    <message>
        <source> Failed</source>
        <translation> - échec</translation>
    </message>
    <message>
        <source>Command line arguments</source>
        <translation>Arguments de ligne de commande</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora %1 %2 DIR=</source>
        <translation>Validation du chemin d&apos;installation de Velmora %1 %2 DIR=</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora NVX %1 DIR=</source>
        <translation>Validation du chemin d&apos;installation de Velmora NVX %1 DIR=</translation>
    </message>
    <message>
        <source>Install Path OK </source>
        <translation>Chemin d&apos;installation correct&#xa0;: </translation>
    </message>
    <message>
        <source>user dir=</source>
        <translation>dossier utilisateur=</translation>
    </message>
    <message>
        <source>Program startup - Install path is empty or is invalid, resetting to:</source>
        <translation>Démarrage du programme - Chemin d&apos;installation vide ou non valide, remplacé par&#xa0;:</translation>
    </message>
    <message>
        <source>Removing installation path environment variables.</source>
        <translation>Suppression des variables d&apos;environnement du chemin d&apos;installation&#xa0;:</translation>
    </message>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; %1 is not set</source>
        <translation>Le dossier ne peut pas être représenté dans la page de codes du système, la variable %1 n&apos;est pas définie</translation>
    </message>
    <message>
        <source>Searching for CAD Packages</source>
        <translation>Recherche des logiciels de CAO</translation>
    </message>
    <message>
        <source>Finished searching for CAD Packages</source>
        <translation>Recherche des logiciels de CAO terminée</translation>
    </message>
    <message>
        <source>Another run of this program is in progress on this machine. This one continues when that has ended, after %1 minutes at the latest.</source>
        <translation>Ce programme est déjà en cours d&apos;exécution sur cet ordinateur. Cette exécution reprendra dès que l&apos;autre sera terminée, au plus tard après %1 minutes.</translation>
    </message>
    <message>
        <source>Another run was in progress; this one has waited for its end</source>
        <translation>Une autre exécution était en cours&#xa0;; celle-ci a attendu sa fin</translation>
    </message>
    <message>
        <source>Another run has been in progress for %1 minutes; this one no longer waits for its end</source>
        <translation>Une autre exécution est en cours depuis %1 minutes&#xa0;; celle-ci n&apos;attend plus sa fin</translation>
    </message>
    <message>
        <source>Unable to check whether another run is in progress; a program without administrator rights may have prevented it</source>
        <translation>Impossible de vérifier si une autre exécution est en cours&#xa0;; un programme sans droits d&apos;administrateur l&apos;a peut-être empêché</translation>
    </message>
    <message>
        <source>%1 is not used; it is not an ordinary file of at most %2 KiB</source>
        <translation>%1 n&apos;est pas utilisé&#xa0;; ce n&apos;est pas un fichier ordinaire de %2&#xa0;Kio au plus</translation>
    </message>
    <message>
        <source>%1 is being configured. If you sign out now, it stays incomplete.</source>
        <translation>%1 est en cours de configuration. Si vous vous déconnectez maintenant, elle restera incomplète.</translation>
    </message>
</context>
<context>
    <name>util::util_localization_tool</name>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 est endommagé</translation>
    </message>
    <message>
        <source>No source folder was found; nothing is translated</source>
        <translation>Aucun dossier de code source, rien n&apos;est traduit</translation>
    </message>
    <message>
        <source>%1: %2 texts to translate</source>
        <translation>%1&#xa0;: textes à traduire&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 texts to translate in %2 files</source>
        <translation>Textes à traduire&#xa0;: %1, fichiers&#xa0;: %2</translation>
    </message>
    <message>
        <source>localization.xml has no full path of a folder with lupdate and lrelease; nothing is updated or compiled</source>
        <translation>localization.xml n&apos;indique pas le chemin complet d&apos;un dossier contenant lupdate et lrelease, rien n&apos;est mis à jour ni compilé</translation>
    </message>
    <message>
        <source>%1: %2 texts finished, %3 open; %4 files refused</source>
        <translation>%1&#xa0;: textes terminés&#xa0;: %2, en attente&#xa0;: %3, fichiers refusés&#xa0;: %4</translation>
    </message>
</context>
</TS>
