; The installer of Lunaria for 64-bit Windows, and the uninstaller that it leaves behind.
; makensis gets: VERSION, FILES (the folder of the stripped programs), SCRIPTS (this folder), ICON, OUTPUT.
;
; Both are 64-bit programs, as the saver is: the system folder is the real one, and a 32-bit Windows says by itself that
; they are not for it.
;
; There is no page with a licence: the owner has chosen none yet. The first page says so, and Copyright.txt.

Unicode true
Target amd64-unicode
ManifestDPIAware true
ManifestSupportedOS all
RequestExecutionLevel admin
SetCompressor /SOLID lzma
SetOverwrite on
ShowInstDetails nevershow
ShowUninstDetails nevershow

!define PRODUCT "Lunaria screensaver"
!define PUBLISHER "Lunaria software"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Lunaria screensaver"
!define COMPANY_KEY "Software\Lunaria software"
!define INSTALLER_KEY "${COMPANY_KEY}\Lunaria screensaver installer"
!define SAVER "$SYSDIR\Lunaria.scr"

; Exit codes beside those of NSIS: 0 done, 1 cancelled, 2 failed on the way.
!define EXIT_NEWER_IS_THERE 3
!define EXIT_NO_RIGHTS 4
!define EXIT_WINDOWS_TOO_OLD 5
!define EXIT_IN_USE 6
!define EXIT_NOT_CHOSEN 7
!define EXIT_RESTART_NEEDED 3010

Name "Lunaria"
OutFile "${OUTPUT}"
BrandingText "Lunaria ${VERSION}"
Caption "Lunaria ${VERSION}"
UninstallCaption "Remove Lunaria"

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey "CompanyName" "${PUBLISHER}"
VIAddVersionKey "FileDescription" "Lunaria installer"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "Copyright (c) 2026 the owner of Lunaria"
VIAddVersionKey "ProductName" "${PRODUCT}"
VIAddVersionKey "ProductVersion" "${VERSION}"

!include LogicLib.nsh
!include MUI2.nsh
!include FileFunc.nsh
!include WordFunc.nsh
!include WinVer.nsh

!addincludedir "${SCRIPTS}"
!include users.nsh
!include conditions.nsh
!include runningSaver.nsh
!include chosenSaver.nsh
!include installerPages.nsh

Section "Lunaria" InstallSection
  SetShellVarContext all
  Call EndFullRun
  SetOutPath "$SYSDIR"
  File "/oname=Lunaria.new" "${FILES}\Lunaria.scr"
  Push "${SAVER}"
  Call MakeRoomFor
  Rename "$SYSDIR\Lunaria.new" "${SAVER}"

  SetOutPath "$INSTDIR"
  File "${FILES}\Lunaria.exe"
  File "/oname=Copyright.txt" "${SCRIPTS}\copyright.txt"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateDirectory "$SMPROGRAMS\Lunaria"
  CreateShortcut "$SMPROGRAMS\Lunaria\Lunaria settings.lnk" "$INSTDIR\Lunaria.exe" "/c" "" "" "" "" \
    "What the night sky shows and plays"
  CreateShortcut "$SMPROGRAMS\Lunaria\Lunaria now.lnk" "$INSTDIR\Lunaria.exe" "/s" "" "" "" "" \
    "The night sky, at once"
  Call TellWindowsOfIt

  ${If} $wantsToChoose == 1
    Call ChooseLunaria
  ${EndIf}
  Call TellOfRestart
SectionEnd

; The entry in Windows' list of apps.
Function TellWindowsOfIt
  SectionGetSize ${InstallSection} $0
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "${PRODUCT}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "Publisher" "${PUBLISHER}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "URLInfoAbout" "https://www.lunaria.example/"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\Lunaria.exe,0"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKLM "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "EstimatedSize" $0
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
FunctionEnd

Section "Uninstall"
  SetShellVarContext all
  Call un.EndFullRun
  ; First what can be refused, while nothing is gone yet.
  Push "${SAVER}"
  Call un.MakeRoomFor
  Call un.RestoreChosenSavers
  Delete "$SMPROGRAMS\Lunaria\Lunaria settings.lnk"
  Delete "$SMPROGRAMS\Lunaria\Lunaria now.lnk"
  RMDir "$SMPROGRAMS\Lunaria"
  DeleteRegKey HKLM "${UNINSTALL_KEY}"
  DeleteRegKey HKLM "${INSTALLER_KEY}"
  DeleteRegKey /ifempty HKLM "${COMPANY_KEY}"
  Delete "$INSTDIR\Lunaria.exe"
  Delete "$INSTDIR\Copyright.txt"
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
  Call un.RemoveTraces
  Call un.TellOfRestart
SectionEnd

; What the saver wrote of itself goes: the record of use, the log, a file that a power cut left half written (.new). What
; the user wrote goes only if that is wished.
Function un.RemoveTraces
  SetShellVarContext all
  Delete "$APPDATA\Lunaria software\usage.txt"
  Delete "$APPDATA\Lunaria software\*.new"
  ${If} $wantsPurge == 1
    Delete "$APPDATA\Lunaria software\Lunaria screensaver.ini"
  ${EndIf}
  RMDir "$APPDATA\Lunaria software"

  SetShellVarContext current
  Delete "$TEMP\Lunaria.xplLog.txt"
  Delete "$DESKTOP\Lunaria.xplLog.txt"
  Delete "$APPDATA\Lunaria software\*.new"
  ${If} $wantsPurge == 1
    Delete "$APPDATA\Lunaria software\Lunaria screensaver.ini"
    Delete "$APPDATA\Lunaria software\userQuotes.txt"
  ${EndIf}
  RMDir "$APPDATA\Lunaria software"
  SetShellVarContext all
FunctionEnd
