; Runs the product's configuration program and waits for it.

; The sizes of STARTUPINFO and PROCESS_INFORMATION on 64-bit Windows.
!define STARTUP_SIZE 104
!define PROCESS_SIZE 24

; $R0 contains the options. Sets the error flag if the program cannot be started. The program splits its whole
; command line at blanks and would treat a part of the install dir that begins with "-" as an option. Therefore the
; command line contains only the program's name, and its path is passed separately.
!macro ConfigurationFunction UN
Function ${UN}Configure
    StrCpy $R1 "$INSTDIR\NVXConfig.exe"
    StrCpy $R2 "NVXConfig.exe $R0"
    DetailPrint "$(^Exec)$R2"
    System::Alloc ${STARTUP_SIZE}
    Pop $R3
    System::Call "*$R3(i ${STARTUP_SIZE})"
    System::Alloc ${PROCESS_SIZE}
    Pop $R4
    StrCpy $R5 $INSTDIR
    System::Call "kernel32::CreateProcessW(w R1, w R2, p 0, p 0, i 0, i 0, p 0, w R5, p R3, p R4) i .R6"
    ClearErrors
    ${If} $R6 = 0
        SetErrors
    ${Else}
        System::Call "*$R4(p .R7, p .R8)"
        System::Call "kernel32::WaitForSingleObject(p R7, i -1)"
        System::Call "kernel32::CloseHandle(p R7)"
        System::Call "kernel32::CloseHandle(p R8)"
    ${EndIf}
    System::Free $R3
    System::Free $R4
    ${If} $R6 = 0
        SetErrors
    ${EndIf}
FunctionEnd
!macroend
!insertmacro ConfigurationFunction ""
!insertmacro ConfigurationFunction "un."
