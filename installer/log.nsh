; The log of the set-up program, which the option /LOG= asks for.

; Shows a line among the details and appends it to the log, with its time.
!macro NoteText TEXT
    DetailPrint "${TEXT}"
    ${If} $LogFile != ""
        Push "${TEXT}"
        !ifdef __UNINSTALL__
            Call un.AppendToLog
        !else
            Call AppendToLog
        !endif
    ${EndIf}
!macroend
!define Note "!insertmacro NoteText"

!macro LogFunctions UN
Function ${UN}OpenLog
    ${GetParameters} $1
    ClearErrors
    ${GetOptions} $1 "/LOG=" $LogFile
    ${If} ${Errors}
        StrCpy $LogFile ""
    ${EndIf}
    ClearErrors
    ${Note} "$EXEPATH $1"
FunctionEnd

; Takes the line from the stack, and leaves all registers and the error flag as they are.
Function ${UN}AppendToLog
    Exch $9
    Push $8
    Push $7
    Push $6
    StrCpy $6 0
    IfErrors 0 +2
    StrCpy $6 1
    System::Call '*(&i2, &i2, &i2, &i2, &i2, &i2, &i2, &i2) p .r8'
    System::Call 'kernel32::GetLocalTime(p r8)'
    Push $0
    Push $1
    Push $2
    Push $3
    Push $4
    Push $5
    System::Call '*$8(&i2 .r0, &i2 .r1, &i2, &i2 .r2, &i2 .r3, &i2 .r4, &i2 .r5, &i2)'
    IntFmt $1 "%02d" $1
    IntFmt $2 "%02d" $2
    IntFmt $3 "%02d" $3
    IntFmt $4 "%02d" $4
    IntFmt $5 "%02d" $5
    System::Free $8
    FileOpen $7 $LogFile a
    FileSeek $7 0 END
    FileWriteUTF16LE /BOM $7 "$0-$1-$2 $3:$4:$5  $9$\r$\n"
    FileClose $7
    Pop $5
    Pop $4
    Pop $3
    Pop $2
    Pop $1
    Pop $0
    ClearErrors
    IntCmp $6 0 +2
    SetErrors
    Pop $6
    Pop $7
    Pop $8
    Pop $9
FunctionEnd
!macroend
!insertmacro LogFunctions ""
!insertmacro LogFunctions "un."
