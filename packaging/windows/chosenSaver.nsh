; Makes Lunaria the screen saver, and gives back the one that was chosen before.
;
; Windows keeps two things: which saver, in the value SCRNSAVE.EXE of the user's "Control Panel\Desktop", for which there
; is no call; and whether there is one, for which there is SystemParametersInfo. It is called after the value is written,
; for it is what makes the running session take both. "desk.cpl,InstallScreenSaver" would do the same, but opens a dialog.
;
; What was there before is kept for each user below HKLM, where the uninstaller finds and removes it under any name.
!define DESKTOP_KEY "Control Panel\Desktop"
!define BEFORE_KEY "${INSTALLER_KEY}\Chosen before"
!define SPI_GETSCREENSAVETIMEOUT 0x0E
!define SPI_SETSCREENSAVETIMEOUT 0x0F
!define SPI_SETSCREENSAVEACTIVE 0x11
!define KEEP_AND_TELL 3  ; SPIF_UPDATEINIFILE | SPIF_SENDCHANGE
!define SECONDS_UNTIL_SAVER 600  ; where Windows has no time set, and no saver would ever begin

; remember VALUE: keeps a value of the user's desktop; one that is not there stays away.
!macro REMEMBER value
  ClearErrors
  ReadRegStr $0 HKCU "${DESKTOP_KEY}" "${value}"
  ${IfNot} ${Errors}
    WriteRegStr HKLM "${BEFORE_KEY}\$ownSid" "${value}" $0
  ${EndIf}
!macroend

; recall VALUE: the value of the user $6 as it was remembered.
!macro RECALL value
  ClearErrors
  ReadRegStr $0 HKLM "${BEFORE_KEY}\$6" "${value}"
  ${If} ${Errors}
    DeleteRegValue HKU "$6\${DESKTOP_KEY}" "${value}"
  ${Else}
    WriteRegStr HKU "$6\${DESKTOP_KEY}" "${value}" $0
  ${EndIf}
!macroend

; tell ACTION NUMBER: into the running session and the user's registry; $0 is 0 where Windows refuses.
!macro TELL action number
  System::Call 'user32::SystemParametersInfoW(i ${action}, i ${number}, p 0, i ${KEEP_AND_TELL}) i .r0'
!macroend

; For the user who is signed in at the screen; under another user's name it would be that one's saver.
Function ChooseLunaria
  StrCpy $0 0
  ${If} $isOtherUser == 0
    Call RememberChosenSaver
    WriteRegStr HKCU "${DESKTOP_KEY}" "SCRNSAVE.EXE" "${SAVER}"
    Call SetTimeUntilSaver
    !insertmacro TELL ${SPI_SETSCREENSAVEACTIVE} 1
  ${EndIf}
  ${If} $0 = 0
    SetErrorLevel ${EXIT_NOT_CHOSEN}
  ${EndIf}
FunctionEnd

Function RememberChosenSaver
  ReadRegStr $0 HKCU "${DESKTOP_KEY}" "SCRNSAVE.EXE"
  ${If} $0 == "${SAVER}"
    Return
  ${EndIf}
  DeleteRegKey HKLM "${BEFORE_KEY}\$ownSid"
  WriteRegStr HKLM "${BEFORE_KEY}\$ownSid" "" "remembered"
  !insertmacro REMEMBER "SCRNSAVE.EXE"
  !insertmacro REMEMBER "ScreenSaveActive"
FunctionEnd

Function SetTimeUntilSaver
  System::Call 'user32::SystemParametersInfoW(i ${SPI_GETSCREENSAVETIMEOUT}, i 0, *i .r1, i 0) i .r0'
  ${If} $0 <> 0
  ${AndIf} $1 = 0
    WriteRegStr HKLM "${BEFORE_KEY}\$ownSid" "TimeWasSet" "${SECONDS_UNTIL_SAVER}"
    !insertmacro REMEMBER "ScreenSaveTimeOut"
    !insertmacro TELL ${SPI_SETSCREENSAVETIMEOUT} ${SECONDS_UNTIL_SAVER}
  ${EndIf}
FunctionEnd

; For every user who is signed in and still has Lunaria chosen; another choice is left alone.
Function un.RestoreChosenSavers
  StrCpy $5 0
  ${Do}
    EnumRegKey $6 HKU "" $5
    ${If} $6 == ""
      ${ExitDo}
    ${EndIf}
    IntOp $5 $5 + 1
    ReadRegStr $0 HKU "$6\${DESKTOP_KEY}" "SCRNSAVE.EXE"
    ${If} $0 == "${SAVER}"
      Call un.RestoreSaver
      Call un.RestoreTimeUntilSaver
    ${EndIf}
  ${Loop}
FunctionEnd

; $6: the user's identifier. Nothing remembered, or a file that has gone meanwhile: no saver is chosen then.
Function un.RestoreSaver
  ReadRegStr $0 HKLM "${BEFORE_KEY}\$6" "SCRNSAVE.EXE"
  ${If} $0 != ""
  ${AndIf} ${FileExists} "$0"
    WriteRegStr HKU "$6\${DESKTOP_KEY}" "SCRNSAVE.EXE" $0
  ${Else}
    DeleteRegValue HKU "$6\${DESKTOP_KEY}" "SCRNSAVE.EXE"
  ${EndIf}
  ReadRegStr $0 HKLM "${BEFORE_KEY}\$6" ""
  ${If} $0 == ""
    Return
  ${EndIf}
  ${If} $6 == $ownSid
    ReadRegStr $1 HKLM "${BEFORE_KEY}\$6" "ScreenSaveActive"
    ${If} $1 == ""
      StrCpy $1 1  ; as Windows has it of its own accord
    ${EndIf}
    !insertmacro TELL ${SPI_SETSCREENSAVEACTIVE} $1
  ${EndIf}
  !insertmacro RECALL "ScreenSaveActive"
FunctionEnd

; Only where the installer has set it, and nobody after it.
Function un.RestoreTimeUntilSaver
  ReadRegStr $0 HKLM "${BEFORE_KEY}\$6" "TimeWasSet"
  ReadRegStr $1 HKU "$6\${DESKTOP_KEY}" "ScreenSaveTimeOut"
  ${If} $0 == ""
  ${OrIf} $0 != $1
    Return
  ${EndIf}
  ${If} $6 == $ownSid
    !insertmacro TELL ${SPI_SETSCREENSAVETIMEOUT} 0
  ${EndIf}
  !insertmacro RECALL "ScreenSaveTimeOut"
FunctionEnd
