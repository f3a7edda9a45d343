; What is seen of the installer and the uninstaller: pages, texts, pictures.
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_HEADERIMAGE
!define MUI_HEADERIMAGE_RIGHT
!define MUI_HEADERIMAGE_BITMAP "${SCRIPTS}\header.bmp"
!define MUI_HEADERIMAGE_UNBITMAP "${SCRIPTS}\header.bmp"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SCRIPTS}\welcome.bmp"
!define MUI_UNWELCOMEFINISHPAGE_BITMAP "${SCRIPTS}\welcome.bmp"
!define MUI_FINISHPAGE_NOREBOOTSUPPORT
!define MUI_UNFINISHPAGE_NOREBOOTSUPPORT

Var endText
Var checkBox

!define MUI_WELCOMEPAGE_TITLE "A night sky for your screen"
!define MUI_WELCOMEPAGE_TEXT "Welcome! This puts the screen saver Lunaria ${VERSION} on your computer. It takes a moment, \
  and your settings and quotations stay as they are if you had Lunaria before.$\r$\n$\r$\n\
  You can remove it at any time, in Windows' settings under Apps.$\r$\n$\r$\n\
  The owner of Lunaria has chosen no licence yet: until then nothing here gives the right to copy, change or pass it on.\
  $\r$\n$\r$\nClick Next to go on."
!insertmacro MUI_PAGE_WELCOME

Page custom showChoice leaveChoice

!define MUI_PAGE_HEADER_TEXT "Putting Lunaria in its place"
!define MUI_PAGE_HEADER_SUBTEXT "This takes a moment."
!insertmacro MUI_PAGE_INSTFILES

!define MUI_FINISHPAGE_TITLE "Good night!"
!define MUI_FINISHPAGE_TEXT "$endText"
!define MUI_PAGE_CUSTOMFUNCTION_PRE writeEndText
!insertmacro MUI_PAGE_FINISH

UninstPage custom un.showQuestion un.leaveQuestion
!define MUI_PAGE_HEADER_TEXT "Removing Lunaria"
!define MUI_PAGE_HEADER_SUBTEXT "This takes a moment."
!insertmacro MUI_UNPAGE_INSTFILES
!define MUI_FINISHPAGE_TITLE "Lunaria is removed"
!define MUI_FINISHPAGE_TEXT "$endText"
!define MUI_PAGE_CUSTOMFUNCTION_PRE un.writeEndText
!insertmacro MUI_UNPAGE_FINISH

!insertmacro MUI_LANGUAGE "English"

; label TOP HEIGHT TEXT: a text over the whole width of the page, in dialog units.
!macro LABEL top height text
  ${NSD_CreateLabel} 0 ${top}u 100% ${height}u "${text}"
  Pop $0
!macroend

Function showChoice
  ReadRegStr $1 HKCU "${DESKTOP_KEY}" "SCRNSAVE.EXE"
  ${If} $1 == "${SAVER}"
    Abort  ; it is chosen already
  ${EndIf}
  !insertmacro MUI_HEADER_TEXT "Your screen saver" "Which one shall Windows show?"
  nsDialogs::Create 1018
  Pop $0
  ${If} $isOtherUser == 1
    !insertmacro LABEL 0 60 "Windows runs this installer under another user's name, so it cannot choose for you.$\r$\n$\r$\n\
      When it has finished, open the Start menu, type $\"screen saver$\", open $\"Change screen saver$\" and take \
      $\"${PRODUCT}$\" from the list."
    StrCpy $wantsToChoose 0
  ${Else}
    !insertmacro LABEL 0 24 "Lunaria can be your screen saver from now on. After you remove Lunaria, Windows shows the one \
      again that you have now."
    ${NSD_CreateCheckBox} 0 32u 100% 12u "&Make Lunaria my screen saver"
    Pop $checkBox
    ${NSD_Check} $checkBox
    !insertmacro LABEL 56 40 "What the sky shows is chosen in $\"Lunaria settings$\" in the Start menu. When it begins, and \
      whether a password is asked for afterwards, stays as it is set in Windows."
    ${NSD_SetFocus} $checkBox
  ${EndIf}
  nsDialogs::Show
FunctionEnd

Function leaveChoice
  ${If} $isOtherUser == 0
    ${NSD_GetState} $checkBox $wantsToChoose
  ${EndIf}
FunctionEnd

Function writeEndText
  StrCpy $endText "Lunaria ${VERSION} is installed.$\r$\n$\r$\nIn the Start menu, under Lunaria, are its settings, and \
    $\"Lunaria now$\" to see the sky at once. Move the mouse to have the desktop back."
  ${If} ${RebootFlag}
    StrCpy $endText "$endText$\r$\n$\r$\nThe Lunaria of before is still open; Windows removes it when it starts next."
  ${EndIf}
FunctionEnd

Function un.showQuestion
  !insertmacro MUI_HEADER_TEXT "Remove Lunaria" "Thank you for the nights under its sky."
  nsDialogs::Create 1018
  Pop $0
  !insertmacro LABEL 0 24 "This removes the screen saver Lunaria. If it is your screen saver now, Windows shows the one again \
    that you had before."
  ${If} $isOtherUser == 1
    !insertmacro LABEL 32 40 "Your settings and quotations stay, since Windows runs this under another user's name. They lie in \
      %APPDATA%\Lunaria software."
  ${Else}
    ${NSD_CreateCheckBox} 0 32u 100% 12u "Remove my &settings and quotations too"
    Pop $checkBox
    SetShellVarContext current
    !insertmacro LABEL 48 24 "They lie in $APPDATA\Lunaria software."
    SetShellVarContext all
  ${EndIf}
  GetDlgItem $0 $HWNDPARENT 1
  SendMessage $0 ${WM_SETTEXT} 0 "STR:&Remove"
  nsDialogs::Show
FunctionEnd

Function un.leaveQuestion
  ${If} $isOtherUser == 0
    ${NSD_GetState} $checkBox $wantsPurge
  ${EndIf}
FunctionEnd

Function un.writeEndText
  StrCpy $endText "Nothing of it is left"
  ${If} $wantsPurge == 1
    StrCpy $endText "$endText."
  ${Else}
    StrCpy $endText "$endText but your settings and quotations, for another time."
  ${EndIf}
  ${If} ${RebootFlag}
    StrCpy $endText "$endText$\r$\n$\r$\nA part of it is still open; Windows removes that when it starts next."
  ${EndIf}
FunctionEnd
