#!/usr/bin/env bash
# Starts Lunaria.scr in every mode, under Wine on a display of its own, and looks at what a user would see.
# Usage: tests/endtoend/windows/run_windows.sh [PROGRAM]   (default: build/windows/bin/Lunaria.scr)
# Screenshots and logs of the run stay in the build folder, in endtoend.
set -u
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../../.." && pwd)
program=$(realpath "${1:-$root/build/windows/bin/Lunaria.scr}")
build=$(dirname "$(dirname "$program")")
parent_program=$build/tests/endtoend/windows/preview_parent.exe
display_state=$build/tests/endtoend/windows/display_state.exe
change_resolution=$build/tests/endtoend/windows/change_resolution.exe
out=$build/endtoend
. "$here/harness.sh"

for file in "$program" "$parent_program" "$display_state" "$change_resolution"; do
  [ -e "$file" ] || { echo "$file is not built" >&2; exit 2; }
done
start_display
prepare_prefix

full_run_ended_by() {  # NAME COMMAND...: the input that ends the run
  local name=$1
  shift
  start_saver /s
  check "$name: the window covers the screen" wait_until 60 window_is Lunaria 0,0 "${screen}"
  check "$name: the sky moves" wait_until 30 frames_differ
  screenshot "$name"
  check "$name: stars on a dark sky" is_sky "$out/$name.png"
  "$@"
  check "$name: ends" wait_for_end 10
  check "$name: exit code 0" [ "$exit_code" = 0 ]
  keep_log "$name"
  check "$name: the log is complete" log_in_order 'ScreenSaverProc() received WM_CREATE' 'notepad window handle: ' \
    'creating xplApp' 'Creating TnoctisWorld with monitorId =0' 'ScreenSaverProc() received WM_CLOSE' \
    'ScreenSaverProc() received  WM_DESTROY' 'Deleted startupEffectPtr' 'Deleted ncWorldPtr' \
    'Deleted m_telemetryPtr' 'xplLog closing' 'xplLog closing'
  check "$name: the log ends with its closing line" [ "$(last_entry)" = 'xplLog closing' ]
  check "$name: no error was logged" [ "$(grep -c '^ERROR>' "$log")" = 0 ]
}

full_run_ended_by mouse eval 'xdotool mousemove 300 300 mousemove 300 302; check "mouse: a tremble ends nothing" \
  frames_go_on; xdotool mousemove 340 330'
full_run_ended_by button xdotool click 1
full_run_ended_by wheel xdotool click 4
full_run_ended_by key xdotool key a

. "$here/startup.sh"
. "$here/sound.sh"
. "$here/usage.sh"
. "$here/display_off.sh"
. "$here/display_change.sh"

# A second full run gives way to the first.
start_saver /s
check "second: the first one runs" wait_until 60 window_is Lunaria 0,0 "${screen}"
"$run" "$program" /s
check "second: it ends with exit code 0" [ $? = 0 ]
check "second: the first one goes on" frames_go_on
xdotool key Escape
check "second: the first one ends" wait_for_end 10

preview() {  # NAME OPTION COMMAND MONITOR: COMMAND goes to the parent and ends it
  local name=$1 option=$2 ending=$3 monitor=$4
  start_parent
  start_saver "$option" "$parent_handle"
  check "$name: it fills its parent" wait_until 60 child_is '0,0 152x112 visible alive'
  # What a program draws in a window of another program's does not reach the screen under this Wine, so the
  # frames of a preview are looked at below, on the desktop.
  xdotool mousemove 60 60 mousemove 120 100 click 1 click 4 key a
  check "$name: input ends nothing" saver_goes_on
  check "$name: it still fills its parent" child_is '0,0 152x112 visible alive'
  tell_parent "$ending"
  end_of_preview "$name" "$monitor"
}

end_of_preview() {  # NAME MONITOR
  local name=$1 monitor=$2
  check "$name: ends with its parent" wait_for_end 10
  check "$name: exit code 0" [ "$exit_code" = 0 ]
  keep_log "$name"
  check "$name: the log is complete" log_in_order "Creating TnoctisWorld with monitorId =$monitor" \
    'ScreenSaverProc() received  WM_DESTROY' 'Deleted ncWorldPtr' 'xplLog closing' 'xplLog closing'
  check "$name: the log ends with its closing line" [ "$(last_entry)" = 'xplLog closing' ]
}

preview preview /p close -1
preview preview-upper-case /P close 0
preview preview-orphan /p abort -1

# The desktop as the parent: the frames of a preview can be seen here.
start_parent desktop
start_saver /p "$parent_handle"
check "preview-desktop: it fills its parent" wait_until 60 child_is "0,0 $screen visible alive"
check "preview-desktop: the sky moves" wait_until 30 frames_differ
screenshot preview-desktop
check "preview-desktop: stars on a dark sky" is_sky "$out/preview-desktop.png"
xdotool mousemove 60 60 mousemove 120 100 click 1 click 4 key a
check "preview-desktop: input ends nothing" frames_go_on
tell_parent close
end_of_preview preview-desktop -1

exit_code_of() {
  start_saver "$@"
  wait_for_end 30
  echo "$exit_code"
}
check "a preview in no window: exit code 1" [ "$(exit_code_of /p 99999998)" = 1 ]
check "a preview in window 0: exit code 1" [ "$(exit_code_of /p 0)" = 1 ]
check "a preview without a window: exit code 1" [ "$(exit_code_of /p)" = 1 ]
check "a change of passwords is refused quietly" [ "$(exit_code_of /a 0)" = 0 ]

configuration() {  # NAME ARGUMENT...
  local name=$1
  shift
  start_saver "$@"
  check "$name: the sheet is shown" wait_until 60 window_exists 'Lunara 5.4.1 '
  screenshot "$name"
  xdotool key Return
  check "$name: ends" wait_for_end 10
  check "$name: exit code 0" [ "$exit_code" = 0 ]
  keep_log "$name"
  check "$name: the log is complete" log_in_order 'ScreenSaverConfigureDialog received WM_INITDIALOG' \
    'Program: Lunaria screensaver 5.4.1' 'INI file for user settings=' 'INI file for app settings=' \
    'noctisScreensaver::showConfigureSheet()' 'destroying: noctisScreensaver' 'xplLog closing' 'xplLog closing'
}
configuration configuration /c
configuration no-arguments

finish
