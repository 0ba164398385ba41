<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>ArchiveComponents</name>
    <message>
        <source> Tutorials</source>
        <translation> 教程</translation>
    </message>
    <message>
        <source>Installing Tutorials</source>
        <translation>正在安装教程</translation>
    </message>
    <message>
        <source> Python (locally for NVX)</source>
        <translation> Python（NVX 专用）</translation>
    </message>
    <message>
        <source>Installing Python</source>
        <translation>正在安装 Python</translation>
    </message>
    <message>
        <source> Mertle Server</source>
        <translation> Mertle Server</translation>
    </message>
    <message>
        <source>No translators folder is set; the Mertle Server is not installed or removed</source>
        <translation>没有转换器文件夹，Mertle Server 保持不变</translation>
    </message>
    <message>
        <source>Installing Mertle Server</source>
        <translation>正在安装 Mertle Server</translation>
    </message>
</context>
<context>
    <name>BrevantLauncher</name>
    <message>
        <source>Configure Brevant</source>
        <translation>正在配置 Brevant</translation>
    </message>
</context>
<context>
    <name>ClassWizard</name>
    <message>
        <source>%1 %2 Configuration Wizard</source>
        <translation>%1 %2 配置向导</translation>
    </message>
    <message>
        <source>Program exiting</source>
        <translation>正在退出程序</translation>
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
        <translation>NVX 的有效命令行参数如下：
-I 安装模式（默认）
-U 卸载模式
-STop 停止服务
-S 静默模式
-L 安装英语（美国）
-Lxxx 安装语言 xxx
-E 在 %temp%NVXENv.txt 中查找安装语言

 是否继续？
</translation>
    </message>
</context>
<context>
    <name>CommandRunner</name>
    <message>
        <source>The program could not be started.</source>
        <translation>无法启动该程序。</translation>
    </message>
    <message>
        <source>The program was still running after %1 ms and has been ended.</source>
        <translation>程序运行 %1 毫秒后仍未结束，已将其终止。</translation>
    </message>
    <message>
        <source>The program crashed.</source>
        <translation>程序已崩溃。</translation>
    </message>
    <message>
        <source>The name of this folder cannot be written in the command interpreter&apos;s code page; it is not removed: %1</source>
        <translation>命令解释器的代码页无法表示此文件夹的名称，未删除该文件夹：%1</translation>
    </message>
    <message>
        <source>Unable to create %1; this folder is not removed: %2</source>
        <translation>无法创建 %1，未删除此文件夹：%2</translation>
    </message>
    <message>
        <source>The name of this folder contains a character that ends or changes a command; it is not removed: %1</source>
        <translation>此文件夹的名称包含会终止或更改命令的字符，未删除该文件夹：%1</translation>
    </message>
</context>
<context>
    <name>ConclusionPage</name>
    <message>
        <source>Conclusion </source>
        <translation>最后一步 </translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
</context>
<context>
    <name>ContextHelp</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
</context>
<context>
    <name>CreoLauncher</name>
    <message>
        <source> Creo Remove:</source>
        <translation> - Creo 删除：</translation>
    </message>
    <message>
        <source>Removing Ostrade from:</source>
        <translation>正在从以下文件中删除 Ostrade：</translation>
    </message>
    <message>
        <source>Writing </source>
        <translation>正在写入 </translation>
    </message>
    <message>
        <source>Creating  </source>
        <translation>正在创建  </translation>
    </message>
    <message>
        <source>Ostrade %1 already exists, do nothing</source>
        <translation>Ostrade %1 已存在，不执行任何操作</translation>
    </message>
</context>
<context>
    <name>Detection</name>
    <message>
        <source>%1 Install Dir:%2</source>
        <translation>%1 安装文件夹：%2</translation>
    </message>
    <message>
        <source>Using %1 Install Dir:%2</source>
        <translation>使用 %1，安装文件夹：%2</translation>
    </message>
    <message>
        <source>%1 Product Code =%2</source>
        <translation>%1 产品代码 =%2</translation>
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
        <translation>CAD 启动程序 </translation>
    </message>
    <message>
        <source>NVX launchers will be installed for the CAD systems that are checked.</source>
        <translation>将为选中的 CAD 系统安装 NVX 启动程序。</translation>
    </message>
</context>
<context>
    <name>FileAssociations</name>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; no files are associated with the product: %1</source>
        <translation>系统代码页无法表示该文件夹，未将文件与产品关联：%1</translation>
    </message>
    <message>
        <source>Create file associations</source>
        <translation>正在创建文件关联</translation>
    </message>
    <message>
        <source>The install folder is unknown; no files are associated</source>
        <translation>安装文件夹未知，未关联文件</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>The install folder&apos;s path cannot be written in the system&apos;s code page; the launcher is not added to %1</source>
        <translation>系统代码页无法表示安装文件夹的名称，未将启动程序写入 %1</translation>
    </message>
</context>
<context>
    <name>Localization::TranslationJob</name>
    <message>
        <source>%1 is a link, which is not followed</source>
        <translation>%1 是链接，不予跟随</translation>
    </message>
    <message>
        <source>%1 has more than %2 files; the others are not downloaded</source>
        <translation>%1 中的文件多于 %2 个，其余文件不下载</translation>
    </message>
    <message>
        <source>%1 is refused: %2</source>
        <translation>%1 被拒绝：%2</translation>
    </message>
</context>
<context>
    <name>MaterialDatabase</name>
    <message>
        <source>Checking material database</source>
        <translation>正在检查材料数据库</translation>
    </message>
    <message>
        <source>Installation error matprop.mdb does not exist?</source>
        <translation>安装错误：matprop.mdb 不存在？</translation>
    </message>
    <message>
        <source>Installation error: </source>
        <translation>安装错误： </translation>
    </message>
    <message>
        <source> does not exist.</source>
        <translation> 不存在。</translation>
    </message>
    <message>
        <source>Copy: </source>
        <translation>复制： </translation>
    </message>
    <message>
        <source> to: </source>
        <translation> 到： </translation>
    </message>
    <message>
        <source>Remove: </source>
        <translation>删除： </translation>
    </message>
</context>
<context>
    <name>Nvx::Wizard::ProgressList</name>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
</context>
<context>
    <name>NxLauncher</name>
    <message>
        <source>Copying %1 to %2</source>
        <translation>正在将 %1 复制到 %2</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>正在检查：</translation>
    </message>
    <message>
        <source>Creating</source>
        <translation>正在创建：</translation>
    </message>
</context>
<context>
    <name>ParallelConfiguration</name>
    <message>
        <source>Created NVX2 default configuration: %1</source>
        <translation>已创建 NVX2 默认配置：%1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 default configuration: %1</source>
        <translation>无法创建 NVX2 默认配置：%1</translation>
    </message>
    <message>
        <source>Created NVX2 analyze folder: %1</source>
        <translation>已创建 NVX2 分析文件夹：%1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 analyze folder: %1</source>
        <translation>无法创建 NVX2 分析文件夹：%1</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>%1 terminated</source>
        <translation>已终止 %1</translation>
    </message>
    <message>
        <source>%1 was not terminated</source>
        <translation>未能终止 %1</translation>
    </message>
</context>
<context>
    <name>ProcessGuard</name>
    <message>
        <source>Click Yes to continue after the process is stopped.
Click No to continue without stopping the process.</source>
        <translation>单击“是”，停止进程并继续。
单击“否”，直接继续而不停止进程。</translation>
    </message>
    <message>
        <source>Click Yes to continue after the processes are stopped.
Click No to continue without stopping the processes.</source>
        <translation>单击“是”，停止这些进程并继续。
单击“否”，直接继续而不停止这些进程。</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1 正在运行，应先将其停止，然后才能配置 NVX 启动程序加载项。</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1 正在运行，应先将它们全部停止，然后才能配置 NVX 启动程序加载项。</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before continuing.</source>
        <translation>%1 正在运行，应先将其停止，然后再继续。</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before continuing.</source>
        <translation>%1 正在运行，应先将它们全部停止，然后再继续。</translation>
    </message>
    <message>
        <source>CAD Launcher Installation</source>
        <translation>安装 CAD 启动程序</translation>
    </message>
    <message>
        <source>Velmora %1 Installation</source>
        <translation>安装 Velmora %1</translation>
    </message>
</context>
<context>
    <name>ProductFiles</name>
    <message>
        <source>%1 does not belong to administrators and may lead elsewhere; this is left unchanged: %2</source>
        <translation>%1 不属于管理员，可能指向其他位置，以下内容保持不变：%2</translation>
    </message>
    <message>
        <source>Unable to limit write access to this folder to administrators: %1</source>
        <translation>无法将此文件夹的写入权限限制为管理员：%1</translation>
    </message>
    <message>
        <source>Unable to take this folder over from the user who created it: %1</source>
        <translation>无法从创建此文件夹的用户处接管该文件夹：%1</translation>
    </message>
</context>
<context>
    <name>ProductRegistry</name>
    <message>
        <source>Updating language registry uninstall </source>
        <translation>正在更新注册表中的卸载语言 </translation>
    </message>
    <message>
        <source>Updating language registry uninstall currently is:</source>
        <translation>注册表中的卸载语言，当前为：</translation>
    </message>
    <message>
        <source>Updating language registry uninstall locale=</source>
        <translation>注册表中的卸载语言，区域设置=</translation>
    </message>
    <message>
        <source>Updating language registry uninstall set to:</source>
        <translation>注册表中的卸载语言，已设置为：</translation>
    </message>
    <message>
        <source>Registry paths</source>
        <translation>注册表路径</translation>
    </message>
</context>
<context>
    <name>ServerService</name>
    <message>
        <source>Unable to find server executable; Check_ Installation Directory path:</source>
        <translation>找不到服务器程序；请检查安装文件夹路径：</translation>
    </message>
    <message>
        <source>Unable to install the server</source>
        <translation>无法安装服务器</translation>
    </message>
    <message>
        <source>Server Error</source>
        <translation>服务器错误</translation>
    </message>
    <message>
        <source>Manages communication between NVX components.</source>
        <translation>管理 NVX 组件之间的通信。</translation>
    </message>
    <message>
        <source>uninstallServer </source>
        <translation>uninstallServer </translation>
    </message>
    <message>
        <source>uninstallServer - could not stop service</source>
        <translation>uninstallServer - 无法停止服务</translation>
    </message>
    <message>
        <source>uninstallServer - service was not installed</source>
        <translation>uninstallServer - 服务未安装</translation>
    </message>
    <message>
        <source>uninstallServer - could not uninstall service</source>
        <translation>uninstallServer - 无法卸载服务</translation>
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
        <translation>不存在所有用户共用的桌面文件夹，不会创建快捷方式</translation>
    </message>
    <message>
        <source>Unable to remove %1</source>
        <translation>无法删除 %1</translation>
    </message>
    <message>
        <source>This text is too long for a shortcut: %1</source>
        <translation>此文本过长，无法用于快捷方式：%1</translation>
    </message>
    <message>
        <source>Create shortcut </source>
        <translation>创建快捷方式 </translation>
    </message>
</context>
<context>
    <name>SpaceClaimLauncher</name>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>复制：%1 到：%2</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Stopping Services</source>
        <translation>正在停止服务</translation>
    </message>
</context>
<context>
    <name>TamselLauncher</name>
    <message>
        <source>Open failed:</source>
        <translation>打开失败：</translation>
    </message>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>复制：%1 到：%2</translation>
    </message>
    <message>
        <source>Tamsel Addin</source>
        <translation>Tamsel 加载项</translation>
    </message>
    <message>
        <source>Removing:</source>
        <translation>删除：</translation>
    </message>
</context>
<context>
    <name>TranslationAnswer</name>
    <message>
        <source>it is for the language %1</source>
        <translation>该文件用于语言 %1</translation>
    </message>
    <message>
        <source>the values such as %1 differ between &quot;%2&quot; and its translation &quot;%3&quot;</source>
        <translation>“%2”与其翻译“%3”中 %1 之类的值不一致</translation>
    </message>
    <message>
        <source>it has %1 finished texts, and the existing file has %2</source>
        <translation>已完成文本 %1 条，现有文件中为 %2 条</translation>
    </message>
</context>
<context>
    <name>UserFiles</name>
    <message>
        <source>Remove: </source>
        <translation>删除： </translation>
    </message>
    <message>
        <source>Remove: Report .pyc files</source>
        <translation>删除：报告的 .pyc 文件</translation>
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
        <translation>正在运行 NVX 3D-ViewerConfig。</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation>繁体中文</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德语</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日语</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>意大利语</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韩语</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄语</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>欢迎</translation>
    </message>
    <message>
        <source>This wizard will configure Velmora %1 %2 for your system.</source>
        <translation>此向导将为您的系统配置 Velmora %1 %2。</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>更改语言</translation>
    </message>
</context>
<context>
    <name>cfg_utilitys</name>
    <message>
        <source>Program startup - %1 DIR== %2</source>
        <translation>程序启动 - %1 DIR== %2</translation>
    </message>
    <message>
        <source>NVX Configuration Utility</source>
        <translation>NVX 配置实用程序</translation>
    </message>
    <message>
        <source>Processing </source>
        <translation>正在处理 </translation>
    </message>
    <message>
        <source> has not changed</source>
        <translation> 未更改</translation>
    </message>
    <message>
        <source> has changed, not removing</source>
        <translation> 已更改，不予删除</translation>
    </message>
    <message>
        <source>Creating </source>
        <translation>正在创建 </translation>
    </message>
    <message>
        <source>Unable to create %1</source>
        <translation>无法创建 %1</translation>
    </message>
    <message>
        <source>Language </source>
        <translation>语言 </translation>
    </message>
    <message>
        <source>No Language locale Specified</source>
        <translation>未指定语言</translation>
    </message>
    <message>
        <source>Install Language: </source>
        <translation>安装语言： </translation>
    </message>
    <message>
        <source>ChangeLanguage = </source>
        <translation>更改语言 = </translation>
    </message>
    <message>
        <source>COPY:%1 to %2</source>
        <translation>复制：%1 到 %2</translation>
    </message>
    <message>
        <source>Remove:</source>
        <translation>删除：</translation>
    </message>
    <message>
        <source>zorv :</source>
        <translation>zorv :</translation>
    </message>
    <message>
        <source>Beginning </source>
        <translation>开始 </translation>
    </message>
    <message>
        <source>The installation or update is complete. Click finish to continue.</source>
        <translation>安装或更新已完成。请单击“完成”继续。</translation>
    </message>
    <message>
        <source>Processors: %1, Cores per processor: %2</source>
        <translation>处理器数：%1，每个处理器的内核数：%2</translation>
    </message>
    <message>
        <source>Command Line:</source>
        <translation>命令行：</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>UnInstall</source>
        <translation>卸载</translation>
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
        <translation> 失败</translation>
    </message>
    <message>
        <source>Command line arguments</source>
        <translation>命令行参数</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora %1 %2 DIR=</source>
        <translation>正在验证安装路径 Velmora %1 %2 DIR=</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora NVX %1 DIR=</source>
        <translation>正在验证安装路径 Velmora NVX %1 DIR=</translation>
    </message>
    <message>
        <source>Install Path OK </source>
        <translation>安装路径正常 </translation>
    </message>
    <message>
        <source>user dir=</source>
        <translation>用户文件夹=</translation>
    </message>
    <message>
        <source>Program startup - Install path is empty or is invalid, resetting to:</source>
        <translation>程序启动 - 安装路径为空或无效，重置为：</translation>
    </message>
    <message>
        <source>Removing installation path environment variables.</source>
        <translation>正在删除安装路径环境变量：</translation>
    </message>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; %1 is not set</source>
        <translation>系统代码页无法表示该文件夹，未设置 %1</translation>
    </message>
    <message>
        <source>Searching for CAD Packages</source>
        <translation>正在搜索 CAD 软件包</translation>
    </message>
    <message>
        <source>Finished searching for CAD Packages</source>
        <translation>CAD 软件包搜索完成</translation>
    </message>
    <message>
        <source>Another run of this program is in progress on this machine. This one continues when that has ended, after %1 minutes at the latest.</source>
        <translation>此程序已在这台计算机上运行。待另一个运行结束后，本次运行将继续，最多等待 %1 分钟。</translation>
    </message>
    <message>
        <source>Another run was in progress; this one has waited for its end</source>
        <translation>另一个运行正在进行，本次运行已等待其结束</translation>
    </message>
    <message>
        <source>Another run has been in progress for %1 minutes; this one no longer waits for its end</source>
        <translation>另一个运行已进行 %1 分钟，本次运行不再等待其结束</translation>
    </message>
    <message>
        <source>Unable to check whether another run is in progress; a program without administrator rights may have prevented it</source>
        <translation>无法检查是否有另一个运行正在进行；可能被没有管理员权限的程序阻止</translation>
    </message>
    <message>
        <source>%1 is not used; it is not an ordinary file of at most %2 KiB</source>
        <translation>不使用 %1；它不是不超过 %2 KiB 的普通文件</translation>
    </message>
    <message>
        <source>%1 is being configured. If you sign out now, it stays incomplete.</source>
        <translation>正在配置 %1。如果现在注销，配置将不完整。</translation>
    </message>
</context>
<context>
    <name>util::util_localization_tool</name>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 已损坏</translation>
    </message>
    <message>
        <source>No source folder was found; nothing is translated</source>
        <translation>没有源代码文件夹，不进行任何翻译</translation>
    </message>
    <message>
        <source>%1: %2 texts to translate</source>
        <translation>%1：待翻译文本 %2 条</translation>
    </message>
    <message>
        <source>%1 texts to translate in %2 files</source>
        <translation>待翻译文本 %1 条（共 %2 个文件）</translation>
    </message>
    <message>
        <source>localization.xml has no full path of a folder with lupdate and lrelease; nothing is updated or compiled</source>
        <translation>localization.xml 中没有包含 lupdate 和 lrelease 的文件夹的完整路径，不更新也不编译任何内容</translation>
    </message>
    <message>
        <source>%1: %2 texts finished, %3 open; %4 files refused</source>
        <translation>%1：已完成文本 %2 条，未完成 %3 条，被拒绝的文件 %4 个</translation>
    </message>
</context>
</TS>
