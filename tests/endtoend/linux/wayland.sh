#!/usr/bin/env bash
# The run on a compositor that watches its buffers closely; the choice between X11 and Wayland; what may go wrong.
. "$(dirname "$0")/waylandLib.sh"

last_is_black() { tell colours; [ "${answer##* }" = 1 ]; }
# runs_watched NAME ARGUMENT...: a full run over two outputs on a compositor with these arguments.
runs_watched() {
  local name=$1; shift
  start_helper output 800x600+0+0 output 640x480+800+0 "$@"
  start_saver /s
  check "$name: both outputs show the sky" until_true 10 all_show_sky
  same "$name: one surface on each" "surfaces 2" "surfaces $(tell surfaces; echo "$answer")"
  check "$name: one picture over both" logged "TopLeft:0,0 screen width:1440, height:600"
  check "$name: two monitors" logged "Monitor 1: Left 800, top 0, right 1440, bottom 480"
  for _ in 1 2 3; do frames_come; done
  tell faults
  same "$name: no buffer is written while it is read, no change is left out" "0 torn, 0 untold" "$answer"

  tell "motion 100 100"
  check "$name: the pointer is hidden" until_true 2 answers cursor hidden
  tell "motion 104 97"
  tell leave
  tell "motion 300 200"
  check "$name: small movements, the loss of the focus and a pointer that was put elsewhere end nothing" frames_come

  tell "frames 0"
  check "$name: nobody sees it" until_true 3 logged "drawing waits"
  tell commits
  if until_true 1 commits_are_more_than "$answer"; then not_ok "$name: nothing is drawn that nobody sees"; else
    ok "$name: nothing is drawn that nobody sees"
  fi
  tell "frames 1"
  check "$name: seen on one output it goes on" frames_come
  tell last-commits; before=$((answer))
  frames_come; frames_come
  same "$name: there alone" "$before" "$(tell last-commits; echo "$answer")"
  tell "frames 2"
  check "$name: seen again it goes on" frames_come
  tell faults
  same "$name: as before" "0 torn, 0 untold" "$answer"

  tell "remove 1"
  check "$name: an output that goes takes its surface along" until_true 2 answers surfaces 1
  check "$name: and the run goes on" frames_come
  check "$name: the saver knows" until_true 2 logged "Number of monitors:1"
  tell "add 640x480+800+0"
  check "$name: one that comes back is covered" until_true 2 answers surfaces 2
  check "$name: and shows the sky" until_true 2 all_show_sky
  tell "add 300x200+5000+0"
  check "$name: one beside the picture is covered too" until_true 2 answers surfaces 3
  check "$name: with black" until_true 2 last_is_black
  tell "remove 0"; tell "remove 2"; tell "remove 3"
  check "$name: all outputs may go" until_true 2 answers surfaces 0
  tell "add 800x600+0+0"
  check "$name: one that comes then is covered" until_true 2 answers surfaces 1
  check "$name: and shows the sky again" until_true 2 all_show_sky
  check "$name: which moves" frames_come
  tell faults
  same "$name: all that without a fault" "0 torn, 0 untold" "$answer"
  tell "$ending"
  await_saver 5
  same "$name: $ending ends it" 0 "$code"
  same "$name: the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"
  check "$name: nothing on standard error" test ! -s "$work/err"
  end_helper
}
ending="motion 120 100" runs_watched layers
ending=touch runs_watched windows without layers

start_helper output 640x480+0+0
start_saver
until_true 10 all_show_sky
tell close
await_saver 5
same "a layer that the compositor takes away ends the run" "1 1" "$code $(wc -l <"$work/err")"
check "and it says so" grep -q "the compositor took the saver off a screen" "$work/err"
start_saver
until_true 10 all_show_sky
tell "key 30"
await_saver 5
same "a key ends it" 0 "$code"
start_saver --window 320x200
until_true 10 all_show_sky
tell "motion 10 10"; tell "motion 100 100"; tell touch; tell "key 30"
check "a window is not ended by them" frames_come
tell "key 16"
await_saver 5
same "but by q" 0 "$code"
start_saver --window
until_true 10 all_show_sky
tell close
await_saver 5
same "closing a window ends it" 0 "$code"
start_saver
until_true 10 all_show_sky
kill -STOP "$compositor_pid"
end_saver
kill -CONT "$compositor_pid"
same "SIGTERM while the compositor stands still" 0 "$code"
at_most "gone within 100 ms all the same" 100 "$milliseconds"
start_saver
until_true 10 all_show_sky
{ kill -KILL "$compositor_pid"; wait "$compositor_pid"; } 2>/dev/null
await_saver 5
same "a compositor that dies ends it" "1 1" "$code $(wc -l <"$work/err")"
check "and it says so" grep -q "the Wayland display $WAYLAND_DISPLAY went away" "$work/err"
check "the world was shut down" logged "ScreenSaverProc() received  WM_DESTROY"

for lack in "surfaces:wl_compositor" "memory:wl_shm" "layers without windows:zwlr_layer_shell_v1"; do
  # shellcheck disable=SC2086
  start_helper output 640x480+0+0 without ${lack%%:*}
  start_saver
  await_saver 5
  same "without ${lack%%:*}: one line" "1 1" "$code $(wc -l <"$work/err")"
  check "without ${lack%%:*}: it says what is missing and what helps" grep -q "offers no .*${lack##*:}.*--x11" "$work/err"
  end_helper
done
start_helper without layers
start_saver
await_saver 5
same "without a screen" "1 lunaria: there is no screen on Wayland display $WAYLAND_DISPLAY: start the saver when one is connected" \
  "$code $(cat "$work/err")"
end_helper

# refused NAME EXPECTED ARGUMENT...
refused() {
  start_saver "${@:3}"
  await_saver 5
  same "$1" "1 lunaria: $2" "$code $(cat "$work/err")"
}
WAYLAND_DISPLAY=wayland-none refused "a compositor that is not there, and no X display" \
  "cannot connect to Wayland display wayland-none: check that WAYLAND_DISPLAY names a running compositor, or use --x11"
export WAYLAND_DISPLAY=wayland-none
start_display 640x480x24
refused "none, and --wayland" \
  "cannot connect to Wayland display wayland-none: check that WAYLAND_DISPLAY names a running compositor, or use --x11" --wayland
check "X11 takes its place where there is one" start_and_see root
check "and the log tells" logged "Cannot connect to Wayland display wayland-none: running on X display $DISPLAY"
end_saver
start_helper output 640x480+0+0
check "--x11 runs on X11" start_and_see root --x11
end_saver
start_saver
check "otherwise Wayland comes first" until_true 10 all_show_sky
end_saver
start_window 300x200+0+0 2>/dev/null # two helpers at once
check "a window of X11 is found with Wayland there" start_and_see "$window" /p "$window"
end_saver
check "and the root window" start_and_see root --root
end_saver
end_window
end_helper
same "no idle inhibitor is known to it" 0 "$(grep -c idle_inhibit "$lunaria")"
