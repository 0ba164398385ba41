; Runs the product's configuration program and waits for it.

; Runs a task of NVXSetupTask.exe and sets the variable to its exit code, or to -1 if it cannot be started. The page of
; the installation does not show the command.
!macro RunTask TASK RESULT
    SetDetailsPrint none
    ClearErrors
    ExecWait '"$PLUGINSDIR\NVXSetupTask.exe" ${TASK}' ${RESULT}
    ${If} ${Errors}
        StrCpy ${RESULT} -1
        ClearErrors
    ${EndIf}
    SetDetailsPrint lastused
!macroend
!define RunTask "!insertmacro RunTask"

; Ends it after this many seconds; the option /TIMEOUT= selects another number.
!define TIMEOUT 1800

!macro ConfigurationFunctions UN
; Unpacks the program for the tasks below into the folder that Windows protects from other users. Sets $Seconds.
Function ${UN}PrepareTasks
    InitPluginsDir
    File "/oname=$PLUGINSDIR\NVXSetupTask.exe" "${SETUP_TASK}"
    ${GetParameters} $1
    ClearErrors
    ${GetOptions} $1 "/TIMEOUT=" $Seconds
    ${If} ${Errors}
        StrCpy $Seconds ${TIMEOUT}
    ${EndIf}
FunctionEnd

; $R0 contains the options. Sets the error flag if the program cannot be started, does not end in time or fails: it
; exits with 0 after every run, so another exit code is that of a crash or of a missing library.
Function ${UN}Configure
    ${Note} "$(^Exec)NVXConfig.exe $R0"
    ${RunTask} 'configure "$INSTDIR\." $Seconds $R0' $R1
    ${Note} "NVXConfig.exe: $R1"
    ClearErrors
    ${If} $R1 != 0
        SetErrors
    ${EndIf}
FunctionEnd

; Quits if another set-up is running, or if a CAD system is: a configuration without a window would show a message box.
Function ${UN}CheckMachine
    System::Call 'kernel32::CreateMutexW(p 0, i 0, w "Global\Velmora NVX 2017 set-up") p .r1 ?e'
    Pop $0
    ${If} $0 = ${ERROR_ALREADY_EXISTS}
        ${Note} "$(SetUpRuns)"
        MessageBox MB_OK|MB_ICONSTOP "$(SetUpRuns)" /SD IDOK
        SetErrorLevel ${ERROR_INSTALL_ALREADY_RUNNING}
        Quit
    ${EndIf}
again:
    ${RunTask} check $0
    ${If} $0 = ${ERROR_INSTALL_ALREADY_RUNNING}
        ${Note} "$(CadRuns)"
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(CadRuns)" /SD IDCANCEL IDRETRY again
        SetErrorLevel ${ERROR_INSTALL_ALREADY_RUNNING}
        Quit
    ${EndIf}
FunctionEnd
!macroend
!insertmacro ConfigurationFunctions ""
!insertmacro ConfigurationFunctions "un."

; Before the first file is unpacked: nobody but administrators can exchange it before it is run.
Function ReserveFolder
    ${RunTask} 'reserve "$INSTDIR\."' $0
    ${If} $0 != 0
        ${Note} "$(^CantWrite)$INSTDIR ($0)"
        MessageBox MB_OK|MB_ICONSTOP "$(^CantWrite)$INSTDIR" /SD IDOK
        Abort "$(^CantWrite)$INSTDIR"
    ${EndIf}
FunctionEnd
