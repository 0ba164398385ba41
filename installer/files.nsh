; Installs the product's files, all or none.
;
; They are first unpacked into a folder below their destination, so that a full disk or a damaged set-up program is
; detected before anything has changed. Then each existing file is moved into that folder, and the new one to its
; destination. Until the set-up is complete, this can be undone, also by the next set-up if this one is killed.

!define WORK "\setup in progress"
!define NEW "${WORK}\new"
!define OLD "${WORK}\old"
; Exists from the time when everything is unpacked until the set-up is complete.
!define MARK "${WORK}\replacing"

; Does something with each file of the product, with $Root set to its destination folder.
!macro EachFile ACTION
    StrCpy $Root $INSTDIR
    !insertmacro EachProductFile ${ACTION}
    !insertmacro EachToolsFile ${ACTION}
    StrCpy $Root $Translators
    !insertmacro EachTranslatorsFile ${ACTION}
!macroend

; The same without the developers' tools, unless they are selected.
!macro EachSelectedFile ACTION
    StrCpy $Root $INSTDIR
    !insertmacro EachProductFile ${ACTION}
    ${If} $Tools == yes
        !insertmacro EachToolsFile ${ACTION}
    ${EndIf}
    StrCpy $Root $Translators
    !insertmacro EachTranslatorsFile ${ACTION}
!macroend

; The same for each folder, subfolders first.
!macro EachFolder ACTION
    StrCpy $Root $Translators
    !insertmacro EachTranslatorsFolder ${ACTION}
    StrCpy $Root $INSTDIR
    !insertmacro EachToolsFolder ${ACTION}
    !insertmacro EachProductFolder ${ACTION}
!macroend

!macro Unpack FOLDER FILE SOURCE
    SetOutPath "$Root${NEW}${FOLDER}"
    File "${SOURCE}"
!macroend

; The functions take the folder in $R0 and the file in $R1.
!macro CallWith FUNCTION FOLDER FILE
    StrCpy $R0 "${FOLDER}"
    StrCpy $R1 "${FILE}"
    Call ${FUNCTION}
!macroend
!macro Replace FOLDER FILE SOURCE
    !insertmacro CallWith ReplaceFile "${FOLDER}" "${FILE}"
!macroend
!macro TakeBack FOLDER FILE SOURCE
    !insertmacro CallWith TakeFileBack "${FOLDER}" "${FILE}"
!macroend
!macro DropWork FOLDER FILE SOURCE
    !insertmacro CallWith DropWorkFile "${FOLDER}" "${FILE}"
!macroend
!macro DropWorkFolder FOLDER
    RMDir "$Root${NEW}${FOLDER}"
    RMDir "$Root${OLD}${FOLDER}"
!macroend
!macro DropFolder FOLDER
    RMDir "$Root${FOLDER}"
!macroend

; Moves the unpacked file to its destination and backs up the existing one. If that fails, asks the user; a silent
; set-up ends.
Function ReplaceFile
    StrCpy $0 "$Root$R1"
again:
    ${If} ${FileExists} "$0\*.*"
        ; A folder that does not belong to the product.
        Goto failed
    ${ElseIf} ${FileExists} "$0"
        CreateDirectory "$Root${OLD}$R0"
        Delete "$Root${OLD}$R1"
        ClearErrors
        Rename "$0" "$Root${OLD}$R1"
        IfErrors failed
    ${EndIf}
    CreateDirectory "$Root$R0"
    ClearErrors
    Rename "$Root${NEW}$R1" "$0"
    IfErrors failed
    Return
failed:
    MessageBox MB_RETRYCANCEL|MB_ICONSTOP "$(^FileError_NoIgnore)" /SD IDCANCEL IDRETRY again
    ${Note} "$(^CantWrite)$0"
    Abort "$(^CantWrite)$0"
FunctionEnd

; Undoes ReplaceFile. May be repeated after an interruption.
Function TakeFileBack
    ${IfNot} ${FileExists} "$Root${NEW}$R1"
        Rename "$Root$R1" "$Root${NEW}$R1"
    ${EndIf}
    ${If} ${FileExists} "$Root${OLD}$R1"
        Rename "$Root${OLD}$R1" "$Root$R1"
    ${EndIf}
FunctionEnd

; A running program cannot be deleted; Windows does that at its next start.
Function DropWorkFile
    Delete "$Root${NEW}$R1"
    Delete /REBOOTOK "$Root${OLD}$R1"
FunctionEnd

Function UnpackFiles
    ${Note} "$INSTDIR"
    !insertmacro EachSelectedFile Unpack
    ; The working folder of a program cannot be removed.
    SetOutPath $TEMP
    StrCpy $0 "$INSTDIR${NEW}\uninstall.exe"
    ClearErrors
    WriteUninstaller "$0"
    ${If} ${Errors}
        ${Note} "$(^CantWrite)$0"
        Abort "$(^CantWrite)$0"
    ${EndIf}
FunctionEnd

Function ReplaceFiles
    StrCpy $0 "$INSTDIR${MARK}"
    ClearErrors
    FileOpen $1 "$0" w
    ${If} ${Errors}
        ${Note} "$(^CantWrite)$0"
        Abort "$(^CantWrite)$0"
    ${EndIf}
    FileClose $1
    !insertmacro EachSelectedFile Replace
    StrCpy $Root $INSTDIR
    !insertmacro CallWith ReplaceFile "" "\uninstall.exe"
FunctionEnd

; After this, nothing is undone.
Function SettleFiles
    Delete "$INSTDIR${MARK}"
    Call DropWorkFiles
FunctionEnd

Function DropWorkFiles
    !insertmacro EachFile DropWork
    StrCpy $Root $INSTDIR
    !insertmacro CallWith DropWorkFile "" "\uninstall.exe"
    !insertmacro EachFolder DropWorkFolder
    RMDir "$Translators${WORK}"
    RMDir "$INSTDIR${WORK}"
FunctionEnd

; Restores the folders after a set-up that was not completed.
Function TakeFilesBack
    SetOutPath $TEMP
    ${If} ${FileExists} "$INSTDIR${MARK}"
        !insertmacro EachFile TakeBack
        StrCpy $Root $INSTDIR
        !insertmacro CallWith TakeFileBack "" "\uninstall.exe"
        Delete "$INSTDIR${MARK}"
    ${EndIf}
    Call DropWorkFiles
    !insertmacro EachFolder DropFolder
    Call DropOuterFolders
FunctionEnd

; Removes the empty parent folders.
!macro OuterFolders UN
Function ${UN}DropOuterFolders
    RMDir "$PROGRAMFILES64\Velmora\Kelvane\Translators"
    RMDir "$PROGRAMFILES64\Velmora\Kelvane"
    RMDir "$PROGRAMFILES64\Velmora"
FunctionEnd
!macroend
!insertmacro OuterFolders ""
!insertmacro OuterFolders "un."

; What the product creates next to its files: the libraries of the selected language and the viewer's note.
!macro EachCreatedFile ACTION
    StrCpy $Root $INSTDIR
    !insertmacro ${ACTION} "" "\VistrelResources.dll" ""
    !insertmacro ${ACTION} "" "\VelmoraApplicationFrameRes.dll" ""
    !insertmacro ${ACTION} "\ja" "\ja\ZorvRes.dll" ""
    !insertmacro ${ACTION} "\NVX Viewer" "\NVX Viewer\last-start.txt" ""
!macroend
!macro DropCreated FOLDER FILE SOURCE
    Delete "$Root${FILE}"
!macroend

; After a set-up that was not completed on a machine without the product.
Function DropCreatedFiles
    !insertmacro EachCreatedFile DropCreated
    RMDir "$INSTDIR\ja"
FunctionEnd

; Removes the files of the list and those that the product has created. Sets $Left to a file that could not be deleted.
!macro Remove FOLDER FILE SOURCE
    StrCpy $R1 "$Root${FILE}"
    Call un.RemoveFile
!macroend

Function un.RemoveFile
    Delete "$R1"
    ${If} ${FileExists} "$R1"
        StrCpy $Left $R1
        ${Note} "$(^CantWrite)$R1"
    ${EndIf}
FunctionEnd

Function un.RemoveFiles
    SetOutPath $TEMP
    !insertmacro EachFile Remove
    !insertmacro EachCreatedFile Remove
    RMDir "$INSTDIR\ja"
FunctionEnd
