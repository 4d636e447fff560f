; The installer for Windows: for one user, without an administrator's rights. build.sh gives it
; -DVERSION=... -DFOLDER=what to install -DOUT=the file to write -DSIZE=KiB of it.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
!include MUI2.nsh
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

Section "Quillet" Program
  SectionIn RO
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

Section "$(FileMenus)" FileMenus
  !insertmacro SetMenus "true"
SectionEnd

Function .onInstSuccess
  ${IfNot} ${SectionIsSelected} ${FileMenus}
    !insertmacro SetMenus "false"
  ${EndIf}
FunctionEnd

Section "Uninstall"
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
