# When the screen changes under a full run it ends, in order: it never stands beside a piece of the desktop.
# shellcheck shell=bash
# It is sourced by run_windows.sh, with `change_resolution` set.
screen_becomes() { "$run" "$change_resolution" "${1%x*}" "${1#*x}"; }

change_ends_run() {  # NAME FROM TO
  start_saver /s
  check "$1: the window covers the screen" wait_until 60 window_is Lunaria 0,0 "$2"
  check "$1: the sky moves" wait_until 30 frames_differ
  check "$1: the system takes the change" screen_becomes "$3"
  check "$1: ends" wait_for_end 10
  check "$1: exit code 0" [ "$exit_code" = 0 ]
  check "$1: no window is left" eval '! window_exists Lunaria'
  keep_log display-change
  check "$1: the log is complete" log_in_order 'ScreenSaverProc() received WM_CLOSE' \
    'ScreenSaverProc() received  WM_DESTROY' 'Deleted ncWorldPtr' 'xplLog closing'
}
change_ends_run "a smaller screen" "$screen" "$second_screen"
change_ends_run "a larger screen" "$second_screen" "$screen"
