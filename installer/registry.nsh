; The installation's registry values and environment variables.

!define PRODUCT_KEY "Software\Velmora\NVX"
; The product code of the MSI that has installed the product.
!define MSI_VALUE "WindowsInstaller"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\NVX 2017"
!define TRANSLATORS_KEY "Software\Velmora\Kelvane\Translators"
!define ENVIRONMENT_KEY "SYSTEM\CurrentControlSet\Control\Session Manager\Environment"

!macro EachVariable ACTION
    !insertmacro ${ACTION} OSTRADE
    !insertmacro ${ACTION} OSTRADE2017DIR
    !insertmacro ${ACTION} OSTRADE2017TEMP
!macroend

; The configuration program inherits them from this process.
!macro SetVariable NAME
    WriteRegStr HKLM "${ENVIRONMENT_KEY}" "${NAME}" "$INSTDIR"
    StrCpy $0 "${NAME}"
    StrCpy $1 "$INSTDIR"
    System::Call "kernel32::SetEnvironmentVariableW(w r0, w r1)"
!macroend

; A variable with another folder belongs to another installation.
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

; Sets $Translators to the folder of the translation server's programs, which may not exist yet.
Function FindTranslators
    ReadRegStr $Translators HKLM "${TRANSLATORS_KEY}" "Folder"
    ${If} $Translators == ""
        StrCpy $Translators "$PROGRAMFILES64\Velmora\Kelvane\Translators"
    ${EndIf}
FunctionEnd

; When the language is changed, the product replaces the locale after /LANG= and removes what follows it. So this
; option is the last one of the command.
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

; The product's key stays, as after a removal by the product itself.
!macro RegistryFunctions UN
Function ${UN}ClearVariables
    !insertmacro EachVariable ClearVariable
    !insertmacro AnnounceVariables
FunctionEnd

; The translators' folder stays registered as long as it exists.
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
