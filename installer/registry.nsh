; What stands of the installation on the machine besides its files.

!define PRODUCT_KEY "Software\Velmora\NVX"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\NVX 2017"
!define TRANSLATORS_KEY "Software\Velmora\Kelvane\Translators"
!define ENVIRONMENT_KEY "SYSTEM\CurrentControlSet\Control\Session Manager\Environment"

!macro EachVariable ACTION
    !insertmacro ${ACTION} OSTRADE
    !insertmacro ${ACTION} OSTRADE2017DIR
    !insertmacro ${ACTION} OSTRADE2017TEMP
!macroend

; The configuration that we start finds them in our own environment.
!macro SetVariable NAME
    WriteRegStr HKLM "${ENVIRONMENT_KEY}" "${NAME}" "$INSTDIR"
    StrCpy $0 "${NAME}"
    StrCpy $1 "$INSTDIR"
    System::Call "kernel32::SetEnvironmentVariableW(w r0, w r1)"
!macroend

; One that points elsewhere is another installation's.
!macro ClearVariable NAME
    ReadRegStr $0 HKLM "${ENVIRONMENT_KEY}" "${NAME}"
    ${If} $0 == $INSTDIR
        DeleteRegValue HKLM "${ENVIRONMENT_KEY}" "${NAME}"
    ${EndIf}
!macroend

!macro AnnounceVariables
    SendMessage ${HWND_BROADCAST} ${WM_SETTINGCHANGE} 0 "STR:Environment" /TIMEOUT=2000
!macroend

Function SetVariables
    !insertmacro EachVariable SetVariable
    !insertmacro AnnounceVariables
FunctionEnd

; $Translators: where the translation server's programs lie, or are to lie.
Function FindTranslators
    ReadRegStr $Translators HKLM "${TRANSLATORS_KEY}" "Folder"
    ${If} $Translators == ""
        StrCpy $Translators "$PROGRAMFILES64\Velmora\Kelvane\Translators"
    ${EndIf}
FunctionEnd

; The product puts another locale behind /LANG= when its language is changed, and takes what follows away;
; so the option is the last one of the command.
Function WriteEntry
    StrCpy $0 '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallPath" "$0 /LANG=$Locale"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" "$0 /LANG=$Locale"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "QuietUninstallString" "$0 /S"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "Velmora NVX 2017"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${PRODUCT_VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\NVXConfig.exe"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "Publisher" "Velmora"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "TranslatorsFolder" "$Translators"
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "EstimatedSize" ${PRODUCT_KILOBYTES}
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
    WriteRegStr HKLM "${TRANSLATORS_KEY}" "Folder" "$Translators"
FunctionEnd

; The product's own key stays: the product leaves it, too.
!macro RegistryFunctions UN
Function ${UN}ClearVariables
    !insertmacro EachVariable ClearVariable
    !insertmacro AnnounceVariables
FunctionEnd

; The translators' folder is told to others as long as there is one.
Function ${UN}ClearEntry
    DeleteRegKey HKLM "${UNINSTALL_KEY}"
    ReadRegStr $0 HKLM "${TRANSLATORS_KEY}" "Folder"
    ${If} $0 == $Translators
    ${AndIfNot} ${FileExists} "$Translators\*.*"
        DeleteRegValue HKLM "${TRANSLATORS_KEY}" "Folder"
        DeleteRegKey /ifempty HKLM "${TRANSLATORS_KEY}"
        DeleteRegKey /ifempty HKLM "Software\Velmora\Kelvane"
    ${EndIf}
FunctionEnd
!macroend
!insertmacro RegistryFunctions ""
!insertmacro RegistryFunctions "un."
