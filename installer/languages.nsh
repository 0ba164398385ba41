; The installer's languages, and the locale by which the product knows each.

; The first one serves where nothing else fits.
!macro EachLanguage ACTION
    !insertmacro ${ACTION} en-US English ENGLISH
    !insertmacro ${ACTION} de-DE German GERMAN
    !insertmacro ${ACTION} fr-FR French FRENCH
    !insertmacro ${ACTION} it-IT Italian ITALIAN
    !insertmacro ${ACTION} ja-JP Japanese JAPANESE
    !insertmacro ${ACTION} ko-KR Korean KOREAN
    !insertmacro ${ACTION} ru-RU Russian RUSSIAN
    !insertmacro ${ACTION} zh-CN SimpChinese SIMPCHINESE
    !insertmacro ${ACTION} zh-TW TradChinese TRADCHINESE
!macroend

!macro LoadLanguage LOCALE NAME ID
    !insertmacro MUI_LANGUAGE ${NAME}
!macroend
!insertmacro EachLanguage LoadLanguage

!macro TakeLanguageOfLocale LOCALE NAME ID
    ${If} $0 == ${LOCALE}
        StrCpy $LANGUAGE ${LANG_${ID}}
    ${EndIf}
!macroend

!macro TakeLocaleOfLanguage LOCALE NAME ID
    ${If} $LANGUAGE = ${LANG_${ID}}
        StrCpy $Locale ${LOCALE}
    ${EndIf}
!macroend

; ChooseLanguage settles $LANGUAGE and $Locale: the option /LANG=xx-XX counts most, then the language in
; which the product is installed, then Windows' own. A locale that is not among ours gives English.
!macro LanguageFunctions UN
Function ${UN}ChooseLanguage
    ${GetParameters} $1
    ClearErrors
    ${GetOptions} $1 "/LANG=" $0
    ${If} ${Errors}
        Call ${UN}InstalledLocale
        ${If} $0 == ""
            Call ${UN}NameLocale
            Return
        ${EndIf}
    ${EndIf}
    StrCpy $LANGUAGE ${LANG_ENGLISH}
    !insertmacro EachLanguage TakeLanguageOfLocale
    Call ${UN}NameLocale
FunctionEnd

Function ${UN}NameLocale
    StrCpy $Locale en-US
    !insertmacro EachLanguage TakeLocaleOfLanguage
FunctionEnd

; $0: the locale of the product that is installed, or nothing.
Function ${UN}InstalledLocale
    StrCpy $0 ""
    ReadRegStr $1 HKLM "${UNINSTALL_KEY}" "UninstallString"
    ${If} $1 != ""
        ReadRegStr $0 HKLM "${PRODUCT_KEY}\17.2" "Locale"
    ${EndIf}
FunctionEnd
!macroend
!insertmacro LanguageFunctions ""
!insertmacro LanguageFunctions "un."
