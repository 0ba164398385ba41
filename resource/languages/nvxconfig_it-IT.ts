<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>ArchiveComponents</name>
    <message>
        <source> Tutorials</source>
        <translation> delle esercitazioni</translation>
    </message>
    <message>
        <source>Installing Tutorials</source>
        <translation>Installazione delle esercitazioni in corso</translation>
    </message>
    <message>
        <source> Python (locally for NVX)</source>
        <translation> di Python (locale, per NVX)</translation>
    </message>
    <message>
        <source>Installing Python</source>
        <translation>Installazione di Python in corso</translation>
    </message>
    <message>
        <source> Mertle Server</source>
        <translation> di Mertle Server</translation>
    </message>
    <message>
        <source>No translators folder is set; the Mertle Server is not installed or removed</source>
        <translation>Nessuna cartella dei traduttori, Mertle Server resta invariato</translation>
    </message>
    <message>
        <source>Installing Mertle Server</source>
        <translation>Installazione di Mertle Server in corso</translation>
    </message>
</context>
<context>
    <name>BrevantLauncher</name>
    <message>
        <source>Configure Brevant</source>
        <translation>Configurazione di Brevant</translation>
    </message>
</context>
<context>
    <name>ClassWizard</name>
    <message>
        <source>%1 %2 Configuration Wizard</source>
        <translation>Configurazione guidata di %1 %2</translation>
    </message>
    <message>
        <source>Program exiting</source>
        <translation>Chiusura del programma</translation>
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
        <translation>Gli argomenti della riga di comando validi per NVX sono:
-I Modalità di installazione (predefinita)
-U Modalità di disinstallazione
-STop Arresta i servizi
-S Modalità silenziosa
-L Installa la lingua inglese (Stati Uniti)
-Lxxx Installa la lingua xxx
-E Cerca la lingua di installazione in %temp%NVXENv.txt

 Continuare?
</translation>
    </message>
</context>
<context>
    <name>CommandRunner</name>
    <message>
        <source>The program could not be started.</source>
        <translation>Impossibile avviare il programma.</translation>
    </message>
    <message>
        <source>The program was still running after %1 ms and has been ended.</source>
        <translation>Il programma era ancora in esecuzione dopo %1 ms ed è stato terminato.</translation>
    </message>
    <message>
        <source>The program crashed.</source>
        <translation>Il programma si è interrotto in modo anomalo.</translation>
    </message>
    <message>
        <source>The name of this folder cannot be written in the command interpreter&apos;s code page; it is not removed: %1</source>
        <translation>Il nome di questa cartella non può essere rappresentato nella tabella codici dell&apos;interprete dei comandi, la cartella non viene rimossa: %1</translation>
    </message>
    <message>
        <source>Unable to create %1; this folder is not removed: %2</source>
        <translation>Impossibile creare %1, questa cartella non viene rimossa: %2</translation>
    </message>
    <message>
        <source>The name of this folder contains a character that ends or changes a command; it is not removed: %1</source>
        <translation>Il nome di questa cartella contiene un carattere che termina o modifica un comando, la cartella non viene rimossa: %1</translation>
    </message>
</context>
<context>
    <name>ConclusionPage</name>
    <message>
        <source>Conclusion </source>
        <translation>Completamento </translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
</context>
<context>
    <name>ContextHelp</name>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
</context>
<context>
    <name>CreoLauncher</name>
    <message>
        <source> Creo Remove:</source>
        <translation> Creo - rimozione:</translation>
    </message>
    <message>
        <source>Removing Ostrade from:</source>
        <translation>Rimozione di Ostrade da:</translation>
    </message>
    <message>
        <source>Writing </source>
        <translation>Scrittura di </translation>
    </message>
    <message>
        <source>Creating  </source>
        <translation>Creazione di  </translation>
    </message>
    <message>
        <source>Ostrade %1 already exists, do nothing</source>
        <translation>Ostrade %1 esiste già, nessuna modifica</translation>
    </message>
</context>
<context>
    <name>Detection</name>
    <message>
        <source>%1 Install Dir:%2</source>
        <translation>Cartella di installazione di %1: %2</translation>
    </message>
    <message>
        <source>Using %1 Install Dir:%2</source>
        <translation>Utilizzo di %1, cartella di installazione: %2</translation>
    </message>
    <message>
        <source>%1 Product Code =%2</source>
        <translation>Codice prodotto di %1 =%2</translation>
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
        <translation>Programmi di avvio CAD </translation>
    </message>
    <message>
        <source>NVX launchers will be installed for the CAD systems that are checked.</source>
        <translation>I programmi di avvio di NVX verranno installati per i sistemi CAD selezionati.</translation>
    </message>
</context>
<context>
    <name>FileAssociations</name>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; no files are associated with the product: %1</source>
        <translation>La cartella non può essere rappresentata nella tabella codici del sistema, nessun file viene associato al prodotto: %1</translation>
    </message>
    <message>
        <source>Create file associations</source>
        <translation>Creazione delle associazioni di file</translation>
    </message>
    <message>
        <source>The install folder is unknown; no files are associated</source>
        <translation>La cartella di installazione non è nota, nessun file viene associato</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>The install folder&apos;s path cannot be written in the system&apos;s code page; the launcher is not added to %1</source>
        <translation>Il nome della cartella di installazione non può essere rappresentato nella tabella codici del sistema, il programma di avvio non viene inserito in %1</translation>
    </message>
</context>
<context>
    <name>Localization::TranslationJob</name>
    <message>
        <source>%1 is a link, which is not followed</source>
        <translation>%1 è un collegamento, che non viene seguito</translation>
    </message>
    <message>
        <source>%1 has more than %2 files; the others are not downloaded</source>
        <translation>%1 contiene più di %2 file, gli altri non vengono scaricati</translation>
    </message>
    <message>
        <source>%1 is refused: %2</source>
        <translation>%1 viene rifiutato: %2</translation>
    </message>
</context>
<context>
    <name>MaterialDatabase</name>
    <message>
        <source>Checking material database</source>
        <translation>Controllo del database dei materiali in corso</translation>
    </message>
    <message>
        <source>Installation error matprop.mdb does not exist?</source>
        <translation>Errore di installazione: matprop.mdb non esiste?</translation>
    </message>
    <message>
        <source>Installation error: </source>
        <translation>Errore di installazione: </translation>
    </message>
    <message>
        <source> does not exist.</source>
        <translation> non esiste.</translation>
    </message>
    <message>
        <source>Copy: </source>
        <translation>Copia: </translation>
    </message>
    <message>
        <source> to: </source>
        <translation> in: </translation>
    </message>
    <message>
        <source>Remove: </source>
        <translation>Rimozione: </translation>
    </message>
</context>
<context>
    <name>Nvx::Wizard::ProgressList</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleziona &amp;tutto</translation>
    </message>
</context>
<context>
    <name>NxLauncher</name>
    <message>
        <source>Copying %1 to %2</source>
        <translation>Copia di %1 in %2</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Controllo:</translation>
    </message>
    <message>
        <source>Creating</source>
        <translation>Creazione:</translation>
    </message>
</context>
<context>
    <name>ParallelConfiguration</name>
    <message>
        <source>Created NVX2 default configuration: %1</source>
        <translation>Configurazione NVX2 predefinita creata: %1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 default configuration: %1</source>
        <translation>Impossibile creare la configurazione NVX2 predefinita: %1</translation>
    </message>
    <message>
        <source>Created NVX2 analyze folder: %1</source>
        <translation>Cartella di analisi NVX2 creata: %1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 analyze folder: %1</source>
        <translation>Impossibile creare la cartella di analisi NVX2: %1</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>%1 terminated</source>
        <translation>%1 è stato terminato</translation>
    </message>
    <message>
        <source>%1 was not terminated</source>
        <translation>%1 non è stato terminato</translation>
    </message>
</context>
<context>
    <name>ProcessGuard</name>
    <message>
        <source>Click Yes to continue after the process is stopped.
Click No to continue without stopping the process.</source>
        <translation>Fare clic su Sì per arrestare il processo e continuare.
Fare clic su No per continuare senza arrestare il processo.</translation>
    </message>
    <message>
        <source>Click Yes to continue after the processes are stopped.
Click No to continue without stopping the processes.</source>
        <translation>Fare clic su Sì per arrestare i processi e continuare.
Fare clic su No per continuare senza arrestare i processi.</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1 è in esecuzione e deve essere arrestato prima di poter configurare il componente aggiuntivo del programma di avvio di NVX.</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1 sono in esecuzione e devono essere arrestati prima di poter configurare il componente aggiuntivo del programma di avvio di NVX.</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before continuing.</source>
        <translation>%1 è in esecuzione e deve essere arrestato prima di continuare.</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before continuing.</source>
        <translation>%1 sono in esecuzione e devono essere arrestati prima di continuare.</translation>
    </message>
    <message>
        <source>CAD Launcher Installation</source>
        <translation>Installazione dei programmi di avvio CAD</translation>
    </message>
    <message>
        <source>Velmora %1 Installation</source>
        <translation>Installazione di Velmora %1</translation>
    </message>
</context>
<context>
    <name>ProductFiles</name>
    <message>
        <source>%1 does not belong to administrators and may lead elsewhere; this is left unchanged: %2</source>
        <translation>%1 non appartiene agli amministratori e può condurre altrove, questo rimane invariato: %2</translation>
    </message>
    <message>
        <source>Unable to limit write access to this folder to administrators: %1</source>
        <translation>Impossibile limitare agli amministratori l&apos;accesso in scrittura a questa cartella: %1</translation>
    </message>
    <message>
        <source>Unable to take this folder over from the user who created it: %1</source>
        <translation>Impossibile acquisire questa cartella dall&apos;utente che l&apos;ha creata: %1</translation>
    </message>
</context>
<context>
    <name>ProductRegistry</name>
    <message>
        <source>Updating language registry uninstall </source>
        <translation>Aggiornamento della lingua di disinstallazione nel Registro di sistema </translation>
    </message>
    <message>
        <source>Updating language registry uninstall currently is:</source>
        <translation>Lingua di disinstallazione nel Registro di sistema, valore attuale:</translation>
    </message>
    <message>
        <source>Updating language registry uninstall locale=</source>
        <translation>Lingua di disinstallazione nel Registro di sistema, impostazioni locali=</translation>
    </message>
    <message>
        <source>Updating language registry uninstall set to:</source>
        <translation>Lingua di disinstallazione nel Registro di sistema, nuovo valore:</translation>
    </message>
    <message>
        <source>Registry paths</source>
        <translation>Percorsi del Registro di sistema</translation>
    </message>
</context>
<context>
    <name>ServerService</name>
    <message>
        <source>Unable to find server executable; Check_ Installation Directory path:</source>
        <translation>Impossibile trovare il programma del server; verificare il percorso della cartella di installazione:</translation>
    </message>
    <message>
        <source>Unable to install the server</source>
        <translation>Impossibile installare il server</translation>
    </message>
    <message>
        <source>Server Error</source>
        <translation>Errore del server</translation>
    </message>
    <message>
        <source>Manages communication between NVX components.</source>
        <translation>Gestisce la comunicazione tra i componenti di NVX.</translation>
    </message>
    <message>
        <source>uninstallServer </source>
        <translation>uninstallServer </translation>
    </message>
    <message>
        <source>uninstallServer - could not stop service</source>
        <translation>uninstallServer - impossibile arrestare il servizio</translation>
    </message>
    <message>
        <source>uninstallServer - service was not installed</source>
        <translation>uninstallServer - il servizio non era installato</translation>
    </message>
    <message>
        <source>uninstallServer - could not uninstall service</source>
        <translation>uninstallServer - impossibile disinstallare il servizio</translation>
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
        <translation>Non esiste una cartella Desktop per tutti gli utenti, non viene creato alcun collegamento</translation>
    </message>
    <message>
        <source>Unable to remove %1</source>
        <translation>Impossibile rimuovere %1</translation>
    </message>
    <message>
        <source>This text is too long for a shortcut: %1</source>
        <translation>Questo testo è troppo lungo per un collegamento: %1</translation>
    </message>
    <message>
        <source>Create shortcut </source>
        <translation>Creazione del collegamento </translation>
    </message>
</context>
<context>
    <name>SpaceClaimLauncher</name>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>Copia: %1 in: %2</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Stopping Services</source>
        <translation>Arresto dei servizi in corso</translation>
    </message>
</context>
<context>
    <name>TamselLauncher</name>
    <message>
        <source>Open failed:</source>
        <translation>Apertura non riuscita:</translation>
    </message>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>Copia: %1 in: %2</translation>
    </message>
    <message>
        <source>Tamsel Addin</source>
        <translation>Componente aggiuntivo di Tamsel</translation>
    </message>
    <message>
        <source>Removing:</source>
        <translation>Rimozione:</translation>
    </message>
</context>
<context>
    <name>TranslationAnswer</name>
    <message>
        <source>it is for the language %1</source>
        <translation>il file è per la lingua %1</translation>
    </message>
    <message>
        <source>the values such as %1 differ between &quot;%2&quot; and its translation &quot;%3&quot;</source>
        <translation>i valori come %1 differiscono tra “%2” e la traduzione “%3”</translation>
    </message>
    <message>
        <source>it has %1 finished texts, and the existing file has %2</source>
        <translation>testi completati: %1, nel file esistente: %2</translation>
    </message>
</context>
<context>
    <name>UserFiles</name>
    <message>
        <source>Remove: </source>
        <translation>Rimozione: </translation>
    </message>
    <message>
        <source>Remove: Report .pyc files</source>
        <translation>Rimozione: file .pyc dei report</translation>
    </message>
    <message>
        <source> Sorvane</source>
        <translation> di Sorvane</translation>
    </message>
</context>
<context>
    <name>ViewerConfiguration</name>
    <message>
        <source>Running NVX 3D-ViewerConfig.</source>
        <translation>Esecuzione di NVX 3D-ViewerConfig.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>English</source>
        <translation>Inglese</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation>Cinese (semplificato)</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation>Cinese (tradizionale)</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Tedesco</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francese</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Giapponese</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russo</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Benvenuti</translation>
    </message>
    <message>
        <source>This wizard will configure Velmora %1 %2 for your system.</source>
        <translation>Questa procedura guidata configurerà Velmora %1 %2 per il sistema in uso.</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Cambia lingua</translation>
    </message>
</context>
<context>
    <name>cfg_utilitys</name>
    <message>
        <source>Program startup - %1 DIR== %2</source>
        <translation>Avvio del programma - %1 DIR== %2</translation>
    </message>
    <message>
        <source>NVX Configuration Utility</source>
        <translation>Utilità di configurazione NVX</translation>
    </message>
    <message>
        <source>Processing </source>
        <translation>Elaborazione di </translation>
    </message>
    <message>
        <source> has not changed</source>
        <translation> non è stato modificato</translation>
    </message>
    <message>
        <source> has changed, not removing</source>
        <translation> è stato modificato e non viene rimosso</translation>
    </message>
    <message>
        <source>Creating </source>
        <translation>Creazione di </translation>
    </message>
    <message>
        <source>Unable to create %1</source>
        <translation>Impossibile creare %1</translation>
    </message>
    <message>
        <source>Language </source>
        <translation>Lingua: </translation>
    </message>
    <message>
        <source>No Language locale Specified</source>
        <translation>Nessuna lingua specificata</translation>
    </message>
    <message>
        <source>Install Language: </source>
        <translation>Lingua di installazione: </translation>
    </message>
    <message>
        <source>ChangeLanguage = </source>
        <translation>Cambio lingua = </translation>
    </message>
    <message>
        <source>COPY:%1 to %2</source>
        <translation>COPIA: %1 in %2</translation>
    </message>
    <message>
        <source>Remove:</source>
        <translation>Rimozione:</translation>
    </message>
    <message>
        <source>zorv :</source>
        <translation>zorv :</translation>
    </message>
    <message>
        <source>Beginning </source>
        <translation>Inizio: </translation>
    </message>
    <message>
        <source>The installation or update is complete. Click finish to continue.</source>
        <translation>L&apos;installazione o l&apos;aggiornamento è stato completato. Fare clic su Fine per continuare.</translation>
    </message>
    <message>
        <source>Processors: %1, Cores per processor: %2</source>
        <translation>Processori: %1, core per processore: %2</translation>
    </message>
    <message>
        <source>Command Line:</source>
        <translation>Riga di comando:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installazione</translation>
    </message>
    <message>
        <source>UnInstall</source>
        <translation>Disinstallazione</translation>
    </message>
    <message>
        <source>Found </source>
        <translation>Trovato: </translation>
    </message>
    <message>
        <source> Success</source>
        <translation> - operazione riuscita</translation>
    </message>
    <message>
        <source> Failed</source>
        <translation> - operazione non riuscita</translation>
    </message>
    <message>
        <source>Command line arguments</source>
        <translation>Argomenti della riga di comando</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora %1 %2 DIR=</source>
        <translation>Verifica del percorso di installazione di Velmora %1 %2 DIR=</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora NVX %1 DIR=</source>
        <translation>Verifica del percorso di installazione di Velmora NVX %1 DIR=</translation>
    </message>
    <message>
        <source>Install Path OK </source>
        <translation>Percorso di installazione corretto: </translation>
    </message>
    <message>
        <source>user dir=</source>
        <translation>cartella utente=</translation>
    </message>
    <message>
        <source>Program startup - Install path is empty or is invalid, resetting to:</source>
        <translation>Avvio del programma - Percorso di installazione vuoto o non valido, reimpostazione su:</translation>
    </message>
    <message>
        <source>Removing installation path environment variables.</source>
        <translation>Rimozione delle variabili di ambiente del percorso di installazione:</translation>
    </message>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; %1 is not set</source>
        <translation>La cartella non può essere rappresentata nella tabella codici del sistema, la variabile %1 non viene impostata</translation>
    </message>
    <message>
        <source>Searching for CAD Packages</source>
        <translation>Ricerca dei pacchetti CAD</translation>
    </message>
    <message>
        <source>Finished searching for CAD Packages</source>
        <translation>Ricerca dei pacchetti CAD completata</translation>
    </message>
    <message>
        <source>Another run of this program is in progress on this machine. This one continues when that has ended, after %1 minutes at the latest.</source>
        <translation>Questo programma è già in esecuzione su questo computer. Questa esecuzione continuerà al termine dell&apos;altra, al più tardi dopo %1 minuti.</translation>
    </message>
    <message>
        <source>Another run was in progress; this one has waited for its end</source>
        <translation>Era in corso un&apos;altra esecuzione; questa ne ha atteso la fine</translation>
    </message>
    <message>
        <source>Another run has been in progress for %1 minutes; this one no longer waits for its end</source>
        <translation>Un&apos;altra esecuzione è in corso da %1 minuti; questa non ne attende più la fine</translation>
    </message>
    <message>
        <source>Unable to check whether another run is in progress; a program without administrator rights may have prevented it</source>
        <translation>Impossibile verificare se è in corso un&apos;altra esecuzione; forse lo ha impedito un programma senza diritti di amministratore</translation>
    </message>
    <message>
        <source>%1 is not used; it is not an ordinary file of at most %2 KiB</source>
        <translation>%1 non viene utilizzato; non è un file normale di al massimo %2 KiB</translation>
    </message>
    <message>
        <source>%1 is being configured. If you sign out now, it stays incomplete.</source>
        <translation>È in corso la configurazione di %1. Se ci si disconnette ora, rimarrà incompleta.</translation>
    </message>
</context>
<context>
    <name>util::util_localization_tool</name>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 è danneggiato</translation>
    </message>
    <message>
        <source>No source folder was found; nothing is translated</source>
        <translation>Nessuna cartella dei sorgenti, non viene tradotto nulla</translation>
    </message>
    <message>
        <source>%1: %2 texts to translate</source>
        <translation>%1: testi da tradurre: %2</translation>
    </message>
    <message>
        <source>%1 texts to translate in %2 files</source>
        <translation>Testi da tradurre: %1, file: %2</translation>
    </message>
    <message>
        <source>localization.xml has no full path of a folder with lupdate and lrelease; nothing is updated or compiled</source>
        <translation>localization.xml non contiene il percorso completo di una cartella con lupdate e lrelease, non viene aggiornato né compilato nulla</translation>
    </message>
    <message>
        <source>%1: %2 texts finished, %3 open; %4 files refused</source>
        <translation>%1: testi completati: %2, in sospeso: %3, file rifiutati: %4</translation>
    </message>
</context>
</TS>
