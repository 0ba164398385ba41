<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>ArchiveComponents</name>
    <message>
        <source> Tutorials</source>
        <translation> 教學課程</translation>
    </message>
    <message>
        <source>Installing Tutorials</source>
        <translation>正在安裝教學課程</translation>
    </message>
    <message>
        <source> Python (locally for NVX)</source>
        <translation> Python（NVX 專用）</translation>
    </message>
    <message>
        <source>Installing Python</source>
        <translation>正在安裝 Python</translation>
    </message>
    <message>
        <source> Mertle Server</source>
        <translation> Mertle Server</translation>
    </message>
    <message>
        <source>No translators folder is set; the Mertle Server is not installed or removed</source>
        <translation>沒有轉換器資料夾，Mertle Server 保持不變</translation>
    </message>
    <message>
        <source>Installing Mertle Server</source>
        <translation>正在安裝 Mertle Server</translation>
    </message>
</context>
<context>
    <name>BrevantLauncher</name>
    <message>
        <source>Configure Brevant</source>
        <translation>正在設定 Brevant</translation>
    </message>
</context>
<context>
    <name>ClassWizard</name>
    <message>
        <source>%1 %2 Configuration Wizard</source>
        <translation>%1 %2 組態精靈</translation>
    </message>
    <message>
        <source>Program exiting</source>
        <translation>正在結束程式</translation>
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
        <translation>NVX 的有效命令列引數如下：
-I 安裝模式（預設）
-U 解除安裝模式
-STop 停止服務
-S 無訊息模式
-L 安裝英文（美國）
-Lxxx 安裝語言 xxx
-E 在 %temp%NVXENv.txt 中尋找安裝語言

 是否要繼續？
</translation>
    </message>
</context>
<context>
    <name>CommandRunner</name>
    <message>
        <source>The program could not be started.</source>
        <translation>無法啟動程式。</translation>
    </message>
    <message>
        <source>The program was still running after %1 ms and has been ended.</source>
        <translation>程式執行 %1 毫秒後仍未結束，已將其終止。</translation>
    </message>
    <message>
        <source>The program crashed.</source>
        <translation>程式已異常終止。</translation>
    </message>
    <message>
        <source>The name of this folder cannot be written in the command interpreter&apos;s code page; it is not removed: %1</source>
        <translation>命令解譯器的字碼頁無法表示此資料夾的名稱，未移除該資料夾：%1</translation>
    </message>
    <message>
        <source>Unable to create %1; this folder is not removed: %2</source>
        <translation>無法建立 %1，未移除此資料夾：%2</translation>
    </message>
    <message>
        <source>The name of this folder contains a character that ends or changes a command; it is not removed: %1</source>
        <translation>此資料夾的名稱包含會終止或變更命令的字元，未移除該資料夾：%1</translation>
    </message>
</context>
<context>
    <name>ConclusionPage</name>
    <message>
        <source>Conclusion </source>
        <translation>最後一步 </translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
</context>
<context>
    <name>ContextHelp</name>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
</context>
<context>
    <name>CreoLauncher</name>
    <message>
        <source> Creo Remove:</source>
        <translation> - Creo 移除：</translation>
    </message>
    <message>
        <source>Removing Ostrade from:</source>
        <translation>正在從下列檔案移除 Ostrade：</translation>
    </message>
    <message>
        <source>Writing </source>
        <translation>正在寫入 </translation>
    </message>
    <message>
        <source>Creating  </source>
        <translation>正在建立  </translation>
    </message>
    <message>
        <source>Ostrade %1 already exists, do nothing</source>
        <translation>Ostrade %1 已存在，不執行任何動作</translation>
    </message>
</context>
<context>
    <name>Detection</name>
    <message>
        <source>%1 Install Dir:%2</source>
        <translation>%1 安裝資料夾：%2</translation>
    </message>
    <message>
        <source>Using %1 Install Dir:%2</source>
        <translation>使用 %1，安裝資料夾：%2</translation>
    </message>
    <message>
        <source>%1 Product Code =%2</source>
        <translation>%1 產品代碼 =%2</translation>
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
        <translation>CAD 啟動程式 </translation>
    </message>
    <message>
        <source>NVX launchers will be installed for the CAD systems that are checked.</source>
        <translation>將為勾選的 CAD 系統安裝 NVX 啟動程式。</translation>
    </message>
</context>
<context>
    <name>FileAssociations</name>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; no files are associated with the product: %1</source>
        <translation>系統字碼頁無法表示該資料夾，未將檔案與產品建立關聯：%1</translation>
    </message>
    <message>
        <source>Create file associations</source>
        <translation>正在建立檔案關聯</translation>
    </message>
    <message>
        <source>The install folder is unknown; no files are associated</source>
        <translation>安裝資料夾不明，未建立檔案關聯</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>The install folder&apos;s path cannot be written in the system&apos;s code page; the launcher is not added to %1</source>
        <translation>系統字碼頁無法表示安裝資料夾的名稱，未將啟動程式寫入 %1</translation>
    </message>
</context>
<context>
    <name>Localization::TranslationJob</name>
    <message>
        <source>%1 is a link, which is not followed</source>
        <translation>%1 是連結，不予跟隨</translation>
    </message>
    <message>
        <source>%1 has more than %2 files; the others are not downloaded</source>
        <translation>%1 中的檔案多於 %2 個，其餘檔案不下載</translation>
    </message>
    <message>
        <source>%1 is refused: %2</source>
        <translation>%1 遭到拒絕：%2</translation>
    </message>
</context>
<context>
    <name>MaterialDatabase</name>
    <message>
        <source>Checking material database</source>
        <translation>正在檢查材料資料庫</translation>
    </message>
    <message>
        <source>Installation error matprop.mdb does not exist?</source>
        <translation>安裝錯誤：matprop.mdb 不存在？</translation>
    </message>
    <message>
        <source>Installation error: </source>
        <translation>安裝錯誤： </translation>
    </message>
    <message>
        <source> does not exist.</source>
        <translation> 不存在。</translation>
    </message>
    <message>
        <source>Copy: </source>
        <translation>複製： </translation>
    </message>
    <message>
        <source> to: </source>
        <translation> 到： </translation>
    </message>
    <message>
        <source>Remove: </source>
        <translation>移除： </translation>
    </message>
</context>
<context>
    <name>Nvx::Wizard::ProgressList</name>
    <message>
        <source>&amp;Copy</source>
        <translation>複製(&amp;C)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全選(&amp;A)</translation>
    </message>
</context>
<context>
    <name>NxLauncher</name>
    <message>
        <source>Copying %1 to %2</source>
        <translation>正在將 %1 複製到 %2</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>正在檢查：</translation>
    </message>
    <message>
        <source>Creating</source>
        <translation>正在建立：</translation>
    </message>
</context>
<context>
    <name>ParallelConfiguration</name>
    <message>
        <source>Created NVX2 default configuration: %1</source>
        <translation>已建立 NVX2 預設組態：%1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 default configuration: %1</source>
        <translation>無法建立 NVX2 預設組態：%1</translation>
    </message>
    <message>
        <source>Created NVX2 analyze folder: %1</source>
        <translation>已建立 NVX2 分析資料夾：%1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 analyze folder: %1</source>
        <translation>無法建立 NVX2 分析資料夾：%1</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>%1 terminated</source>
        <translation>已終止 %1</translation>
    </message>
    <message>
        <source>%1 was not terminated</source>
        <translation>無法終止 %1</translation>
    </message>
</context>
<context>
    <name>ProcessGuard</name>
    <message>
        <source>Click Yes to continue after the process is stopped.
Click No to continue without stopping the process.</source>
        <translation>按一下 [是]，停止處理程序並繼續。
按一下 [否]，直接繼續而不停止處理程序。</translation>
    </message>
    <message>
        <source>Click Yes to continue after the processes are stopped.
Click No to continue without stopping the processes.</source>
        <translation>按一下 [是]，停止這些處理程序並繼續。
按一下 [否]，直接繼續而不停止這些處理程序。</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1 正在執行，應先將其停止，才能設定 NVX 啟動程式增益集。</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1 正在執行，應先將其全部停止，才能設定 NVX 啟動程式增益集。</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before continuing.</source>
        <translation>%1 正在執行，應先將其停止，然後再繼續。</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before continuing.</source>
        <translation>%1 正在執行，應先將其全部停止，然後再繼續。</translation>
    </message>
    <message>
        <source>CAD Launcher Installation</source>
        <translation>安裝 CAD 啟動程式</translation>
    </message>
    <message>
        <source>Velmora %1 Installation</source>
        <translation>安裝 Velmora %1</translation>
    </message>
</context>
<context>
    <name>ProductFiles</name>
    <message>
        <source>%1 does not belong to administrators and may lead elsewhere; this is left unchanged: %2</source>
        <translation>%1 不屬於系統管理員，可能指向其他位置，以下內容保持不變：%2</translation>
    </message>
    <message>
        <source>Unable to limit write access to this folder to administrators: %1</source>
        <translation>無法將此資料夾的寫入權限限制為系統管理員：%1</translation>
    </message>
    <message>
        <source>Unable to take this folder over from the user who created it: %1</source>
        <translation>無法從建立此資料夾的使用者處接管該資料夾：%1</translation>
    </message>
</context>
<context>
    <name>ProductRegistry</name>
    <message>
        <source>Updating language registry uninstall </source>
        <translation>正在更新登錄中的解除安裝語言 </translation>
    </message>
    <message>
        <source>Updating language registry uninstall currently is:</source>
        <translation>登錄中的解除安裝語言，目前為：</translation>
    </message>
    <message>
        <source>Updating language registry uninstall locale=</source>
        <translation>登錄中的解除安裝語言，地區設定=</translation>
    </message>
    <message>
        <source>Updating language registry uninstall set to:</source>
        <translation>登錄中的解除安裝語言，已設定為：</translation>
    </message>
    <message>
        <source>Registry paths</source>
        <translation>登錄路徑</translation>
    </message>
</context>
<context>
    <name>ServerService</name>
    <message>
        <source>Unable to find server executable; Check_ Installation Directory path:</source>
        <translation>找不到伺服器程式；請檢查安裝資料夾路徑：</translation>
    </message>
    <message>
        <source>Unable to install the server</source>
        <translation>無法安裝伺服器</translation>
    </message>
    <message>
        <source>Server Error</source>
        <translation>伺服器錯誤</translation>
    </message>
    <message>
        <source>Manages communication between NVX components.</source>
        <translation>管理 NVX 元件之間的通訊。</translation>
    </message>
    <message>
        <source>uninstallServer </source>
        <translation>uninstallServer </translation>
    </message>
    <message>
        <source>uninstallServer - could not stop service</source>
        <translation>uninstallServer - 無法停止服務</translation>
    </message>
    <message>
        <source>uninstallServer - service was not installed</source>
        <translation>uninstallServer - 服務未安裝</translation>
    </message>
    <message>
        <source>uninstallServer - could not uninstall service</source>
        <translation>uninstallServer - 無法解除安裝服務</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Desktop=</source>
        <translation>桌面=</translation>
    </message>
    <message>
        <source>The shared desktop folder was not found; no shortcut was created</source>
        <translation>所有使用者共用的桌面資料夾不存在，不會建立捷徑</translation>
    </message>
    <message>
        <source>Unable to remove %1</source>
        <translation>無法移除 %1</translation>
    </message>
    <message>
        <source>This text is too long for a shortcut: %1</source>
        <translation>此文字過長，無法用於捷徑：%1</translation>
    </message>
    <message>
        <source>Create shortcut </source>
        <translation>建立捷徑 </translation>
    </message>
</context>
<context>
    <name>SpaceClaimLauncher</name>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>複製：%1 到：%2</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Stopping Services</source>
        <translation>正在停止服務</translation>
    </message>
</context>
<context>
    <name>TamselLauncher</name>
    <message>
        <source>Open failed:</source>
        <translation>開啟失敗：</translation>
    </message>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>複製：%1 到：%2</translation>
    </message>
    <message>
        <source>Tamsel Addin</source>
        <translation>Tamsel 增益集</translation>
    </message>
    <message>
        <source>Removing:</source>
        <translation>移除：</translation>
    </message>
</context>
<context>
    <name>TranslationAnswer</name>
    <message>
        <source>it is for the language %1</source>
        <translation>該檔案用於語言 %1</translation>
    </message>
    <message>
        <source>the values such as %1 differ between &quot;%2&quot; and its translation &quot;%3&quot;</source>
        <translation>「%2」與其翻譯「%3」中 %1 之類的值不一致</translation>
    </message>
    <message>
        <source>it has %1 finished texts, and the existing file has %2</source>
        <translation>已完成文字 %1 條，現有檔案中為 %2 條</translation>
    </message>
</context>
<context>
    <name>UserFiles</name>
    <message>
        <source>Remove: </source>
        <translation>移除： </translation>
    </message>
    <message>
        <source>Remove: Report .pyc files</source>
        <translation>移除：報告的 .pyc 檔案</translation>
    </message>
    <message>
        <source> Sorvane</source>
        <translation> Sorvane</translation>
    </message>
</context>
<context>
    <name>ViewerConfiguration</name>
    <message>
        <source>Running NVX 3D-ViewerConfig.</source>
        <translation>正在執行 NVX 3D-ViewerConfig。</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>English</source>
        <translation>英文</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation>簡體中文</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation>繁體中文</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德文</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法文</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日文</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>義大利文</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓文</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄文</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>歡迎</translation>
    </message>
    <message>
        <source>This wizard will configure Velmora %1 %2 for your system.</source>
        <translation>此精靈將為您的系統設定 Velmora %1 %2。</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>變更語言</translation>
    </message>
</context>
<context>
    <name>cfg_utilitys</name>
    <message>
        <source>Program startup - %1 DIR== %2</source>
        <translation>程式啟動 - %1 DIR== %2</translation>
    </message>
    <message>
        <source>NVX Configuration Utility</source>
        <translation>NVX 組態公用程式</translation>
    </message>
    <message>
        <source>Processing </source>
        <translation>正在處理 </translation>
    </message>
    <message>
        <source> has not changed</source>
        <translation> 未變更</translation>
    </message>
    <message>
        <source> has changed, not removing</source>
        <translation> 已變更，不予移除</translation>
    </message>
    <message>
        <source>Creating </source>
        <translation>正在建立 </translation>
    </message>
    <message>
        <source>Unable to create %1</source>
        <translation>無法建立 %1</translation>
    </message>
    <message>
        <source>Language </source>
        <translation>語言 </translation>
    </message>
    <message>
        <source>No Language locale Specified</source>
        <translation>未指定語言</translation>
    </message>
    <message>
        <source>Install Language: </source>
        <translation>安裝語言： </translation>
    </message>
    <message>
        <source>ChangeLanguage = </source>
        <translation>變更語言 = </translation>
    </message>
    <message>
        <source>COPY:%1 to %2</source>
        <translation>複製：%1 到 %2</translation>
    </message>
    <message>
        <source>Remove:</source>
        <translation>移除：</translation>
    </message>
    <message>
        <source>zorv :</source>
        <translation>zorv :</translation>
    </message>
    <message>
        <source>Beginning </source>
        <translation>開始 </translation>
    </message>
    <message>
        <source>The installation or update is complete. Click finish to continue.</source>
        <translation>安裝或更新已完成。請按一下 [完成] 繼續。</translation>
    </message>
    <message>
        <source>Processors: %1, Cores per processor: %2</source>
        <translation>處理器數目：%1，每個處理器的核心數：%2</translation>
    </message>
    <message>
        <source>Command Line:</source>
        <translation>命令列：</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安裝</translation>
    </message>
    <message>
        <source>UnInstall</source>
        <translation>解除安裝</translation>
    </message>
    <message>
        <source>Found </source>
        <translation>已找到 </translation>
    </message>
    <message>
        <source> Success</source>
        <translation> 成功</translation>
    </message>
    <message>
        <source> Failed</source>
        <translation> 失敗</translation>
    </message>
    <message>
        <source>Command line arguments</source>
        <translation>命令列引數</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora %1 %2 DIR=</source>
        <translation>正在驗證安裝路徑 Velmora %1 %2 DIR=</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora NVX %1 DIR=</source>
        <translation>正在驗證安裝路徑 Velmora NVX %1 DIR=</translation>
    </message>
    <message>
        <source>Install Path OK </source>
        <translation>安裝路徑正常 </translation>
    </message>
    <message>
        <source>user dir=</source>
        <translation>使用者資料夾=</translation>
    </message>
    <message>
        <source>Program startup - Install path is empty or is invalid, resetting to:</source>
        <translation>程式啟動 - 安裝路徑空白或無效，重設為：</translation>
    </message>
    <message>
        <source>Removing installation path environment variables.</source>
        <translation>正在移除安裝路徑環境變數：</translation>
    </message>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; %1 is not set</source>
        <translation>系統字碼頁無法表示該資料夾，未設定 %1</translation>
    </message>
    <message>
        <source>Searching for CAD Packages</source>
        <translation>正在搜尋 CAD 套件</translation>
    </message>
    <message>
        <source>Finished searching for CAD Packages</source>
        <translation>CAD 套件搜尋完成</translation>
    </message>
    <message>
        <source>Another run of this program is in progress on this machine. This one continues when that has ended, after %1 minutes at the latest.</source>
        <translation>此程式已在這台電腦上執行。待另一個執行結束後，本次執行將繼續，最多等待 %1 分鐘。</translation>
    </message>
    <message>
        <source>Another run was in progress; this one has waited for its end</source>
        <translation>另一個執行正在進行，本次執行已等待其結束</translation>
    </message>
    <message>
        <source>Another run has been in progress for %1 minutes; this one no longer waits for its end</source>
        <translation>另一個執行已進行 %1 分鐘，本次執行不再等待其結束</translation>
    </message>
    <message>
        <source>Unable to check whether another run is in progress; a program without administrator rights may have prevented it</source>
        <translation>無法檢查是否有另一個執行正在進行；可能被沒有系統管理員權限的程式阻止</translation>
    </message>
    <message>
        <source>%1 is not used; it is not an ordinary file of at most %2 KiB</source>
        <translation>不使用 %1；它不是不超過 %2 KiB 的一般檔案</translation>
    </message>
    <message>
        <source>%1 is being configured. If you sign out now, it stays incomplete.</source>
        <translation>正在設定 %1。如果現在登出，設定將不完整。</translation>
    </message>
</context>
<context>
    <name>util::util_localization_tool</name>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 已損壞</translation>
    </message>
    <message>
        <source>No source folder was found; nothing is translated</source>
        <translation>沒有原始程式碼資料夾，不進行任何翻譯</translation>
    </message>
    <message>
        <source>%1: %2 texts to translate</source>
        <translation>%1：待翻譯文字 %2 條</translation>
    </message>
    <message>
        <source>%1 texts to translate in %2 files</source>
        <translation>待翻譯文字 %1 條（共 %2 個檔案）</translation>
    </message>
    <message>
        <source>localization.xml has no full path of a folder with lupdate and lrelease; nothing is updated or compiled</source>
        <translation>localization.xml 中沒有包含 lupdate 和 lrelease 的資料夾的完整路徑，不更新也不編譯任何內容</translation>
    </message>
    <message>
        <source>%1: %2 texts finished, %3 open; %4 files refused</source>
        <translation>%1：已完成文字 %2 條，未完成 %3 條，遭到拒絕的檔案 %4 個</translation>
    </message>
</context>
</TS>
