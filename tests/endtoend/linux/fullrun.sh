#!/usr/bin/env bash
# The full run over the whole screen: sky, monitors, cursor, grabs, and the input that ends it.
. "$(dirname "$0")/lib.sh"
start_display 1280x720x24
xdotool mousemove 600 400

check "the sky is there" start_and_see root
check "frames advance" frames_advance root
saver_window=$(xwininfo -root -children | awk '/"Lunaria"/ {print $1}')
xwininfo -id "$saver_window" >"$work/info"
same "it covers the screen" "1280x720+0+0" "$(awk '/-geometry/ {print $2}' "$work/info")"
check "no window manager has a say" grep -q 'Override Redirect State: yes' "$work/info"
same "the cursor is hidden" hidden "$("$helper" cursor)"
same "the keyboard is grabbed" refused "$("$helper" grab keyboard </dev/null)"
same "the pointer is grabbed" refused "$("$helper" grab pointer </dev/null)"

xdotool mousemove 601 400
xdotool mousemove 604 397
seen=$(frame root)
check "small movements end nothing" until_true 5 frame_is_not root "$seen"
check "it still runs" kill -0 "$saver"
xdotool mousemove 620 400
await_saver 5
same "a movement of the pointer ends it" 0 "$code"
same "the cursor is back" visible "$("$helper" cursor)"
same "the keyboard is free" held "$("$helper" grab keyboard </dev/null)"
same "the pointer is free" held "$("$helper" grab pointer </dev/null)"
same "the screen is free" 1 "$(colours root)"
check "nothing on standard error" test ! -s "$work/err"

for input in "key a" "key Shift_L" "click 1" "click 3" "click 4"; do
  start_and_see root /s
  # shellcheck disable=SC2086
  xdotool $input
  await_saver 5
  same "$input ends it" 0 "$code"
  same "$input: the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"
done

# A pointer that stands where another window comes up sees no movement.
xdotool mousemove 10 10
start_and_see root --fullscreen
frames_advance root
frames_advance root
check "coming up under the pointer ends nothing" kill -0 "$saver"
end_saver
same "and a signal does" 0 "$code"

# Started by an idle watcher, say, beside the menu's entry.
start_and_see root
second_gives_way "$DISPLAY" frames_advance root
{ end_saver KILL; } 2>/dev/null
check "after one that was killed the next one shows" start_and_see root
end_saver
same "and ends" 0 "$code"
same "nothing of them stays but the log" "${log##*/}" "$(ls "$TMPDIR")"
start_and_see root --fullscreen
end_saver

cat >"$work/expected" <<'LINES'
ScreenSaverProc() received WM_CREATE
notepad window handle: 0
creating: xplScreenSaverAbstract
Program: Lunaria screensaver 5.4.1
creating: noctisScreensaver
creating xplApp
arg[1]:/s
Entering: noctisScreensaver.initWithWindowHandle()
TopLeft:0,0 screen width:1280, height:720
Number of monitors:1
Monitor 0: Left 0, top 0, right 1280, bottom 720
Creating TnoctisWorld with monitorId =0
Exiting: noctisScreensaver.initWithWindowHandle()
Entering: WM_ERASEBKGND
Exiting: WM_ERASEBKGND
ScreenSaverProc() received WM_CLOSE
ScreenSaverProc() received  WM_DESTROY
Entering: noctisScreensaver.shutDown()
Deleted startupEffectPtr
Deleted ncWorldPtr
Deleted m_telemetryPtr
Exiting: noctisScreensaver.shutDown()
destroying: noctisScreensaver
destroying: xplScreenSaverAbstract
xplLog closing
xplLog closing
LINES
log_entries | grep -xFf "$work/expected" >"$work/actual"
check "the log tells the whole run in order" diff "$work/expected" "$work/actual"
same "the log has no error" 0 "$(grep -c '^ERROR' "$log")"

# Another program holds the input: it is tried again until it can be had.
for device in keyboard pointer; do
  coproc holder { "$helper" grab "$device"; }
  read -r answer <&"${holder[0]}"
  holder_pid=$holder_PID
  start_and_see root
  same "with the $device held by another program it runs" "held running" \
    "$answer $(kill -0 "$saver" && echo running)"
  eval "exec ${holder[1]}>&-"
  wait "$holder_pid"
  check "the $device is taken when it is free" until_true 5 \
    sh -c "[ \"\$('$helper' grab $device </dev/null)\" = refused ]"
  end_saver
done
coproc holder { "$helper" grab keyboard; }
read -r answer <&"${holder[0]}"
start_and_see root
check "what cannot be had is said in the log" until_true 10 logged "The keyboard could not be grabbed"
check "and it runs on" frames_advance root
end_saver
eval "exec ${holder[1]}>&-"
true
