; The messages of the installer that NSIS does not have, in each of its languages. A missing translation is a warning of
; the compiler and ends the build.

!macro Messages ID SET_UP_RUNS CAD_RUNS INSTALLED_BY_MSI TOOLS
    LangString SetUpRuns ${LANG_${ID}} "${SET_UP_RUNS}"
    LangString CadRuns ${LANG_${ID}} "${CAD_RUNS}"
    LangString InstalledByMsi ${LANG_${ID}} "${INSTALLED_BY_MSI}"
    LangString Tools ${LANG_${ID}} "${TOOLS}"
!macroend

!insertmacro Messages ENGLISH \
    "The set-up program of NVX 2017 is already running." \
    "A CAD system is running. Close Creo, SolidWorks, SpaceClaim, Brevant, SolidDesigner and Solid Edge first." \
    "NVX 2017 was installed by a Windows Installer package (MSI). Remove it first, or install the newer package." \
    "Tools for the product’s developers"
!insertmacro Messages GERMAN \
    "Das Installationsprogramm von NVX 2017 läuft bereits." \
    "Ein CAD-System läuft. Beenden Sie zuerst Creo, SolidWorks, SpaceClaim, Brevant, SolidDesigner und Solid Edge." \
    "NVX 2017 wurde mit einem Windows-Installer-Paket (MSI) installiert. Entfernen Sie es zuerst, oder installieren Sie das neuere Paket." \
    "Werkzeuge für die Entwickler des Produkts"
!insertmacro Messages FRENCH \
    "Le programme d’installation de NVX 2017 est déjà en cours d’exécution." \
    "Un système de CAO est en cours d’exécution. Fermez d’abord Creo, SolidWorks, SpaceClaim, Brevant, SolidDesigner et Solid Edge." \
    "NVX 2017 a été installé par un package Windows Installer (MSI). Supprimez-le d’abord ou installez le package plus récent." \
    "Outils pour les développeurs du produit"
!insertmacro Messages ITALIAN \
    "Il programma di installazione di NVX 2017 è già in esecuzione." \
    "È in esecuzione un sistema CAD. Chiudere prima Creo, SolidWorks, SpaceClaim, Brevant, SolidDesigner e Solid Edge." \
    "NVX 2017 è stato installato con un pacchetto Windows Installer (MSI). Rimuoverlo prima o installare il pacchetto più recente." \
    "Strumenti per gli sviluppatori del prodotto"
!insertmacro Messages JAPANESE \
    "NVX 2017 のセットアップ プログラムは既に実行中です。" \
    "CAD システムが実行中です。先に Creo、SolidWorks、SpaceClaim、Brevant、SolidDesigner、Solid Edge を終了してください。" \
    "NVX 2017 は Windows インストーラー パッケージ (MSI) でインストールされています。先に削除するか、新しいパッケージをインストールしてください。" \
    "製品開発者用ツール"
!insertmacro Messages KOREAN \
    "NVX 2017 설치 프로그램이 이미 실행 중입니다." \
    "CAD 시스템이 실행 중입니다. 먼저 Creo, SolidWorks, SpaceClaim, Brevant, SolidDesigner, Solid Edge를 종료하십시오." \
    "NVX 2017이 Windows Installer 패키지(MSI)로 설치되어 있습니다. 먼저 제거하거나 새 패키지를 설치하십시오." \
    "제품 개발자용 도구"
!insertmacro Messages RUSSIAN \
    "Программа установки NVX 2017 уже запущена." \
    "Запущена САПР. Сначала закройте Creo, SolidWorks, SpaceClaim, Brevant, SolidDesigner и Solid Edge." \
    "NVX 2017 установлен из пакета установщика Windows (MSI). Сначала удалите его или установите более новый пакет." \
    "Инструменты разработчиков продукта"
!insertmacro Messages SIMPCHINESE \
    "NVX 2017 的安装程序已在运行。" \
    "CAD 系统正在运行。请先关闭 Creo、SolidWorks、SpaceClaim、Brevant、SolidDesigner 和 Solid Edge。" \
    "NVX 2017 是通过 Windows Installer 安装包 (MSI) 安装的。请先将其删除，或安装更新的安装包。" \
    "产品开发人员工具"
!insertmacro Messages TRADCHINESE \
    "NVX 2017 的安裝程式已在執行。" \
    "CAD 系統正在執行。請先關閉 Creo、SolidWorks、SpaceClaim、Brevant、SolidDesigner 和 Solid Edge。" \
    "NVX 2017 是透過 Windows Installer 套件 (MSI) 安裝的。請先將其移除，或安裝較新的套件。" \
    "產品開發人員工具"
