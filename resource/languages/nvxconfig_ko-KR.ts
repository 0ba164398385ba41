<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>ArchiveComponents</name>
    <message>
        <source> Tutorials</source>
        <translation> - 자습서</translation>
    </message>
    <message>
        <source>Installing Tutorials</source>
        <translation>자습서를 설치하는 중</translation>
    </message>
    <message>
        <source> Python (locally for NVX)</source>
        <translation> - Python(NVX 전용)</translation>
    </message>
    <message>
        <source>Installing Python</source>
        <translation>Python을 설치하는 중</translation>
    </message>
    <message>
        <source> Mertle Server</source>
        <translation> - Mertle Server</translation>
    </message>
    <message>
        <source>No translators folder is set; the Mertle Server is not installed or removed</source>
        <translation>변환기 폴더가 없으므로 Mertle Server를 변경하지 않습니다</translation>
    </message>
    <message>
        <source>Installing Mertle Server</source>
        <translation>Mertle Server를 설치하는 중</translation>
    </message>
</context>
<context>
    <name>BrevantLauncher</name>
    <message>
        <source>Configure Brevant</source>
        <translation>Brevant 구성 중</translation>
    </message>
</context>
<context>
    <name>ClassWizard</name>
    <message>
        <source>%1 %2 Configuration Wizard</source>
        <translation>%1 %2 구성 마법사</translation>
    </message>
    <message>
        <source>Program exiting</source>
        <translation>프로그램을 종료하는 중</translation>
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
        <translation>NVX에서 사용할 수 있는 명령줄 인수는 다음과 같습니다.
-I 설치 모드(기본값)
-U 제거 모드
-STop 서비스 중지
-S 자동 모드
-L 영어(미국) 설치
-Lxxx 언어 xxx 설치
-E %temp%NVXENv.txt에서 설치 언어 찾기

 계속하시겠습니까?
</translation>
    </message>
</context>
<context>
    <name>CommandRunner</name>
    <message>
        <source>The program could not be started.</source>
        <translation>프로그램을 시작할 수 없습니다.</translation>
    </message>
    <message>
        <source>The program was still running after %1 ms and has been ended.</source>
        <translation>프로그램이 %1밀리초 후에도 계속 실행 중이어서 종료했습니다.</translation>
    </message>
    <message>
        <source>The program crashed.</source>
        <translation>프로그램이 비정상적으로 종료되었습니다.</translation>
    </message>
    <message>
        <source>The name of this folder cannot be written in the command interpreter&apos;s code page; it is not removed: %1</source>
        <translation>명령 인터프리터의 코드 페이지로 이 폴더의 이름을 나타낼 수 없어 제거하지 않습니다: %1</translation>
    </message>
    <message>
        <source>Unable to create %1; this folder is not removed: %2</source>
        <translation>%1을(를) 만들 수 없어 이 폴더를 제거하지 않습니다: %2</translation>
    </message>
    <message>
        <source>The name of this folder contains a character that ends or changes a command; it is not removed: %1</source>
        <translation>이 폴더의 이름에 명령을 끝내거나 바꾸는 문자가 있어 제거하지 않습니다: %1</translation>
    </message>
</context>
<context>
    <name>ConclusionPage</name>
    <message>
        <source>Conclusion </source>
        <translation>마지막 단계 </translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행 상황</translation>
    </message>
</context>
<context>
    <name>ContextHelp</name>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
</context>
<context>
    <name>CreoLauncher</name>
    <message>
        <source> Creo Remove:</source>
        <translation> - Creo 제거:</translation>
    </message>
    <message>
        <source>Removing Ostrade from:</source>
        <translation>다음 파일에서 Ostrade를 제거하는 중:</translation>
    </message>
    <message>
        <source>Writing </source>
        <translation>쓰는 중: </translation>
    </message>
    <message>
        <source>Creating  </source>
        <translation>만드는 중:  </translation>
    </message>
    <message>
        <source>Ostrade %1 already exists, do nothing</source>
        <translation>Ostrade %1이(가) 이미 있으므로 아무 작업도 하지 않습니다</translation>
    </message>
</context>
<context>
    <name>Detection</name>
    <message>
        <source>%1 Install Dir:%2</source>
        <translation>%1 설치 폴더: %2</translation>
    </message>
    <message>
        <source>Using %1 Install Dir:%2</source>
        <translation>%1 사용, 설치 폴더: %2</translation>
    </message>
    <message>
        <source>%1 Product Code =%2</source>
        <translation>%1 제품 코드 =%2</translation>
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
        <translation>CAD 런처 </translation>
    </message>
    <message>
        <source>NVX launchers will be installed for the CAD systems that are checked.</source>
        <translation>선택한 CAD 시스템에 NVX 런처가 설치됩니다.</translation>
    </message>
</context>
<context>
    <name>FileAssociations</name>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; no files are associated with the product: %1</source>
        <translation>시스템 코드 페이지로 폴더 이름을 나타낼 수 없어 파일을 제품에 연결하지 않습니다: %1</translation>
    </message>
    <message>
        <source>Create file associations</source>
        <translation>파일 연결을 만드는 중</translation>
    </message>
    <message>
        <source>The install folder is unknown; no files are associated</source>
        <translation>설치 폴더를 알 수 없어 파일을 연결하지 않습니다</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>The install folder&apos;s path cannot be written in the system&apos;s code page; the launcher is not added to %1</source>
        <translation>시스템 코드 페이지로 설치 폴더의 이름을 나타낼 수 없어 런처를 %1에 등록하지 않습니다</translation>
    </message>
</context>
<context>
    <name>Localization::TranslationJob</name>
    <message>
        <source>%1 is a link, which is not followed</source>
        <translation>%1은(는) 링크이므로 따라가지 않습니다</translation>
    </message>
    <message>
        <source>%1 has more than %2 files; the others are not downloaded</source>
        <translation>%1에 파일이 %2개보다 많습니다. 나머지는 다운로드하지 않습니다</translation>
    </message>
    <message>
        <source>%1 is refused: %2</source>
        <translation>%1을(를) 받아들이지 않습니다: %2</translation>
    </message>
</context>
<context>
    <name>MaterialDatabase</name>
    <message>
        <source>Checking material database</source>
        <translation>재료 데이터베이스를 확인하는 중</translation>
    </message>
    <message>
        <source>Installation error matprop.mdb does not exist?</source>
        <translation>설치 오류: matprop.mdb 파일이 없는 것 같습니다.</translation>
    </message>
    <message>
        <source>Installation error: </source>
        <translation>설치 오류: </translation>
    </message>
    <message>
        <source> does not exist.</source>
        <translation> 파일이 없습니다.</translation>
    </message>
    <message>
        <source>Copy: </source>
        <translation>복사: </translation>
    </message>
    <message>
        <source> to: </source>
        <translation> → </translation>
    </message>
    <message>
        <source>Remove: </source>
        <translation>제거: </translation>
    </message>
</context>
<context>
    <name>Nvx::Wizard::ProgressList</name>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>모두 선택(&amp;A)</translation>
    </message>
</context>
<context>
    <name>NxLauncher</name>
    <message>
        <source>Copying %1 to %2</source>
        <translation>%1을(를) %2(으)로 복사하는 중</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>확인 중:</translation>
    </message>
    <message>
        <source>Creating</source>
        <translation>만드는 중:</translation>
    </message>
</context>
<context>
    <name>ParallelConfiguration</name>
    <message>
        <source>Created NVX2 default configuration: %1</source>
        <translation>NVX2 기본 구성을 만들었습니다: %1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 default configuration: %1</source>
        <translation>NVX2 기본 구성을 만들 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Created NVX2 analyze folder: %1</source>
        <translation>NVX2 해석 폴더를 만들었습니다: %1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 analyze folder: %1</source>
        <translation>NVX2 해석 폴더를 만들 수 없습니다: %1</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>%1 terminated</source>
        <translation>%1을(를) 종료했습니다</translation>
    </message>
    <message>
        <source>%1 was not terminated</source>
        <translation>%1을(를) 종료하지 못했습니다</translation>
    </message>
</context>
<context>
    <name>ProcessGuard</name>
    <message>
        <source>Click Yes to continue after the process is stopped.
Click No to continue without stopping the process.</source>
        <translation>프로세스를 종료한 후 계속하려면 [예]를 클릭하십시오.
프로세스를 종료하지 않고 계속하려면 [아니요]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Click Yes to continue after the processes are stopped.
Click No to continue without stopping the processes.</source>
        <translation>이러한 프로세스를 종료한 후 계속하려면 [예]를 클릭하십시오.
이러한 프로세스를 종료하지 않고 계속하려면 [아니요]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1이(가) 실행 중입니다. NVX 런처 추가 기능을 구성하려면 먼저 종료해야 합니다.</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>%1이(가) 실행 중입니다. NVX 런처 추가 기능을 구성하려면 먼저 모두 종료해야 합니다.</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before continuing.</source>
        <translation>%1이(가) 실행 중입니다. 계속하려면 먼저 종료해야 합니다.</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before continuing.</source>
        <translation>%1이(가) 실행 중입니다. 계속하려면 먼저 모두 종료해야 합니다.</translation>
    </message>
    <message>
        <source>CAD Launcher Installation</source>
        <translation>CAD 런처 설치</translation>
    </message>
    <message>
        <source>Velmora %1 Installation</source>
        <translation>Velmora %1 설치</translation>
    </message>
</context>
<context>
    <name>ProductFiles</name>
    <message>
        <source>%1 does not belong to administrators and may lead elsewhere; this is left unchanged: %2</source>
        <translation>%1은(는) 관리자의 소유가 아니며 다른 위치를 가리킬 수 있으므로 변경하지 않습니다: %2</translation>
    </message>
    <message>
        <source>Unable to limit write access to this folder to administrators: %1</source>
        <translation>이 폴더의 쓰기 권한을 관리자로 제한할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Unable to take this folder over from the user who created it: %1</source>
        <translation>이 폴더를 만든 사용자로부터 소유권을 가져올 수 없습니다: %1</translation>
    </message>
</context>
<context>
    <name>ProductRegistry</name>
    <message>
        <source>Updating language registry uninstall </source>
        <translation>레지스트리의 제거 언어를 업데이트하는 중 </translation>
    </message>
    <message>
        <source>Updating language registry uninstall currently is:</source>
        <translation>레지스트리의 제거 언어 - 현재 값:</translation>
    </message>
    <message>
        <source>Updating language registry uninstall locale=</source>
        <translation>레지스트리의 제거 언어 - 로캘=</translation>
    </message>
    <message>
        <source>Updating language registry uninstall set to:</source>
        <translation>레지스트리의 제거 언어 - 새 값:</translation>
    </message>
    <message>
        <source>Registry paths</source>
        <translation>레지스트리 경로</translation>
    </message>
</context>
<context>
    <name>ServerService</name>
    <message>
        <source>Unable to find server executable; Check_ Installation Directory path:</source>
        <translation>서버 프로그램을 찾을 수 없습니다. 설치 폴더 경로를 확인하십시오:</translation>
    </message>
    <message>
        <source>Unable to install the server</source>
        <translation>서버를 설치할 수 없습니다</translation>
    </message>
    <message>
        <source>Server Error</source>
        <translation>서버 오류</translation>
    </message>
    <message>
        <source>Manages communication between NVX components.</source>
        <translation>NVX 구성 요소 간의 통신을 관리합니다.</translation>
    </message>
    <message>
        <source>uninstallServer </source>
        <translation>uninstallServer </translation>
    </message>
    <message>
        <source>uninstallServer - could not stop service</source>
        <translation>uninstallServer - 서비스를 중지할 수 없습니다</translation>
    </message>
    <message>
        <source>uninstallServer - service was not installed</source>
        <translation>uninstallServer - 서비스가 설치되어 있지 않았습니다</translation>
    </message>
    <message>
        <source>uninstallServer - could not uninstall service</source>
        <translation>uninstallServer - 서비스를 제거할 수 없습니다</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Desktop=</source>
        <translation>바탕 화면=</translation>
    </message>
    <message>
        <source>The shared desktop folder was not found; no shortcut was created</source>
        <translation>모든 사용자용 바탕 화면 폴더가 없어 바로 가기를 만들지 않습니다</translation>
    </message>
    <message>
        <source>Unable to remove %1</source>
        <translation>%1을(를) 제거할 수 없습니다</translation>
    </message>
    <message>
        <source>This text is too long for a shortcut: %1</source>
        <translation>이 텍스트는 너무 길어 바로 가기에 사용할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Create shortcut </source>
        <translation>바로 가기 만들기: </translation>
    </message>
</context>
<context>
    <name>SpaceClaimLauncher</name>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>복사: %1 → %2</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Stopping Services</source>
        <translation>서비스를 중지하는 중</translation>
    </message>
</context>
<context>
    <name>TamselLauncher</name>
    <message>
        <source>Open failed:</source>
        <translation>열지 못했습니다:</translation>
    </message>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>복사: %1 → %2</translation>
    </message>
    <message>
        <source>Tamsel Addin</source>
        <translation>Tamsel 추가 기능</translation>
    </message>
    <message>
        <source>Removing:</source>
        <translation>제거:</translation>
    </message>
</context>
<context>
    <name>TranslationAnswer</name>
    <message>
        <source>it is for the language %1</source>
        <translation>%1 언어용 파일입니다</translation>
    </message>
    <message>
        <source>the values such as %1 differ between &quot;%2&quot; and its translation &quot;%3&quot;</source>
        <translation>%1과(와) 같은 값이 “%2”과(와) 해당 번역 “%3”에서 일치하지 않습니다</translation>
    </message>
    <message>
        <source>it has %1 finished texts, and the existing file has %2</source>
        <translation>완료된 텍스트가 %1개이고 기존 파일에는 %2개입니다</translation>
    </message>
</context>
<context>
    <name>UserFiles</name>
    <message>
        <source>Remove: </source>
        <translation>제거: </translation>
    </message>
    <message>
        <source>Remove: Report .pyc files</source>
        <translation>제거: 보고서 .pyc 파일</translation>
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
        <translation>NVX 3D-ViewerConfig를 실행하는 중입니다.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>English</source>
        <translation>영어</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation>중국어(간체)</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation>중국어(번체)</translation>
    </message>
    <message>
        <source>German</source>
        <translation>독일어</translation>
    </message>
    <message>
        <source>French</source>
        <translation>프랑스어</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>일본어</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>이탈리아어</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>러시아어</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>환영합니다</translation>
    </message>
    <message>
        <source>This wizard will configure Velmora %1 %2 for your system.</source>
        <translation>이 마법사는 사용 중인 시스템에 맞게 Velmora %1 %2을(를) 구성합니다.</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>언어 변경</translation>
    </message>
</context>
<context>
    <name>cfg_utilitys</name>
    <message>
        <source>Program startup - %1 DIR== %2</source>
        <translation>프로그램 시작 - %1 DIR== %2</translation>
    </message>
    <message>
        <source>NVX Configuration Utility</source>
        <translation>NVX 구성 유틸리티</translation>
    </message>
    <message>
        <source>Processing </source>
        <translation>처리 중: </translation>
    </message>
    <message>
        <source> has not changed</source>
        <translation> 파일이 변경되지 않았습니다</translation>
    </message>
    <message>
        <source> has changed, not removing</source>
        <translation> 파일이 변경되어 제거하지 않습니다</translation>
    </message>
    <message>
        <source>Creating </source>
        <translation>만드는 중: </translation>
    </message>
    <message>
        <source>Unable to create %1</source>
        <translation>%1을(를) 만들 수 없습니다</translation>
    </message>
    <message>
        <source>Language </source>
        <translation>언어: </translation>
    </message>
    <message>
        <source>No Language locale Specified</source>
        <translation>언어가 지정되지 않았습니다</translation>
    </message>
    <message>
        <source>Install Language: </source>
        <translation>설치 언어: </translation>
    </message>
    <message>
        <source>ChangeLanguage = </source>
        <translation>언어 변경 = </translation>
    </message>
    <message>
        <source>COPY:%1 to %2</source>
        <translation>복사: %1 → %2</translation>
    </message>
    <message>
        <source>Remove:</source>
        <translation>제거:</translation>
    </message>
    <message>
        <source>zorv :</source>
        <translation>zorv :</translation>
    </message>
    <message>
        <source>Beginning </source>
        <translation>시작: </translation>
    </message>
    <message>
        <source>The installation or update is complete. Click finish to continue.</source>
        <translation>설치 또는 업데이트가 완료되었습니다. 계속하려면 [완료]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Processors: %1, Cores per processor: %2</source>
        <translation>프로세서 수: %1, 프로세서당 코어 수: %2</translation>
    </message>
    <message>
        <source>Command Line:</source>
        <translation>명령줄:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>설치</translation>
    </message>
    <message>
        <source>UnInstall</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Found </source>
        <translation>찾음: </translation>
    </message>
    <message>
        <source> Success</source>
        <translation> - 성공</translation>
    </message>
    <message>
        <source> Failed</source>
        <translation> - 실패</translation>
    </message>
    <message>
        <source>Command line arguments</source>
        <translation>명령줄 인수</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora %1 %2 DIR=</source>
        <translation>설치 경로 확인 Velmora %1 %2 DIR=</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora NVX %1 DIR=</source>
        <translation>설치 경로 확인 Velmora NVX %1 DIR=</translation>
    </message>
    <message>
        <source>Install Path OK </source>
        <translation>설치 경로가 올바름: </translation>
    </message>
    <message>
        <source>user dir=</source>
        <translation>사용자 폴더=</translation>
    </message>
    <message>
        <source>Program startup - Install path is empty or is invalid, resetting to:</source>
        <translation>프로그램 시작 - 설치 경로가 비어 있거나 올바르지 않아 다음으로 다시 설정합니다:</translation>
    </message>
    <message>
        <source>Removing installation path environment variables.</source>
        <translation>설치 경로 환경 변수를 제거하는 중:</translation>
    </message>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; %1 is not set</source>
        <translation>시스템 코드 페이지로 폴더 이름을 나타낼 수 없어 %1이(가) 설정되지 않습니다</translation>
    </message>
    <message>
        <source>Searching for CAD Packages</source>
        <translation>CAD 패키지를 찾는 중</translation>
    </message>
    <message>
        <source>Finished searching for CAD Packages</source>
        <translation>CAD 패키지 찾기를 완료했습니다</translation>
    </message>
    <message>
        <source>Another run of this program is in progress on this machine. This one continues when that has ended, after %1 minutes at the latest.</source>
        <translation>이 컴퓨터에서 이 프로그램이 이미 실행 중입니다. 다른 실행이 끝나면 계속되며, 최대 %1분 동안 기다립니다.</translation>
    </message>
    <message>
        <source>Another run was in progress; this one has waited for its end</source>
        <translation>다른 실행이 진행 중이어서 끝날 때까지 기다렸습니다</translation>
    </message>
    <message>
        <source>Another run has been in progress for %1 minutes; this one no longer waits for its end</source>
        <translation>다른 실행이 %1분 동안 진행 중이어서 더 이상 기다리지 않습니다</translation>
    </message>
    <message>
        <source>Unable to check whether another run is in progress; a program without administrator rights may have prevented it</source>
        <translation>다른 실행이 진행 중인지 확인할 수 없습니다. 관리자 권한이 없는 프로그램이 막았을 수 있습니다</translation>
    </message>
    <message>
        <source>%1 is not used; it is not an ordinary file of at most %2 KiB</source>
        <translation>%1은(는) 사용되지 않습니다. %2KiB 이하의 일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>%1 is being configured. If you sign out now, it stays incomplete.</source>
        <translation>%1을(를) 구성하는 중입니다. 지금 로그아웃하면 구성이 완료되지 않습니다.</translation>
    </message>
</context>
<context>
    <name>util::util_localization_tool</name>
    <message>
        <source>%1 is damaged</source>
        <translation>%1이(가) 손상되었습니다</translation>
    </message>
    <message>
        <source>No source folder was found; nothing is translated</source>
        <translation>소스 코드 폴더가 없어 아무것도 번역하지 않습니다</translation>
    </message>
    <message>
        <source>%1: %2 texts to translate</source>
        <translation>%1: 번역할 텍스트 %2개</translation>
    </message>
    <message>
        <source>%1 texts to translate in %2 files</source>
        <translation>번역할 텍스트 %1개(파일 %2개)</translation>
    </message>
    <message>
        <source>localization.xml has no full path of a folder with lupdate and lrelease; nothing is updated or compiled</source>
        <translation>localization.xml에 lupdate와 lrelease가 있는 폴더의 전체 경로가 없어 아무것도 업데이트하거나 컴파일하지 않습니다</translation>
    </message>
    <message>
        <source>%1: %2 texts finished, %3 open; %4 files refused</source>
        <translation>%1: 완료된 텍스트 %2개, 미완료 %3개, 받아들이지 않은 파일 %4개</translation>
    </message>
</context>
</TS>
