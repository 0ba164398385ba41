; The installer of NVX 2017: copies the product and runs its configuration, and removes both.
;
;     /S            without a window; the exit status is 0 only if everything is installed, 1618 if another set-up or
;                   a CAD system is running, and 1638 if the product was installed by the MSI
;     /LANG=de-DE   the language of the installer and of the product
;     /TIMEOUT=N    ends a configuration that takes longer than N seconds, by default 1800; the set-up has then failed
;     /TOOLS        also the tools for the product's developers, which stay selected in the set-ups after it
;     /LOG=FILE     appends what the set-up does to the file, which must not have blanks in its path
;     /D=FOLDER     the install dir; must be the last option, without quotes
;
; An installed product is replaced in its folder, and in its language unless an option selects another one.
;
; Defined by the build: PRODUCT_VERSION, PRODUCT_KILOBYTES, LISTS (the lists of the files), ICON, SETUP_TASK (the
; program NVXSetupTask.exe), SIGN (the command that signs the file %1), SIDE_PICTURE and OUT_FILE.

Target amd64-unicode
SetCompressor /SOLID lzma

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WinMessages.nsh
!include Sections.nsh

Name "NVX 2017"
OutFile "${OUT_FILE}"
InstallDir "$PROGRAMFILES64\Velmora\NVX 2017"
BrandingText "Velmora NVX 2017"
RequestExecutionLevel admin
ManifestDPIAware true
ManifestSupportedOS all
AllowSkipFiles off

Var Locale
; The destination folder of a file: the install dir or the translators' folder.
Var Root
Var Translators
; What would have to be undone: "", "stopped" or "registered".
Var Done
; Whether the product was installed before.
Var Upgrade
Var VersionBefore
; A file that the removal could not delete.
Var Left
; The time limit of a configuration.
Var Seconds
; Whether the developers' tools are installed.
Var Tools
Var LogFile

!define ERROR_ALREADY_EXISTS 183
!define ERROR_INSTALL_ALREADY_RUNNING 1618
!define ERROR_PRODUCT_VERSION 1638

!uninstfinalize '${SIGN}'
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDE_PICTURE}"
!define MUI_ABORTWARNING
!define MUI_LANGDLL_ALLLANGUAGES

; Without descriptions, which the names of the components do not need, the list is wide enough for them.
!define MUI_COMPONENTSPAGE_NODESC

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_COMPONENTS
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipWhenInstalled
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

!include "${LISTS}"
!include registry.nsh
!include languages.nsh
!include messages.nsh
!include log.nsh
!include configuration.nsh
!include files.nsh

VIProductVersion "${PRODUCT_VERSION}.0"
VIFileVersion "${PRODUCT_VERSION}.0"
!macro TellVersion LOCALE NAME ID
    VIAddVersionKey /LANG=${LANG_${ID}} CompanyName "Velmora"
    VIAddVersionKey /LANG=${LANG_${ID}} ProductName "NVX 2017"
    VIAddVersionKey /LANG=${LANG_${ID}} ProductVersion "2017"
    VIAddVersionKey /LANG=${LANG_${ID}} FileDescription "NVX 2017"
    VIAddVersionKey /LANG=${LANG_${ID}} FileVersion "${PRODUCT_VERSION}"
    VIAddVersionKey /LANG=${LANG_${ID}} LegalCopyright "Velmora"
!macroend
!insertmacro EachLanguage TellVersion

Function .onInit
    SetRegView 64
    SetShellVarContext all
    Call ChooseLanguage
    Call OpenLog
    ${GetParameters} $1
    ClearErrors
    ${GetOptions} $1 "/LANG=" $0
    ${If} ${Errors}
        ; Shows nothing in a silent run.
        !insertmacro MUI_LANGDLL_DISPLAY
        Call NameLocale
    ${EndIf}
    ReadRegStr $0 HKLM "${PRODUCT_KEY}" "${MSI_VALUE}"
    ${If} $0 != ""
        ${Note} "$(InstalledByMsi)"
        MessageBox MB_OK|MB_ICONSTOP "$(InstalledByMsi)" /SD IDOK
        SetErrorLevel ${ERROR_PRODUCT_VERSION}
        Quit
    ${EndIf}
    Call PrepareTasks
    Call CheckMachine
    Call FindInstalled
    Call SelectTools
FunctionEnd

; Sets $Upgrade; an installed product stays in its folder.
Function FindInstalled
    ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
    StrCpy $Upgrade no
    ${If} $0 != ""
    ${AndIf} ${FileExists} "$0\NVXConfig.exe"
        StrCpy $INSTDIR $0
        StrCpy $Upgrade yes
    ${EndIf}
FunctionEnd

Function SkipWhenInstalled
    ${If} $Upgrade == yes
        Abort
    ${EndIf}
FunctionEnd

Section /o "$(Tools)" ToolsSection
    StrCpy $Tools yes
SectionEnd

; Sets the state of the section; tools that are installed stay.
Function SelectTools
    ${GetParameters} $1
    ClearErrors
    ${GetOptions} $1 "/TOOLS" $0
    ${IfNot} ${Errors}
    ${OrIf} ${FileExists} "$INSTDIR\MessageTableUtility.exe"
        SectionSetFlags ${ToolsSection} ${SF_SELECTED}
    ${EndIf}
FunctionEnd

; After the section above. It has no name, so it cannot be left out.
Section
    ; The required space shown on the page of the folder.
    AddSize ${PRODUCT_KILOBYTES}
    StrCpy $Done ""
    Call FindTranslators
    Call ReserveFolder
    ${If} ${FileExists} "$INSTDIR${MARK}"
        Call TakeFilesBack
    ${EndIf}
    ; Also a product that was not registered or whose folder was selected on the page.
    ${If} ${FileExists} "$INSTDIR\NVXConfig.exe"
        StrCpy $Upgrade yes
    ${EndIf}

    ReadRegStr $VersionBefore HKLM "${UNINSTALL_KEY}" "DisplayVersion"
    Call UnpackFiles
    ${If} $Upgrade == yes
        ; The server's program can be replaced when its service has been removed.
        StrCpy $Done stopped
        StrCpy $R0 "-ST -S -L$Locale"
        Call Configure
    ${EndIf}
    Call ReplaceFiles

    StrCpy $Done registered
    Call WriteEntry
    Call SetVariables
    StrCpy $R0 "-I -S -L$Locale"
    Call Configure
    ${If} ${Errors}
        Abort "$(^Exec)$INSTDIR\NVXConfig.exe"
    ${EndIf}
    Call SettleFiles
    ${Note} "$(^Completed)"
SectionEnd

Function .onInstFailed
    StrCpy $Seconds ${TIMEOUT}
    ${If} $Upgrade != yes
    ${AndIf} $Done == registered
        ; What the configuration had done before it failed.
        StrCpy $R0 "-U -S -L$Locale"
        Call Configure
        Call DropCreatedFiles
    ${EndIf}
    Call TakeFilesBack
    ${If} $Upgrade == yes
    ${AndIf} $Done != ""
        ; The previous product is restored, in its language.
        ${If} $VersionBefore == ""
            Call ClearEntry
        ${Else}
            WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "$VersionBefore"
        ${EndIf}
        Call InstalledLocale
        ${If} $0 != ""
            StrCpy $Locale $0
        ${EndIf}
        Call SetVariables
        StrCpy $R0 "-I -S -L$Locale"
        Call Configure
    ${ElseIf} $Done == registered
        Call ClearVariables
        Call ClearEntry
    ${EndIf}
FunctionEnd

Function un.onInit
    SetRegView 64
    SetShellVarContext all
    Call un.ChooseLanguage
    Call un.OpenLog
    ReadRegStr $Translators HKLM "${UNINSTALL_KEY}" "TranslatorsFolder"
    Call un.PrepareTasks
    Call un.CheckMachine
FunctionEnd

Section un.Product
    ${If} ${FileExists} "$INSTDIR\NVXConfig.exe"
        StrCpy $R0 "-U -S -L$Locale"
        Call un.Configure
        ${If} ${Errors}
            Abort "$(^Exec)$INSTDIR\NVXConfig.exe"
        ${EndIf}
    ${EndIf}
    StrCpy $Left ""
    Call un.RemoveFiles
    ${If} $Left != ""
        ; The entry stays, so that the removal can be repeated.
        Abort "$(^CantWrite)$Left"
    ${EndIf}
    StrCpy $Root $Translators
    !insertmacro EachTranslatorsFolder DropFolder
    Call un.ClearVariables
    Call un.ClearEntry
    Delete "$INSTDIR\uninstall.exe"
    StrCpy $Root $INSTDIR
    !insertmacro EachToolsFolder DropFolder
    !insertmacro EachProductFolder DropFolder
    Call un.DropOuterFolders
    ${Note} "$(^Completed)"
SectionEnd
