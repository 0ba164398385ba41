; The installer's languages, and the product's locale for each. make_installer.cmake writes the macro EachLanguage
; from the product's table of languages. The first language is the default.

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

; ChooseLanguage sets $LANGUAGE and $Locale from the option /LANG=xx-XX, else from the language in which the
; product is installed, else from the language of Windows. For a locale that is not in the table it is English.
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

; Sets $0 to the locale of the installed product, or to "".
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
