<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>ArchiveComponents</name>
    <message>
        <source> Tutorials</source>
        <translation> - チュートリアル</translation>
    </message>
    <message>
        <source>Installing Tutorials</source>
        <translation>チュートリアルをインストールしています</translation>
    </message>
    <message>
        <source> Python (locally for NVX)</source>
        <translation> - Python (NVX 専用)</translation>
    </message>
    <message>
        <source>Installing Python</source>
        <translation>Python をインストールしています</translation>
    </message>
    <message>
        <source> Mertle Server</source>
        <translation> - Mertle Server</translation>
    </message>
    <message>
        <source>No translators folder is set; the Mertle Server is not installed or removed</source>
        <translation>トランスレーターのフォルダーがないため、Mertle Server は変更しません</translation>
    </message>
    <message>
        <source>Installing Mertle Server</source>
        <translation>Mertle Server をインストールしています</translation>
    </message>
</context>
<context>
    <name>BrevantLauncher</name>
    <message>
        <source>Configure Brevant</source>
        <translation>Brevant を構成しています</translation>
    </message>
</context>
<context>
    <name>ClassWizard</name>
    <message>
        <source>%1 %2 Configuration Wizard</source>
        <translation>%1 %2 構成ウィザード</translation>
    </message>
    <message>
        <source>Program exiting</source>
        <translation>プログラムを終了しています</translation>
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
        <translation>NVX で有効なコマンド ライン引数は次のとおりです:
-I インストール モード (既定)
-U アンインストール モード
-STop サービスを停止
-S サイレント モード
-L 英語 (米国) をインストール
-Lxxx 言語 xxx をインストール
-E インストールする言語を %temp%NVXENv.txt から取得

 続行しますか?
</translation>
    </message>
</context>
<context>
    <name>CommandRunner</name>
    <message>
        <source>The program could not be started.</source>
        <translation>プログラムを起動できませんでした。</translation>
    </message>
    <message>
        <source>The program was still running after %1 ms and has been ended.</source>
        <translation>プログラムは %1 ミリ秒を過ぎても終了しなかったため、強制終了しました。</translation>
    </message>
    <message>
        <source>The program crashed.</source>
        <translation>プログラムが異常終了しました。</translation>
    </message>
    <message>
        <source>The name of this folder cannot be written in the command interpreter&apos;s code page; it is not removed: %1</source>
        <translation>コマンド インタープリターのコード ページではこのフォルダーの名前を表せないため、削除しません: %1</translation>
    </message>
    <message>
        <source>Unable to create %1; this folder is not removed: %2</source>
        <translation>%1 を作成できないため、このフォルダーを削除しません: %2</translation>
    </message>
    <message>
        <source>The name of this folder contains a character that ends or changes a command; it is not removed: %1</source>
        <translation>このフォルダーの名前には、コマンドを終了または変更する文字が含まれているため、削除しません: %1</translation>
    </message>
</context>
<context>
    <name>ConclusionPage</name>
    <message>
        <source>Conclusion </source>
        <translation>最終ステップ </translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
</context>
<context>
    <name>ContextHelp</name>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
</context>
<context>
    <name>CreoLauncher</name>
    <message>
        <source> Creo Remove:</source>
        <translation> - Creo 削除:</translation>
    </message>
    <message>
        <source>Removing Ostrade from:</source>
        <translation>次のファイルから Ostrade を削除しています:</translation>
    </message>
    <message>
        <source>Writing </source>
        <translation>書き込み中: </translation>
    </message>
    <message>
        <source>Creating  </source>
        <translation>作成中:  </translation>
    </message>
    <message>
        <source>Ostrade %1 already exists, do nothing</source>
        <translation>Ostrade %1 は既に存在するため、何も行いません</translation>
    </message>
</context>
<context>
    <name>Detection</name>
    <message>
        <source>%1 Install Dir:%2</source>
        <translation>%1 のインストール フォルダー: %2</translation>
    </message>
    <message>
        <source>Using %1 Install Dir:%2</source>
        <translation>%1 を使用します。インストール フォルダー: %2</translation>
    </message>
    <message>
        <source>%1 Product Code =%2</source>
        <translation>%1 の製品コード =%2</translation>
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
        <translation>CAD ランチャー </translation>
    </message>
    <message>
        <source>NVX launchers will be installed for the CAD systems that are checked.</source>
        <translation>選択した CAD システムに NVX ランチャーがインストールされます。</translation>
    </message>
</context>
<context>
    <name>FileAssociations</name>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; no files are associated with the product: %1</source>
        <translation>システムのコード ページではフォルダー名を表せないため、ファイルは製品に関連付けられません: %1</translation>
    </message>
    <message>
        <source>Create file associations</source>
        <translation>ファイルの関連付けを作成しています</translation>
    </message>
    <message>
        <source>The install folder is unknown; no files are associated</source>
        <translation>インストール フォルダーが不明なため、ファイルは関連付けられません</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>The install folder&apos;s path cannot be written in the system&apos;s code page; the launcher is not added to %1</source>
        <translation>システムのコード ページではインストール フォルダーの名前を表せないため、ランチャーを %1 に登録しません</translation>
    </message>
</context>
<context>
    <name>Localization::TranslationJob</name>
    <message>
        <source>%1 is a link, which is not followed</source>
        <translation>%1 はリンクであるため、たどりません</translation>
    </message>
    <message>
        <source>%1 has more than %2 files; the others are not downloaded</source>
        <translation>%1 には %2 個を超えるファイルがあります。残りはダウンロードされません</translation>
    </message>
    <message>
        <source>%1 is refused: %2</source>
        <translation>%1 は受け入れられません: %2</translation>
    </message>
</context>
<context>
    <name>MaterialDatabase</name>
    <message>
        <source>Checking material database</source>
        <translation>材料データベースを確認しています</translation>
    </message>
    <message>
        <source>Installation error matprop.mdb does not exist?</source>
        <translation>インストール エラー: matprop.mdb が存在しない可能性があります</translation>
    </message>
    <message>
        <source>Installation error: </source>
        <translation>インストール エラー: </translation>
    </message>
    <message>
        <source> does not exist.</source>
        <translation> がありません。</translation>
    </message>
    <message>
        <source>Copy: </source>
        <translation>コピー: </translation>
    </message>
    <message>
        <source> to: </source>
        <translation> → </translation>
    </message>
    <message>
        <source>Remove: </source>
        <translation>削除: </translation>
    </message>
</context>
<context>
    <name>Nvx::Wizard::ProgressList</name>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
</context>
<context>
    <name>NxLauncher</name>
    <message>
        <source>Copying %1 to %2</source>
        <translation>%1 を %2 にコピーしています</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>確認中:</translation>
    </message>
    <message>
        <source>Creating</source>
        <translation>作成中:</translation>
    </message>
</context>
<context>
    <name>ParallelConfiguration</name>
    <message>
        <source>Created NVX2 default configuration: %1</source>
        <translation>NVX2 の既定の構成を作成しました: %1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 default configuration: %1</source>
        <translation>NVX2 の既定の構成を作成できません: %1</translation>
    </message>
    <message>
        <source>Created NVX2 analyze folder: %1</source>
        <translation>NVX2 の解析フォルダーを作成しました: %1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 analyze folder: %1</source>
        <translation>NVX2 の解析フォルダーを作成できません: %1</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>%1 terminated</source>
        <translation>%1 を終了しました</translation>
    </message>
    <message>
        <source>%1 was not terminated</source>
        <translation>%1 を終了できませんでした</translation>
    </message>
</context>
<context>
    <name>ProcessGuard</name>
    <message>
        <source>Click Yes to continue after the process is stopped.
Click No to continue without stopping the process.</source>
        <translation>プロセスを終了して続行するには [はい] をクリックしてください。
プロセスを終了せずに続行するには [いいえ] をクリックしてください。</translation>
    </message>
    <message>
        <source>Click Yes to continue after the processes are stopped.
Click No to continue without stopping the processes.</source>
        <translation>これらのプロセスを終了して続行するには [はい] をクリックしてください。
これらのプロセスを終了せずに続行するには [いいえ] をクリックしてください。</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1 が実行中です。NVX ランチャーのアドインを構成する前に終了してください。</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1 が実行中です。NVX ランチャーのアドインを構成する前に、すべて終了してください。</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before continuing.</source>
        <translation>%1 が実行中です。続行する前に終了してください。</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before continuing.</source>
        <translation>%1 が実行中です。続行する前に、すべて終了してください。</translation>
    </message>
    <message>
        <source>CAD Launcher Installation</source>
        <translation>CAD ランチャーのインストール</translation>
    </message>
    <message>
        <source>Velmora %1 Installation</source>
        <translation>Velmora %1 のインストール</translation>
    </message>
</context>
<context>
    <name>ProductFiles</name>
    <message>
        <source>%1 does not belong to administrators and may lead elsewhere; this is left unchanged: %2</source>
        <translation>%1 は管理者の所有ではなく、別の場所を指している可能性があるため、変更しません: %2</translation>
    </message>
    <message>
        <source>Unable to limit write access to this folder to administrators: %1</source>
        <translation>このフォルダーへの書き込みアクセスを管理者に限定できません: %1</translation>
    </message>
    <message>
        <source>Unable to take this folder over from the user who created it: %1</source>
        <translation>このフォルダーを、作成したユーザーから引き継ぐことができません: %1</translation>
    </message>
</context>
<context>
    <name>ProductRegistry</name>
    <message>
        <source>Updating language registry uninstall </source>
        <translation>レジストリのアンインストール言語を更新しています </translation>
    </message>
    <message>
        <source>Updating language registry uninstall currently is:</source>
        <translation>レジストリのアンインストール言語 - 現在の値:</translation>
    </message>
    <message>
        <source>Updating language registry uninstall locale=</source>
        <translation>レジストリのアンインストール言語 - ロケール=</translation>
    </message>
    <message>
        <source>Updating language registry uninstall set to:</source>
        <translation>レジストリのアンインストール言語 - 新しい値:</translation>
    </message>
    <message>
        <source>Registry paths</source>
        <translation>レジストリ パス</translation>
    </message>
</context>
<context>
    <name>ServerService</name>
    <message>
        <source>Unable to find server executable; Check_ Installation Directory path:</source>
        <translation>サーバー プログラムが見つかりません。インストール フォルダーのパスを確認してください:</translation>
    </message>
    <message>
        <source>Unable to install the server</source>
        <translation>サーバーをインストールできません</translation>
    </message>
    <message>
        <source>Server Error</source>
        <translation>サーバー エラー</translation>
    </message>
    <message>
        <source>Manages communication between NVX components.</source>
        <translation>NVX のコンポーネント間の通信を管理します。</translation>
    </message>
    <message>
        <source>uninstallServer </source>
        <translation>uninstallServer </translation>
    </message>
    <message>
        <source>uninstallServer - could not stop service</source>
        <translation>uninstallServer - サービスを停止できませんでした</translation>
    </message>
    <message>
        <source>uninstallServer - service was not installed</source>
        <translation>uninstallServer - サービスはインストールされていませんでした</translation>
    </message>
    <message>
        <source>uninstallServer - could not uninstall service</source>
        <translation>uninstallServer - サービスをアンインストールできませんでした</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Desktop=</source>
        <translation>デスクトップ=</translation>
    </message>
    <message>
        <source>The shared desktop folder was not found; no shortcut was created</source>
        <translation>すべてのユーザー用のデスクトップ フォルダーがないため、ショートカットは作成されません</translation>
    </message>
    <message>
        <source>Unable to remove %1</source>
        <translation>%1 を削除できません</translation>
    </message>
    <message>
        <source>This text is too long for a shortcut: %1</source>
        <translation>このテキストはショートカットには長すぎます: %1</translation>
    </message>
    <message>
        <source>Create shortcut </source>
        <translation>ショートカットの作成: </translation>
    </message>
</context>
<context>
    <name>SpaceClaimLauncher</name>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>コピー: %1 → %2</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Stopping Services</source>
        <translation>サービスを停止しています</translation>
    </message>
</context>
<context>
    <name>TamselLauncher</name>
    <message>
        <source>Open failed:</source>
        <translation>開けませんでした:</translation>
    </message>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>コピー: %1 → %2</translation>
    </message>
    <message>
        <source>Tamsel Addin</source>
        <translation>Tamsel アドイン</translation>
    </message>
    <message>
        <source>Removing:</source>
        <translation>削除:</translation>
    </message>
</context>
<context>
    <name>TranslationAnswer</name>
    <message>
        <source>it is for the language %1</source>
        <translation>言語 %1 のファイルです</translation>
    </message>
    <message>
        <source>the values such as %1 differ between &quot;%2&quot; and its translation &quot;%3&quot;</source>
        <translation>%1 などの値が、「%2」とその翻訳「%3」で一致していません</translation>
    </message>
    <message>
        <source>it has %1 finished texts, and the existing file has %2</source>
        <translation>完了したテキストは %1 件ですが、既存のファイルでは %2 件です</translation>
    </message>
</context>
<context>
    <name>UserFiles</name>
    <message>
        <source>Remove: </source>
        <translation>削除: </translation>
    </message>
    <message>
        <source>Remove: Report .pyc files</source>
        <translation>削除: レポートの .pyc ファイル</translation>
    </message>
    <message>
        <source> Sorvane</source>
        <translation> - Sorvane</translation>
    </message>
</context>
<context>
    <name>ViewerConfiguration</name>
    <message>
        <source>Running NVX 3D-ViewerConfig.</source>
        <translation>NVX 3D-ViewerConfig を実行しています。</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation>中国語 (簡体字)</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation>中国語 (繁体字)</translation>
    </message>
    <message>
        <source>German</source>
        <translation>ドイツ語</translation>
    </message>
    <message>
        <source>French</source>
        <translation>フランス語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>イタリア語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓国語</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>ロシア語</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>This wizard will configure Velmora %1 %2 for your system.</source>
        <translation>このウィザードでは、お使いのシステム用に Velmora %1 %2 を構成します。</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>言語の変更</translation>
    </message>
</context>
<context>
    <name>cfg_utilitys</name>
    <message>
        <source>Program startup - %1 DIR== %2</source>
        <translation>プログラムの起動 - %1 DIR== %2</translation>
    </message>
    <message>
        <source>NVX Configuration Utility</source>
        <translation>NVX 構成ユーティリティ</translation>
    </message>
    <message>
        <source>Processing </source>
        <translation>処理中: </translation>
    </message>
    <message>
        <source> has not changed</source>
        <translation> は変更されていません</translation>
    </message>
    <message>
        <source> has changed, not removing</source>
        <translation> は変更されているため、削除しません</translation>
    </message>
    <message>
        <source>Creating </source>
        <translation>作成中: </translation>
    </message>
    <message>
        <source>Unable to create %1</source>
        <translation>%1 を作成できません</translation>
    </message>
    <message>
        <source>Language </source>
        <translation>言語: </translation>
    </message>
    <message>
        <source>No Language locale Specified</source>
        <translation>言語が指定されていません</translation>
    </message>
    <message>
        <source>Install Language: </source>
        <translation>インストールする言語: </translation>
    </message>
    <message>
        <source>ChangeLanguage = </source>
        <translation>言語の変更 = </translation>
    </message>
    <message>
        <source>COPY:%1 to %2</source>
        <translation>コピー: %1 → %2</translation>
    </message>
    <message>
        <source>Remove:</source>
        <translation>削除:</translation>
    </message>
    <message>
        <source>zorv :</source>
        <translation>zorv :</translation>
    </message>
    <message>
        <source>Beginning </source>
        <translation>開始: </translation>
    </message>
    <message>
        <source>The installation or update is complete. Click finish to continue.</source>
        <translation>インストールまたは更新が完了しました。続行するには [完了] をクリックしてください。</translation>
    </message>
    <message>
        <source>Processors: %1, Cores per processor: %2</source>
        <translation>プロセッサ数: %1、プロセッサあたりのコア数: %2</translation>
    </message>
    <message>
        <source>Command Line:</source>
        <translation>コマンド ライン:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>UnInstall</source>
        <translation>アンインストール</translation>
    </message>
    <message>
        <source>Found </source>
        <translation>検出: </translation>
    </message>
    <message>
        <source> Success</source>
        <translation> - 成功</translation>
    </message>
    <message>
        <source> Failed</source>
        <translation> - 失敗</translation>
    </message>
    <message>
        <source>Command line arguments</source>
        <translation>コマンド ライン引数</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora %1 %2 DIR=</source>
        <translation>インストール パスの検証 Velmora %1 %2 DIR=</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora NVX %1 DIR=</source>
        <translation>インストール パスの検証 Velmora NVX %1 DIR=</translation>
    </message>
    <message>
        <source>Install Path OK </source>
        <translation>インストール パスに問題はありません: </translation>
    </message>
    <message>
        <source>user dir=</source>
        <translation>ユーザー フォルダー=</translation>
    </message>
    <message>
        <source>Program startup - Install path is empty or is invalid, resetting to:</source>
        <translation>プログラムの起動 - インストール パスが空か無効なため、次のパスに再設定します:</translation>
    </message>
    <message>
        <source>Removing installation path environment variables.</source>
        <translation>インストール パスの環境変数を削除しています:</translation>
    </message>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; %1 is not set</source>
        <translation>システムのコード ページではフォルダー名を表せないため、%1 は設定されません</translation>
    </message>
    <message>
        <source>Searching for CAD Packages</source>
        <translation>CAD パッケージを検索しています</translation>
    </message>
    <message>
        <source>Finished searching for CAD Packages</source>
        <translation>CAD パッケージの検索が完了しました</translation>
    </message>
    <message>
        <source>Another run of this program is in progress on this machine. This one continues when that has ended, after %1 minutes at the latest.</source>
        <translation>このプログラムは、このコンピューターで既に実行されています。もう一方の実行が終了すると続行します (最長 %1 分待機)。</translation>
    </message>
    <message>
        <source>Another run was in progress; this one has waited for its end</source>
        <translation>別の実行が進行中だったため、終了するまで待機しました</translation>
    </message>
    <message>
        <source>Another run has been in progress for %1 minutes; this one no longer waits for its end</source>
        <translation>別の実行が %1 分たっても終了しないため、待機を中止して続行します</translation>
    </message>
    <message>
        <source>Unable to check whether another run is in progress; a program without administrator rights may have prevented it</source>
        <translation>別の実行が進行中かどうかを確認できません。管理者権限のないプログラムに妨げられた可能性があります</translation>
    </message>
    <message>
        <source>%1 is not used; it is not an ordinary file of at most %2 KiB</source>
        <translation>%1 は使用されません。%2 KiB 以下の通常のファイルではありません</translation>
    </message>
    <message>
        <source>%1 is being configured. If you sign out now, it stays incomplete.</source>
        <translation>%1 を構成しています。今サインアウトすると、構成が完了しません。</translation>
    </message>
</context>
<context>
    <name>util::util_localization_tool</name>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 は破損しています</translation>
    </message>
    <message>
        <source>No source folder was found; nothing is translated</source>
        <translation>ソース コードのフォルダーがないため、何も翻訳されません</translation>
    </message>
    <message>
        <source>%1: %2 texts to translate</source>
        <translation>%1: 翻訳対象テキスト %2 件</translation>
    </message>
    <message>
        <source>%1 texts to translate in %2 files</source>
        <translation>翻訳対象テキスト %1 件 (%2 ファイル)</translation>
    </message>
    <message>
        <source>localization.xml has no full path of a folder with lupdate and lrelease; nothing is updated or compiled</source>
        <translation>localization.xml に lupdate と lrelease のあるフォルダーの完全なパスがないため、何も更新またはコンパイルされません</translation>
    </message>
    <message>
        <source>%1: %2 texts finished, %3 open; %4 files refused</source>
        <translation>%1: 完了したテキスト %2 件、未完了 %3 件、受け入れられなかったファイル %4 個</translation>
    </message>
</context>
</TS>
