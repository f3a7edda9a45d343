# Choosing Lunaria as the screen saver, and giving back the one that was chosen before.
# shellcheck shell=bash
# It is sourced by windows_installer.sh.
before_file=$prefix/drive_c/windows/system32/Before.scr
before='C:\windows\system32\Before.scr'
ours='C:\windows\system32\Lunaria.scr'
chosen() { reg_value "$desktop_key" SCRNSAVE.EXE; }
active() { reg_value "$desktop_key" ScreenSaveActive; }
seconds_until() { reg_value "$desktop_key" ScreenSaveTimeOut; }
choose() { check "$1: chosen with exit code 0" [ "$(setup /S /CHOOSE)" = 0 ]; }

# None before.
choose "none before"
check "none before: Lunaria" [ "$(chosen)" = "$ours" ]
check "none before: it is on" [ "$(active)" = 1 ]
remove /S
keep_state none
check "none before: none after" same_part before none ''

# One before, switched off, and no time set.
echo > "$before_file"
reg_set "$desktop_key" SCRNSAVE.EXE "$before"
reg_set "$desktop_key" ScreenSaveActive 0
reg_set "$desktop_key" ScreenSaveTimeOut 0
keep_state one
check "without /CHOOSE: exit code 0" [ "$(setup /S)" = 0 ]
check "without /CHOOSE: the same as before" [ "$(chosen) $(active)" = "$before 0" ]
choose "one before"
check "one before: Lunaria" [ "$(chosen)" = "$ours" ]
check "one before: it is on" [ "$(active)" = 1 ]
check "one before: after ten minutes" [ "$(seconds_until)" = 600 ]
choose "chosen again"
remove /S
keep_state one-after
check "one before: the same after" same_part one one-after ''

# The user's own choice, made after ours, is left alone; so is the time.
choose "another choice"
reg_set "$desktop_key" SCRNSAVE.EXE 'C:\windows\system32\Other.scr'
reg_set "$desktop_key" ScreenSaveTimeOut 120
remove /S
check "another choice: it stays" [ "$(chosen) $(active)" = 'C:\windows\system32\Other.scr 1' ]
check "another choice: so does its time" [ "$(seconds_until)" = 120 ]

# The time that the user set while Lunaria was chosen stays.
reg_set "$desktop_key" SCRNSAVE.EXE "$before"
choose "another time"
reg_set "$desktop_key" ScreenSaveTimeOut 240
remove /S
check "another time: the saver of before" [ "$(chosen)" = "$before" ]
check "another time: it stays" [ "$(seconds_until)" = 240 ]

# Chosen by hand: nothing is remembered, and none is chosen afterwards.
check "by hand: installs" [ "$(setup /S)" = 0 ]
reg_set "$desktop_key" SCRNSAVE.EXE 'c:\WINDOWS\System32\LUNARIA.SCR'
remove /S
check "by hand: none" [ -z "$(chosen)" ]

# The file of before has gone meanwhile.
reg_set "$desktop_key" SCRNSAVE.EXE "$before"
choose "gone meanwhile"
rm "$before_file"
remove /S
check "gone meanwhile: none" [ -z "$(chosen)" ]
reg_set "$desktop_key" ScreenSaveActive 1
reg_delete "$desktop_key" ScreenSaveTimeOut
[ -n "$(grep '^"ScreenSaveActive"' "$scratch/before.reg")" ] || reg_delete "$desktop_key" ScreenSaveActive
