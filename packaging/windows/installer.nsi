; The installer for Windows: for one user, without an administrator's rights. build.sh gives it
; -DVERSION=... -DFOLDER=what to install -DOUT=the file to write -DSIZE=KiB of it.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include Sections.nsh

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillet"
; The program's: SettingsLocation.cpp, ContextMenu.cpp, SendToLink.cpp, FileLogging.cpp.
!define SETTINGS "Software\Tessaly\Quillet"
!define MENU "Software\Classes\*\shell\Quillet"
!define LINK "$SENDTO\Quillet.lnk"
!define LOG "$LOCALAPPDATA\quillet"

Name "Quillet"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\Quillet"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Quillet"
VIAddVersionKey "FileDescription" "Quillet Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_FINISHPAGE_RUN "$INSTDIR\quillet.exe"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!include installer_texts.nsh

; The program writes and removes the entries of the menus itself, at each start, as its options say.
!macro SetMenus VALUE
  WriteRegStr HKCU "${SETTINGS}" "IntegrateToShellContextMenu" "${VALUE}"
  WriteRegStr HKCU "${SETTINGS}" "AddToSendMenu" "${VALUE}"
!macroend

; A program that runs can be neither replaced nor removed, and so the rest is left as it is, too.
!macro AwaitEnd FUNCTION
Function ${FUNCTION}
  ${If} ${FileExists} "$INSTDIR\quillet.exe"
  again:
    ClearErrors
    FileOpen $0 "$INSTDIR\quillet.exe" a
    ${If} ${Errors}
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(StillRuns)" /SD IDCANCEL IDRETRY again
      SetErrorLevel 1
      Quit
    ${EndIf}
    FileClose $0
  ${EndIf}
FunctionEnd
!macroend
!insertmacro AwaitEnd awaitEnd
!insertmacro AwaitEnd un.awaitEnd

; Into a folder with other things goes one of our own, which the uninstaller can empty.
Function chooseOwnFolder
  ${DirState} "$INSTDIR" $0
  ${If} $0 = 1
  ${AndIfNot} ${FileExists} "$INSTDIR\quillet.exe"
    StrCpy $INSTDIR "$INSTDIR\Quillet"
  ${EndIf}
FunctionEnd

Section "Quillet" Program
  SectionIn RO
  Call chooseOwnFolder
  Call awaitEnd
  SetOutPath "$INSTDIR"
  File /r "${FOLDER}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Quillet"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\quillet.exe"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section "$(StartMenu)" StartMenu
  CreateShortcut "$SMPROGRAMS\Quillet.lnk" "$INSTDIR\quillet.exe"
SectionEnd

; What the user has chosen before holds, as long as it is some of them.
Section "$(FileMenus)" FileMenus
  ReadRegStr $0 HKCU "${SETTINGS}" "IntegrateToShellContextMenu"
  ReadRegStr $1 HKCU "${SETTINGS}" "AddToSendMenu"
  ${If} $0 == $1
    !insertmacro SetMenus "true"
  ${EndIf}
SectionEnd

Function .onInit
  ReadRegStr $0 HKCU "${SETTINGS}" "IntegrateToShellContextMenu"
  ReadRegStr $1 HKCU "${SETTINGS}" "AddToSendMenu"
  ${If} "$0$1" == "falsefalse"
    !insertmacro UnselectSection ${FileMenus}
  ${EndIf}
FunctionEnd

Function .onInstSuccess
  ${IfNot} ${SectionIsSelected} ${FileMenus}
    !insertmacro SetMenus "false"
  ${EndIf}
FunctionEnd

Section "Uninstall"
  Call un.awaitEnd
  Delete "$SMPROGRAMS\Quillet.lnk"
  Delete "${LINK}"
  DeleteRegKey HKCU "${MENU}"
  DeleteRegKey HKCU "${UNINSTALL}"
  Delete "$INSTDIR\quillet.exe"
  Delete "$INSTDIR\quillet-cli.exe"
  Delete "$INSTDIR\README.txt"
  RMDir /r "$INSTDIR\translations"
  RMDir /r "$INSTDIR\licences"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR" ; only when nobody has put something else there
  MessageBox MB_YESNO|MB_ICONQUESTION "$(RemoveSettings)" /SD IDYES IDNO keep
  DeleteRegKey HKCU "${SETTINGS}"
  DeleteRegKey /ifempty HKCU "Software\Tessaly"
  Delete "${LOG}\quillet.log*"
  RMDir "${LOG}"
keep:
SectionEnd
