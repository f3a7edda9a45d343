; A saver that runs while it is replaced or removed.
;
; The full run is asked to close. A preview or an open settings sheet stays: Windows lets a program that runs be renamed,
; so its file makes room under another name, which the next start of Windows removes.

!macro RUNNING_SAVER un
; Asks the full run to close, and waits until its program has ended, five seconds at most.
Function ${un}EndFullRun
  FindWindow $0 "WindowsScreenSaverClass" "Lunaria"
  ${If} $0 = 0
    Return
  ${EndIf}
  System::Call 'user32::GetWindowThreadProcessId(p r0, *i .r1)'
  System::Call 'kernel32::OpenProcess(i 0x100000, i 0, i r1) p .r2'  ; SYNCHRONIZE
  System::Call 'user32::PostMessageW(p r0, i ${WM_CLOSE}, p 0, p 0)'
  ${If} $2 <> 0
    System::Call 'kernel32::WaitForSingleObject(p r2, i 5000)'
    System::Call 'kernel32::CloseHandle(p r2)'
  ${EndIf}
FunctionEnd

; Stack: a path in the system folder. There is no file of this name afterwards; where even renaming fails, it asks, and in
; silence gives up.
Function ${un}MakeRoomFor
  Exch $0
again:
  ${IfNot} ${FileExists} "$0"
    Goto done
  ${EndIf}
  ClearErrors
  Delete "$0"
  IfErrors 0 done
  ; A name of its own: whoever installs again before that start loses nothing.
  GetTempFileName $1 "$SYSDIR"
  Delete "$1"
  ClearErrors
  Rename "$0" "$1"
  ${IfNot} ${Errors}
    Delete /REBOOTOK "$1"
    Goto done
  ${EndIf}
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$0 is in use and cannot be replaced or removed.$\r$\n$\r$\n\
    Please close Lunaria's settings and Windows' screen saver settings, then try again." /SD IDCANCEL IDRETRY again
  Delete "$SYSDIR\Lunaria.new"
  SetErrorLevel ${EXIT_IN_USE}
  Quit
done:
  Pop $0
FunctionEnd
!macroend
!insertmacro RUNNING_SAVER ""
!insertmacro RUNNING_SAVER "un."
