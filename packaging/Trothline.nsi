; The installer of Trothline: for one user, without administrator rights. Built by scripts/package, which passes VERSION,
; OUTPUT, SIZE_KB and LISTS, the folder of the generated lists of files.
;
; An update replaces a file of the program folder only if the user has not changed it since it was installed. For that
; the installer keeps the originals of the installed version in "Uninstall\Originals".
;
;   /S      silent: no questions; the user's files are kept; exit code 2 if the program does not close
;   /ALL    uninstaller: removes the user's files and settings as well

Unicode true
Target amd64-unicode
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!define NAME "Trothline"
!define APPS_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"
!define SETTINGS_KEY "Software\${NAME}"
!define ORIGINALS "$INSTDIR\Uninstall\Originals"
!define CLOSE_TRIES 100 ; of 100 ms
!define ERROR_NOT_CLOSED 2

Name "${NAME}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${APPS_KEY}" "InstallLocation"
RequestExecutionLevel user
SetCompressor /SOLID lzma
; No times of files go into the installer, so that the same sources give the same bytes.
SetDateSave off
ShowInstDetails nevershow
ShowUninstDetails nevershow
ManifestDPIAware true

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey FileDescription "${NAME} setup"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey LegalCopyright "The Trothline developers"

!define MUI_ICON "${SOURCES}/src/app/Troth.ico"
!define MUI_UNICON "${SOURCES}/src/app/Troth.ico"
!define MUI_FINISHPAGE_RUN "$INSTDIR\Troth.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start ${NAME}"
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; ---- The running programs ----

; Asks Trothline to close, as its close box does: it saves its settings and may ask the user something first. It is
; never killed. The simulator has the window class of the game, so it is not looked for by its window but recognised
; by its file, which cannot be opened for writing while it runs.
!macro CloseProgramsFunction prefix
  Function ${prefix}ClosePrograms
    ask:
    StrCpy $1 0
    FindWindow $0 "TrothlineForm" "${NAME}"
    ${If} $0 <> 0
      SendMessage $0 ${WM_CLOSE} 0 0 /TIMEOUT=5000
    ${EndIf}
    wait:
    ; Both names are those of the program: its mutex exists as long as it runs.
    System::Call 'kernel32::OpenMutexW(i 0x100000, i 0, w "Local\Trothline.Running") p .r0'
    ${If} $0 P<> 0
      System::Call 'kernel32::CloseHandle(p r0)'
      Goto stillRunning
    ${EndIf}
    ${If} ${FileExists} "$INSTDIR\KestrelMoors.exe"
      ClearErrors
      FileOpen $0 "$INSTDIR\KestrelMoors.exe" a
      ${If} ${Errors}
        Goto stillRunning
      ${EndIf}
      FileClose $0
    ${EndIf}
    Return
    stillRunning:
    IntOp $1 $1 + 1
    ${If} $1 < ${CLOSE_TRIES}
      Sleep 100
      Goto wait
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${NAME} or its rehearsal is still running.$\r$\n$\r$\nClose it, then choose Retry." /SD IDCANCEL IDRETRY ask
    SetErrorLevel ${ERROR_NOT_CLOSED}
    Quit
  FunctionEnd
!macroend
!insertmacro CloseProgramsFunction ""
!insertmacro CloseProgramsFunction "un."

; ---- Comparing files ----

; Reads a file of at most a few hundred kilobytes. The parameters are registers without their "$": that of the path, of
; the bytes (to be freed) and of their number, -1 if there is no such file.
!macro ReadFileInto path bytes size
  StrCpy $${bytes} 0
  StrCpy $${size} -1
  System::Call 'kernel32::CreateFileW(w ${path}, i 0x80000000, i 3, p 0, i 3, i 0, p 0) p .r0'
  ${If} $0 P<> -1
    System::Call 'kernel32::GetFileSize(p r0, p 0) i .${size}'
    IntOp $1 $${size} + 1
    System::Alloc $1
    Pop $${bytes}
    System::Call 'kernel32::ReadFile(p r0, p ${bytes}, i ${size}, *i .r1, p 0)'
    System::Call 'kernel32::CloseHandle(p r0)'
  ${EndIf}
!macroend

; $R0 and $R1: two paths. $R0 becomes 1 if both files exist and have the same bytes, otherwise 0.
!macro SameFileFunction prefix
  Function ${prefix}SameFile
    !insertmacro ReadFileInto R0 R2 R3
    !insertmacro ReadFileInto R1 R4 R5
    StrCpy $R0 0
    ${If} $R3 = $R5
    ${AndIf} $R3 >= 0
      System::Call 'ntdll::RtlCompareMemory(p R2, p R4, p R3) p .r0'
      ${If} $0 = $R3
        StrCpy $R0 1
      ${EndIf}
    ${EndIf}
    System::Free $R2
    System::Free $R4
  FunctionEnd
!macroend
!insertmacro SameFileFunction ""
!insertmacro SameFileFunction "un."

; ---- Installation ----

; A file that belongs to the program.
!macro ProgramFile folder file source
  SetOutPath "$INSTDIR${folder}"
  File "/oname=${file}" "${source}"
!macroend

; A file that the user may change: it is put beside the originals first.
!macro UserFile folder file source
  SetOutPath "$PLUGINSDIR\New${folder}"
  File "/oname=${file}" "${source}"
  StrCpy $R8 "${folder}"
  StrCpy $R9 "${file}"
  Call PlaceUserFile
!macroend

Function PlaceUserFile
  StrCpy $R0 "$INSTDIR$R8\$R9"
  StrCpy $R1 "${ORIGINALS}$R8\$R9"
  ${If} ${FileExists} $R0
    Call SameFile
  ${Else}
    StrCpy $R0 1
  ${EndIf}
  ${If} $R0 = 1
    CreateDirectory "$INSTDIR$R8"
    CopyFiles /SILENT "$PLUGINSDIR\New$R8\$R9" "$INSTDIR$R8\$R9"
  ${EndIf}
  CreateDirectory "${ORIGINALS}$R8"
  CopyFiles /SILENT "$PLUGINSDIR\New$R8\$R9" "${ORIGINALS}$R8\$R9"
FunctionEnd

Section
  SetShellVarContext current
  InitPluginsDir
  Call ClosePrograms
  SetOverwrite on
  !include "${LISTS}/install.nsh"
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\Uninstall.exe"

  CreateDirectory "$SMPROGRAMS\${NAME}"
  CreateShortcut "$SMPROGRAMS\${NAME}\${NAME}.lnk" "$INSTDIR\Troth.exe"
  CreateShortcut "$SMPROGRAMS\${NAME}\Rehearse.lnk" "$INSTDIR\KestrelMoors.exe"

  WriteRegStr HKCU "${APPS_KEY}" "DisplayName" "${NAME}"
  WriteRegStr HKCU "${APPS_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${APPS_KEY}" "DisplayIcon" "$INSTDIR\Troth.exe"
  WriteRegStr HKCU "${APPS_KEY}" "Publisher" "The Trothline developers"
  WriteRegStr HKCU "${APPS_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${APPS_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${APPS_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${APPS_KEY}" "EstimatedSize" ${SIZE_KB}
  WriteRegDWORD HKCU "${APPS_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${APPS_KEY}" "NoRepair" 1
SectionEnd

; ---- Removal ----

!macro RemoveProgramFile folder file
  Delete "$INSTDIR${folder}\${file}"
!macroend

; Kept if the user has changed it and wants to keep what is his.
!macro RemoveUserFile folder file
  StrCpy $R0 "$INSTDIR${folder}\${file}"
  StrCpy $R1 "${ORIGINALS}${folder}\${file}"
  Call un.SameFile
  ${If} $R0 = 1
  ${OrIf} $R7 = 0
    Delete "$INSTDIR${folder}\${file}"
  ${EndIf}
!macroend

; Folders are removed only if nothing is left in them.
!macro RemoveFolder folder
  RMDir "$INSTDIR${folder}"
!macroend

; Sets $R7: 1 to keep the user's files.
Function un.AskWhatToKeep
  StrCpy $R7 1
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/ALL" $R1
  ${IfNot} ${Errors}
    StrCpy $R7 0
    Return
  ${EndIf}
  MessageBox MB_YESNO|MB_ICONQUESTION "Keep your own files and settings: your scripts, variables, buttons and screenshots?$\r$\n$\r$\nNo removes them for good." /SD IDYES IDYES +2
  StrCpy $R7 0
FunctionEnd

Section Uninstall
  SetShellVarContext current
  Call un.ClosePrograms
  Call un.AskWhatToKeep
  SetOutPath "$TEMP"
  ${If} $R7 = 0
    ; What the program has written for the user. Only folders of its own: others may lie beside them.
    RMDir /r "$INSTDIR\wedscripts"
    RMDir /r "$INSTDIR\Screenshots"
    RMDir /r "$INSTDIR\Buttons"
    RMDir /r "$INSTDIR\Wizard"
    RMDir /r "$INSTDIR\AutoPatch"
    DeleteRegKey HKCU "${SETTINGS_KEY}"
    ; Notes about crashes.
    RMDir /r "$LOCALAPPDATA\${NAME}"
  ${EndIf}
  !include "${LISTS}/remove.nsh"
  RMDir /r "$INSTDIR\Uninstall"
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"

  Delete "$SMPROGRAMS\${NAME}\${NAME}.lnk"
  Delete "$SMPROGRAMS\${NAME}\Rehearse.lnk"
  RMDir "$SMPROGRAMS\${NAME}"
  DeleteRegKey HKCU "${APPS_KEY}"
SectionEnd
