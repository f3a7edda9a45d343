#!/usr/bin/env bash
# The run in an ordinary window.
. "$(dirname "$0")/lib.sh"
start_display 800x600x24

open_window() {
  start_saver --window "$@"
  until_true 10 shows_sky root
  window=$(xwininfo -root -children | awk '/"Lunaria"/ {print $1}')
}
open_window 320x200
same "it is called Lunaria" 'WM_NAME(STRING) = "Lunaria"' "$(xprop -id "$window" WM_NAME)"
same "its class too" 'WM_CLASS(STRING) = "lunaria", "Lunaria"' "$(xprop -id "$window" WM_CLASS)"
check "the window manager has a say" sh -c "xwininfo -id $window | grep -q 'Override Redirect State: no'"
check "it has the size that was asked for" sh -c "xwininfo -id $window | grep -q -- '-geometry 320x200'"
check "the size is fixed" sh -c "xprop -id $window WM_NORMAL_HINTS | grep -q 'minimum size: 320 by 200' &&
  xprop -id $window WM_NORMAL_HINTS | grep -q 'maximum size: 320 by 200'"
check "frames advance" frames_advance "$window"
same "it is the full run" 1 "$(grep -c 'monitorId =0' "$log")"
same "the cursor stays" visible "$("$helper" cursor)"
same "the keyboard stays free" held "$("$helper" grab keyboard </dev/null)"
xdotool mousemove 50 50 click 1 mousemove 200 150 click 4
xdotool windowfocus "$window" key a
check "the pointer and other keys end nothing" frames_advance "$window"
for key in Escape q Q; do
  [ -n "$saver" ] || open_window 320x200
  xdotool mousemove 100 100 windowfocus "$window" key "$key"
  await_saver 5
  same "$key ends it" 0 "$code"
done
open_window
check "without a size it is 960x600" sh -c "xwininfo -id $window | grep -q -- '-geometry 960x600'"
"$helper" close "$window"
await_saver 5
same "the close button ends it" 0 "$code"
same "the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"
open_window 320x200
xdotool windowsize "$window" 400 300
check "a window manager that resizes it is borne" frames_advance "$window"
xdotool windowunmap "$window"
xdotool windowmap "$window"
check "so is one that hides it for a while" frames_advance "$window"
end_saver
same "and it ends in order" 0 "$code"
