; What is looked at before anything is done: the options, the Windows, the rights, another installer, a newer Lunaria.
;
; Options of the installer:   /S silent   /CHOOSE make Lunaria the screen saver   /FORCE also over a newer version
; Options of the uninstaller: /S silent   /PURGE remove the settings and quotations too
Var wantsToChoose
Var wantsPurge
Var installedVersion

!macro CONDITIONS un
; Stack: an exit code, above it a text. Tells (not in silence) and ends.
Function ${un}Refuse
  Exch $0
  Exch
  Exch $1
  MessageBox MB_OK|MB_ICONSTOP "$0" /SD IDOK
  SetErrorLevel $1
  Quit
FunctionEnd

Function ${un}LookAtMachine
  ${IfNot} ${AtLeastWin7}
    Push ${EXIT_WINDOWS_TOO_OLD}
    Push "Lunaria needs a 64-bit Windows 7 or a newer one. Nothing was changed."
    Call ${un}Refuse
  ${EndIf}
  UserInfo::GetAccountType
  Pop $0
  ${If} $0 != "Admin"
    Push ${EXIT_NO_RIGHTS}
    Push "This needs the rights of an administrator, since the saver lies in Windows' own folder.$\r$\n$\r$\n\
      Please start it again with a right click and $\"Run as administrator$\". Nothing was changed."
    Call ${un}Refuse
  ${EndIf}
  System::Call 'kernel32::CreateMutexW(p 0, i 0, w "Global\LunariaInstaller") p .r1 ?e'
  Pop $0
  ${If} $0 = 183  ; ERROR_ALREADY_EXISTS
    Push ${EXIT_IN_USE}
    Push "Lunaria is being installed or removed already. Please let that finish first."
    Call ${un}Refuse
  ${EndIf}
  SetRegView 64
FunctionEnd

; At the end: what an open saver holds back goes with the next start of Windows.
Function ${un}TellOfRestart
  ${If} ${RebootFlag}
  ${AndIf} ${Silent}
    SetErrorLevel ${EXIT_RESTART_NEEDED}
  ${EndIf}
FunctionEnd
!macroend
!insertmacro CONDITIONS ""
!insertmacro CONDITIONS "un."

; option NAME VARIABLE: 1 where the command line has it, else 0.
!macro OPTION name variable
  ClearErrors
  ${GetParameters} $0
  ${GetOptions} $0 "${name}" $1
  StrCpy ${variable} 1
  ${If} ${Errors}
    StrCpy ${variable} 0
  ${EndIf}
!macroend

Function .onInit
  StrCpy $INSTDIR "$PROGRAMFILES64\Lunaria"
  Call LookAtMachine
  Call LookAtUsers
  !insertmacro OPTION "/CHOOSE" $wantsToChoose
  ReadRegStr $installedVersion HKLM "${UNINSTALL_KEY}" "DisplayVersion"
  ${If} $installedVersion != ""
    Call LookAtInstalledVersion
  ${EndIf}
FunctionEnd

; Over an older or the same version there is nothing to ask.
Function LookAtInstalledVersion
  ${VersionCompare} "$installedVersion" "${VERSION}" $0
  ${If} $0 <> 1
    Return
  ${EndIf}
  !insertmacro OPTION "/FORCE" $2
  ${If} $2 == 1
    Return
  ${EndIf}
  MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Lunaria $installedVersion is on this computer. \
    This is ${VERSION}, which is older.$\r$\n$\r$\nPut the older one in its place?" /SD IDNO IDYES goOn
  SetErrorLevel ${EXIT_NEWER_IS_THERE}
  Quit
goOn:
FunctionEnd

Function un.onInit
  StrCpy $INSTDIR "$PROGRAMFILES64\Lunaria"
  Call un.LookAtMachine
  Call un.LookAtUsers
  !insertmacro OPTION "/PURGE" $wantsPurge
FunctionEnd
