; Who installs, and who sits before the screen: with another user's password these are two.
;
; $ownSid: the user under whose name this runs. $isOtherUser: 1 where it is not the one who is signed in at the screen, so
; that "my screen saver" and "my settings" would be somebody else's.
Var ownSid
Var isOtherUser

!macro USERS un
; Stack: handle of a process -> the text of its user's identifier, empty where the system does not tell.
Function ${un}SidOfProcess
  Exch $0
  Push $1
  Push $2
  Push $3
  Push $4
  StrCpy $4 ""
  System::Call 'advapi32::OpenProcessToken(p r0, i 0x8, *p .r1) i .r2'  ; TOKEN_QUERY
  ${If} $2 <> 0
    System::Call 'advapi32::GetTokenInformation(p r1, i 1, p 0, i 0, *i .r2)'  ; TokenUser
    System::Alloc $2
    Pop $3
    System::Call 'advapi32::GetTokenInformation(p r1, i 1, p r3, i r2, *i .r2) i .r0'
    ${If} $0 <> 0
      System::Call '*$3(p .r0)'
      System::Call 'advapi32::ConvertSidToStringSidW(p r0, *p .r2) i .r0'
      ${If} $0 <> 0
        System::Call 'kernel32::lstrcpynW(w .r4, p r2, i ${NSIS_MAX_STRLEN})'
        System::Call 'kernel32::LocalFree(p r2)'
      ${EndIf}
    ${EndIf}
    System::Free $3
    System::Call 'kernel32::CloseHandle(p r1)'
  ${EndIf}
  StrCpy $0 $4
  Pop $4
  Pop $3
  Pop $2
  Pop $1
  Exch $0
FunctionEnd

; Fills $ownSid and $isOtherUser. Where no desktop is shown, only the system's own accounts are another user.
Function ${un}LookAtUsers
  System::Call 'kernel32::GetCurrentProcess() p .r0'
  Push $0
  Call ${un}SidOfProcess
  Pop $ownSid
  StrCpy $isOtherUser 0
  StrCpy $1 ""
  System::Call 'user32::GetShellWindow() p .r0'
  ${If} $0 <> 0
    System::Call 'user32::GetWindowThreadProcessId(p r0, *i .r1)'
    System::Call 'kernel32::OpenProcess(i 0x1000, i 0, i r1) p .r0'  ; PROCESS_QUERY_LIMITED_INFORMATION
    StrCpy $1 ""
    ${If} $0 <> 0
      Push $0
      Call ${un}SidOfProcess
      Pop $1
      System::Call 'kernel32::CloseHandle(p r0)'
    ${EndIf}
  ${EndIf}
  StrLen $2 $ownSid
  ${If} $1 != ""
  ${AndIf} $1 != $ownSid
    StrCpy $isOtherUser 1
  ${ElseIf} $1 == ""
  ${AndIf} $2 = 8  ; S-1-5-18 and its like
    StrCpy $isOtherUser 1
  ${EndIf}
FunctionEnd
!macroend
!insertmacro USERS ""
!insertmacro USERS "un."
