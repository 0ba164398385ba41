<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>ArchiveComponents</name>
    <message>
        <source> Tutorials</source>
        <translation> der Tutorials</translation>
    </message>
    <message>
        <source>Installing Tutorials</source>
        <translation>Tutorials werden installiert</translation>
    </message>
    <message>
        <source> Python (locally for NVX)</source>
        <translation> von Python (lokal für NVX)</translation>
    </message>
    <message>
        <source>Installing Python</source>
        <translation>Python wird installiert</translation>
    </message>
    <message>
        <source> Mertle Server</source>
        <translation> von Mertle Server</translation>
    </message>
    <message>
        <source>No translators folder is set; the Mertle Server is not installed or removed</source>
        <translation>Kein Konverterordner vorhanden, Mertle Server bleibt unverändert</translation>
    </message>
    <message>
        <source>Installing Mertle Server</source>
        <translation>Mertle Server wird installiert</translation>
    </message>
</context>
<context>
    <name>BrevantLauncher</name>
    <message>
        <source>Configure Brevant</source>
        <translation>Brevant wird konfiguriert</translation>
    </message>
</context>
<context>
    <name>ClassWizard</name>
    <message>
        <source>%1 %2 Configuration Wizard</source>
        <translation>Konfigurationsassistent für %1 %2</translation>
    </message>
    <message>
        <source>Program exiting</source>
        <translation>Das Programm wird beendet</translation>
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
        <translation>Gültige Befehlszeilenargumente für NVX:
-I Installationsmodus (Standard)
-U Deinstallationsmodus
-STop Dienste beenden
-S Stiller Modus
-L Sprache Englisch (USA) installieren
-Lxxx Sprache xxx installieren
-E Installationssprache aus %temp%NVXENv.txt lesen

 Möchten Sie fortfahren?
</translation>
    </message>
</context>
<context>
    <name>CommandRunner</name>
    <message>
        <source>The program could not be started.</source>
        <translation>Das Programm konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The program was still running after %1 ms and has been ended.</source>
        <translation>Das Programm lief nach %1 ms noch und wurde beendet.</translation>
    </message>
    <message>
        <source>The program crashed.</source>
        <translation>Das Programm ist abgestürzt.</translation>
    </message>
    <message>
        <source>The name of this folder cannot be written in the command interpreter&apos;s code page; it is not removed: %1</source>
        <translation>Der Name dieses Ordners lässt sich in der Codepage des Befehlsinterpreters nicht darstellen, der Ordner wird nicht entfernt: %1</translation>
    </message>
    <message>
        <source>Unable to create %1; this folder is not removed: %2</source>
        <translation>%1 konnte nicht erstellt werden, dieser Ordner wird nicht entfernt: %2</translation>
    </message>
    <message>
        <source>The name of this folder contains a character that ends or changes a command; it is not removed: %1</source>
        <translation>Der Name dieses Ordners enthält ein Zeichen, das einen Befehl beendet oder verändert, der Ordner wird nicht entfernt: %1</translation>
    </message>
</context>
<context>
    <name>ConclusionPage</name>
    <message>
        <source>Conclusion </source>
        <translation>Abschluss </translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>ContextHelp</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>CreoLauncher</name>
    <message>
        <source> Creo Remove:</source>
        <translation> Creo – Entfernen:</translation>
    </message>
    <message>
        <source>Removing Ostrade from:</source>
        <translation>Ostrade wird entfernt aus:</translation>
    </message>
    <message>
        <source>Writing </source>
        <translation>Schreiben von </translation>
    </message>
    <message>
        <source>Creating  </source>
        <translation>Erstellen von  </translation>
    </message>
    <message>
        <source>Ostrade %1 already exists, do nothing</source>
        <translation>Ostrade %1 ist bereits vorhanden, keine Änderung</translation>
    </message>
</context>
<context>
    <name>Detection</name>
    <message>
        <source>%1 Install Dir:%2</source>
        <translation>Installationsordner von %1: %2</translation>
    </message>
    <message>
        <source>Using %1 Install Dir:%2</source>
        <translation>Verwendet wird %1, Installationsordner: %2</translation>
    </message>
    <message>
        <source>%1 Product Code =%2</source>
        <translation>Produktcode von %1 =%2</translation>
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
        <translation>CAD-Startprogramme </translation>
    </message>
    <message>
        <source>NVX launchers will be installed for the CAD systems that are checked.</source>
        <translation>Für die ausgewählten CAD-Systeme werden NVX-Startprogramme installiert.</translation>
    </message>
</context>
<context>
    <name>FileAssociations</name>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; no files are associated with the product: %1</source>
        <translation>Der Ordner lässt sich in der Codepage des Systems nicht darstellen, dem Produkt werden keine Dateien zugeordnet: %1</translation>
    </message>
    <message>
        <source>Create file associations</source>
        <translation>Dateizuordnungen werden erstellt</translation>
    </message>
    <message>
        <source>The install folder is unknown; no files are associated</source>
        <translation>Der Installationsordner ist nicht bekannt, es werden keine Dateien zugeordnet</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>The install folder&apos;s path cannot be written in the system&apos;s code page; the launcher is not added to %1</source>
        <translation>Der Name des Installationsordners lässt sich in der Codepage des Systems nicht darstellen, das Startprogramm wird nicht eingetragen in %1</translation>
    </message>
</context>
<context>
    <name>Localization::TranslationJob</name>
    <message>
        <source>%1 is a link, which is not followed</source>
        <translation>%1 ist eine Verknüpfung, der nicht gefolgt wird</translation>
    </message>
    <message>
        <source>%1 has more than %2 files; the others are not downloaded</source>
        <translation>%1 enthält mehr als %2 Dateien, die übrigen werden nicht heruntergeladen</translation>
    </message>
    <message>
        <source>%1 is refused: %2</source>
        <translation>%1 wird abgelehnt: %2</translation>
    </message>
</context>
<context>
    <name>MaterialDatabase</name>
    <message>
        <source>Checking material database</source>
        <translation>Materialdatenbank wird geprüft</translation>
    </message>
    <message>
        <source>Installation error matprop.mdb does not exist?</source>
        <translation>Installationsfehler: matprop.mdb nicht vorhanden?</translation>
    </message>
    <message>
        <source>Installation error: </source>
        <translation>Installationsfehler: </translation>
    </message>
    <message>
        <source> does not exist.</source>
        <translation> ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>Copy: </source>
        <translation>Kopieren: </translation>
    </message>
    <message>
        <source> to: </source>
        <translation> nach: </translation>
    </message>
    <message>
        <source>Remove: </source>
        <translation>Entfernen: </translation>
    </message>
</context>
<context>
    <name>Nvx::Wizard::ProgressList</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
</context>
<context>
    <name>NxLauncher</name>
    <message>
        <source>Copying %1 to %2</source>
        <translation>Kopieren von %1 nach %2</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Überprüfen:</translation>
    </message>
    <message>
        <source>Creating</source>
        <translation>Erstellen:</translation>
    </message>
</context>
<context>
    <name>ParallelConfiguration</name>
    <message>
        <source>Created NVX2 default configuration: %1</source>
        <translation>NVX2-Standardkonfiguration erstellt: %1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 default configuration: %1</source>
        <translation>NVX2-Standardkonfiguration konnte nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>Created NVX2 analyze folder: %1</source>
        <translation>NVX2-Analyseordner erstellt: %1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 analyze folder: %1</source>
        <translation>NVX2-Analyseordner konnte nicht erstellt werden: %1</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>%1 terminated</source>
        <translation>%1 wurde beendet</translation>
    </message>
    <message>
        <source>%1 was not terminated</source>
        <translation>%1 konnte nicht beendet werden</translation>
    </message>
</context>
<context>
    <name>ProcessGuard</name>
    <message>
        <source>Click Yes to continue after the process is stopped.
Click No to continue without stopping the process.</source>
        <translation>Klicken Sie auf „Ja“, um den Prozess zu beenden und fortzufahren.
Klicken Sie auf „Nein“, um fortzufahren, ohne den Prozess zu beenden.</translation>
    </message>
    <message>
        <source>Click Yes to continue after the processes are stopped.
Click No to continue without stopping the processes.</source>
        <translation>Klicken Sie auf „Ja“, um die Prozesse zu beenden und fortzufahren.
Klicken Sie auf „Nein“, um fortzufahren, ohne die Prozesse zu beenden.</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1 wird ausgeführt und sollte beendet werden, bevor das Add-In des NVX-Startprogramms konfiguriert wird.</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1 werden ausgeführt und sollten beendet werden, bevor das Add-In des NVX-Startprogramms konfiguriert wird.</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before continuing.</source>
        <translation>%1 wird ausgeführt und sollte beendet werden, bevor Sie fortfahren.</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before continuing.</source>
        <translation>%1 werden ausgeführt und sollten beendet werden, bevor Sie fortfahren.</translation>
    </message>
    <message>
        <source>CAD Launcher Installation</source>
        <translation>Installation der CAD-Startprogramme</translation>
    </message>
    <message>
        <source>Velmora %1 Installation</source>
        <translation>Installation von Velmora %1</translation>
    </message>
</context>
<context>
    <name>ProductFiles</name>
    <message>
        <source>%1 does not belong to administrators and may lead elsewhere; this is left unchanged: %2</source>
        <translation>%1 gehört keinem Administrator und kann an einen anderen Ort führen, dies bleibt unverändert: %2</translation>
    </message>
    <message>
        <source>Unable to limit write access to this folder to administrators: %1</source>
        <translation>Der Schreibzugriff auf diesen Ordner konnte nicht auf Administratoren beschränkt werden: %1</translation>
    </message>
    <message>
        <source>Unable to take this folder over from the user who created it: %1</source>
        <translation>Dieser Ordner konnte nicht von dem Benutzer übernommen werden, der ihn erstellt hat: %1</translation>
    </message>
</context>
<context>
    <name>ProductRegistry</name>
    <message>
        <source>Updating language registry uninstall </source>
        <translation>Sprache im Deinstallationseintrag der Registrierung wird aktualisiert </translation>
    </message>
    <message>
        <source>Updating language registry uninstall currently is:</source>
        <translation>Sprache im Deinstallationseintrag der Registrierung, bisher:</translation>
    </message>
    <message>
        <source>Updating language registry uninstall locale=</source>
        <translation>Sprache im Deinstallationseintrag der Registrierung, Gebietsschema=</translation>
    </message>
    <message>
        <source>Updating language registry uninstall set to:</source>
        <translation>Sprache im Deinstallationseintrag der Registrierung, gesetzt auf:</translation>
    </message>
    <message>
        <source>Registry paths</source>
        <translation>Registrierungspfade</translation>
    </message>
</context>
<context>
    <name>ServerService</name>
    <message>
        <source>Unable to find server executable; Check_ Installation Directory path:</source>
        <translation>Serverprogramm nicht gefunden; prüfen Sie den Pfad des Installationsordners:</translation>
    </message>
    <message>
        <source>Unable to install the server</source>
        <translation>Der Server konnte nicht installiert werden</translation>
    </message>
    <message>
        <source>Server Error</source>
        <translation>Serverfehler</translation>
    </message>
    <message>
        <source>Manages communication between NVX components.</source>
        <translation>Verwaltet die Kommunikation zwischen den NVX-Komponenten.</translation>
    </message>
    <message>
        <source>uninstallServer </source>
        <translation>uninstallServer </translation>
    </message>
    <message>
        <source>uninstallServer - could not stop service</source>
        <translation>uninstallServer - Dienst konnte nicht beendet werden</translation>
    </message>
    <message>
        <source>uninstallServer - service was not installed</source>
        <translation>uninstallServer - Dienst war nicht installiert</translation>
    </message>
    <message>
        <source>uninstallServer - could not uninstall service</source>
        <translation>uninstallServer - Dienst konnte nicht deinstalliert werden</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Desktop=</source>
        <translation>Desktop=</translation>
    </message>
    <message>
        <source>The shared desktop folder was not found; no shortcut was created</source>
        <translation>Es gibt keinen Desktopordner für alle Benutzer, dort wird keine Verknüpfung angelegt</translation>
    </message>
    <message>
        <source>Unable to remove %1</source>
        <translation>%1 konnte nicht entfernt werden</translation>
    </message>
    <message>
        <source>This text is too long for a shortcut: %1</source>
        <translation>Dieser Text ist für eine Verknüpfung zu lang: %1</translation>
    </message>
    <message>
        <source>Create shortcut </source>
        <translation>Verknüpfung erstellen: </translation>
    </message>
</context>
<context>
    <name>SpaceClaimLauncher</name>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>Kopieren: %1 nach: %2</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Stopping Services</source>
        <translation>Dienste werden beendet</translation>
    </message>
</context>
<context>
    <name>TamselLauncher</name>
    <message>
        <source>Open failed:</source>
        <translation>Öffnen fehlgeschlagen:</translation>
    </message>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>Kopieren: %1 nach: %2</translation>
    </message>
    <message>
        <source>Tamsel Addin</source>
        <translation>Tamsel-Add-In</translation>
    </message>
    <message>
        <source>Removing:</source>
        <translation>Entfernen:</translation>
    </message>
</context>
<context>
    <name>TranslationAnswer</name>
    <message>
        <source>it is for the language %1</source>
        <translation>Die Datei ist für die Sprache %1 bestimmt</translation>
    </message>
    <message>
        <source>the values such as %1 differ between &quot;%2&quot; and its translation &quot;%3&quot;</source>
        <translation>Werte wie %1 stimmen in „%2“ und der Übersetzung „%3“ nicht überein</translation>
    </message>
    <message>
        <source>it has %1 finished texts, and the existing file has %2</source>
        <translation>Fertige Texte: %1, in der vorhandenen Datei: %2</translation>
    </message>
</context>
<context>
    <name>UserFiles</name>
    <message>
        <source>Remove: </source>
        <translation>Entfernen: </translation>
    </message>
    <message>
        <source>Remove: Report .pyc files</source>
        <translation>Entfernen: .pyc-Dateien der Berichte</translation>
    </message>
    <message>
        <source> Sorvane</source>
        <translation> von Sorvane</translation>
    </message>
</context>
<context>
    <name>ViewerConfiguration</name>
    <message>
        <source>Running NVX 3D-ViewerConfig.</source>
        <translation>NVX 3D-ViewerConfig wird ausgeführt.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation>Chinesisch (vereinfacht)</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation>Chinesisch (traditionell)</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italienisch</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russisch</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>This wizard will configure Velmora %1 %2 for your system.</source>
        <translation>Dieser Assistent konfiguriert Velmora %1 %2 für Ihr System.</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Sprache ändern</translation>
    </message>
</context>
<context>
    <name>cfg_utilitys</name>
    <message>
        <source>Program startup - %1 DIR== %2</source>
        <translation>Programmstart - %1 DIR== %2</translation>
    </message>
    <message>
        <source>NVX Configuration Utility</source>
        <translation>NVX-Konfigurationsprogramm</translation>
    </message>
    <message>
        <source>Processing </source>
        <translation>Verarbeiten von </translation>
    </message>
    <message>
        <source> has not changed</source>
        <translation> wurde nicht geändert</translation>
    </message>
    <message>
        <source> has changed, not removing</source>
        <translation> wurde geändert und wird nicht entfernt</translation>
    </message>
    <message>
        <source>Creating </source>
        <translation>Erstellen von </translation>
    </message>
    <message>
        <source>Unable to create %1</source>
        <translation>%1 konnte nicht erstellt werden</translation>
    </message>
    <message>
        <source>Language </source>
        <translation>Sprache: </translation>
    </message>
    <message>
        <source>No Language locale Specified</source>
        <translation>Keine Sprache angegeben</translation>
    </message>
    <message>
        <source>Install Language: </source>
        <translation>Installationssprache: </translation>
    </message>
    <message>
        <source>ChangeLanguage = </source>
        <translation>Sprachwechsel = </translation>
    </message>
    <message>
        <source>COPY:%1 to %2</source>
        <translation>KOPIEREN: %1 nach %2</translation>
    </message>
    <message>
        <source>Remove:</source>
        <translation>Entfernen:</translation>
    </message>
    <message>
        <source>zorv :</source>
        <translation>zorv :</translation>
    </message>
    <message>
        <source>Beginning </source>
        <translation>Beginn: </translation>
    </message>
    <message>
        <source>The installation or update is complete. Click finish to continue.</source>
        <translation>Die Installation oder Aktualisierung ist abgeschlossen. Klicken Sie auf „Abschließen“, um fortzufahren.</translation>
    </message>
    <message>
        <source>Processors: %1, Cores per processor: %2</source>
        <translation>Prozessoren: %1, Kerne pro Prozessor: %2</translation>
    </message>
    <message>
        <source>Command Line:</source>
        <translation>Befehlszeile:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installation</translation>
    </message>
    <message>
        <source>UnInstall</source>
        <translation>Deinstallation</translation>
    </message>
    <message>
        <source>Found </source>
        <translation>Gefunden: </translation>
    </message>
    <message>
        <source> Success</source>
        <translation> erfolgreich</translation>
    </message>
    <message>
        <source> Failed</source>
        <translation> fehlgeschlagen</translation>
    </message>
    <message>
        <source>Command line arguments</source>
        <translation>Befehlszeilenargumente</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora %1 %2 DIR=</source>
        <translation>Überprüfen des Installationspfads von Velmora %1 %2 DIR=</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora NVX %1 DIR=</source>
        <translation>Überprüfen des Installationspfads von Velmora NVX %1 DIR=</translation>
    </message>
    <message>
        <source>Install Path OK </source>
        <translation>Installationspfad in Ordnung: </translation>
    </message>
    <message>
        <source>user dir=</source>
        <translation>Benutzerordner=</translation>
    </message>
    <message>
        <source>Program startup - Install path is empty or is invalid, resetting to:</source>
        <translation>Programmstart - Installationspfad ist leer oder ungültig, wird zurückgesetzt auf:</translation>
    </message>
    <message>
        <source>Removing installation path environment variables.</source>
        <translation>Umgebungsvariablen des Installationspfads werden entfernt:</translation>
    </message>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; %1 is not set</source>
        <translation>Der Ordner lässt sich in der Codepage des Systems nicht darstellen, %1 wird nicht gesetzt</translation>
    </message>
    <message>
        <source>Searching for CAD Packages</source>
        <translation>CAD-Pakete werden gesucht</translation>
    </message>
    <message>
        <source>Finished searching for CAD Packages</source>
        <translation>Suche nach CAD-Paketen abgeschlossen</translation>
    </message>
    <message>
        <source>Another run of this program is in progress on this machine. This one continues when that has ended, after %1 minutes at the latest.</source>
        <translation>Auf diesem Computer wird dieses Programm bereits ausgeführt. Dieser Lauf wird fortgesetzt, sobald der andere beendet ist, spätestens nach %1 Minuten.</translation>
    </message>
    <message>
        <source>Another run was in progress; this one has waited for its end</source>
        <translation>Ein anderer Lauf war im Gange; dieser hat auf sein Ende gewartet</translation>
    </message>
    <message>
        <source>Another run has been in progress for %1 minutes; this one no longer waits for its end</source>
        <translation>Ein anderer Lauf ist seit %1 Minuten im Gange; dieser wartet nicht länger auf sein Ende</translation>
    </message>
    <message>
        <source>Unable to check whether another run is in progress; a program without administrator rights may have prevented it</source>
        <translation>Es lässt sich nicht prüfen, ob ein anderer Lauf im Gange ist; möglicherweise hat ein Programm ohne Administratorrechte das verhindert</translation>
    </message>
    <message>
        <source>%1 is not used; it is not an ordinary file of at most %2 KiB</source>
        <translation>%1 wird nicht verwendet; es ist keine gewöhnliche Datei von höchstens %2 KiB</translation>
    </message>
    <message>
        <source>%1 is being configured. If you sign out now, it stays incomplete.</source>
        <translation>%1 wird konfiguriert. Wenn Sie sich jetzt abmelden, bleibt es unvollständig.</translation>
    </message>
</context>
<context>
    <name>util::util_localization_tool</name>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 ist beschädigt</translation>
    </message>
    <message>
        <source>No source folder was found; nothing is translated</source>
        <translation>Kein Quellcodeordner vorhanden, es wird nichts übersetzt</translation>
    </message>
    <message>
        <source>%1: %2 texts to translate</source>
        <translation>%1: zu übersetzende Texte: %2</translation>
    </message>
    <message>
        <source>%1 texts to translate in %2 files</source>
        <translation>Zu übersetzende Texte: %1, Dateien: %2</translation>
    </message>
    <message>
        <source>localization.xml has no full path of a folder with lupdate and lrelease; nothing is updated or compiled</source>
        <translation>localization.xml enthält keinen vollständigen Pfad eines Ordners mit lupdate und lrelease, es wird nichts aktualisiert oder kompiliert</translation>
    </message>
    <message>
        <source>%1: %2 texts finished, %3 open; %4 files refused</source>
        <translation>%1: fertige Texte: %2, offene: %3, abgelehnte Dateien: %4</translation>
    </message>
</context>
</TS>
