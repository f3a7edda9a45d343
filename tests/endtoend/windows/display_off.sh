# While the display is off nothing is drawn, and nothing is computed; on again the sky goes on.
# shellcheck shell=bash
# It is sourced by run_windows.sh, with `display_state` set.
display_becomes() { "$run" "$display_state" Lunaria "$1"; }

# Ticks of processor time that the saver has used.
saver_time() { awk '{print $14 + $15}' "/proc/$saver/stat"; }
screen_stands_still() { ! frames_differ; }

start_saver /s
check "display: the sky moves" wait_until 60 frames_differ
drawn=$(saver_time)
check "display: on, the saver runs" saver_goes_on
drawn=$(($(saver_time) - drawn))
check "display: it is told that it is off" display_becomes 0
check "display: off, the sky stands still" wait_until 10 screen_stands_still
check "display: it is the saver's own process that is measured" grep -qa Lunaria.scr "/proc/$saver/cmdline"
used=$(saver_time)
check "display: off, the saver runs" saver_goes_on
used=$(($(saver_time) - used))
# A slow machine takes longer for both.
check "display: off, it uses next to no processor time ($used ticks in two seconds; $drawn where it draws)" \
  [ $((used * 3)) -le $((drawn > 6 ? drawn : 6)) ]
check "display: off, the sky still stands" screen_stands_still
check "display: it is told that it is dimmed" display_becomes 2
check "display: dimmed, the sky moves" frames_go_on
check "display: it is told that it is off again" display_becomes 0
check "display: off again, the sky stands still" wait_until 10 screen_stands_still
check "display: it is told that it is on" display_becomes 1
check "display: on, the sky moves" frames_go_on
check "display: it is told that it is off at the end" display_becomes 0
xdotool key a
check "display: a key ends it also while it is off" wait_for_end 10
check "display: exit code 0" [ "$exit_code" = 0 ]
keep_log display
check "display: the log is complete" log_in_order 'ScreenSaverProc() received WM_CLOSE' \
  'ScreenSaverProc() received  WM_DESTROY' 'Deleted ncWorldPtr' 'xplLog closing'
