#!/usr/bin/env bash
# Runs inside windows that another program owns.
. "$(dirname "$0")/lib.sh"
start_display 800x600x24+32

start_window 320x200+100+80
outside() { import -window root -crop 90x600+0+0 +repage rgb:- | cksum; }
before=$(outside)
check "the preview shows the sky" start_and_see "$window" /p "$((window))"
check "frames advance" frames_advance "$window"
same "nothing is drawn outside" "$before" "$(outside)"
check "the log shows the preview" logged "arg[1]:/p"
check "the log shows the window's decimal id" logged "arg[2]:$((window))"
check "the world is the preview's" logged "Creating TnoctisWorld with monitorId =-1"
check "the window is the whole screen of the preview" logged "TopLeft:0,0 screen width:320, height:200"
# Bits of the protocol: button press 2, structure redirect 20, resize redirect 18.
masks=$("$helper" masks "$window")
same "no event is taken from the owner" 0 $((masks & (1 << 2 | 1 << 20 | 1 << 18)))
same "the keyboard stays free" held "$("$helper" grab keyboard </dev/null)"
xdotool mousemove 200 150 click 1 mousemove 260 180 key --window "$window" a key b
check "input ends nothing" frames_advance "$window"
end_saver
same "SIGTERM ends it" 0 "$code"
at_most "within 100 ms" 100 "$milliseconds"
# A window loses what it shows when its size changes.
clear_window() { tell_window "resize 321x200"; tell_window "resize 320x200"; }
clear_window

for form in "--preview $window" "-preview $window" "--window-id $window" "-window-id $((window))" \
  "--root --window-id $window" "--window-id $window --root"; do
  # shellcheck disable=SC2086
  XSCREENSAVER_WINDOW=0x1 check "the preview by $form" start_and_see "$window" $form
  check "$form is handed over as /p" logged "arg[1]:/p"
  end_saver
  clear_window
done

start_saver /p "$window"
until_true 10 shows_sky "$window"
tell_window "resize 400x260"
check "it runs on in a window that has grown" frames_advance "$window"
corner_is_black() {
  [ "$(import -window root -crop 60x40+430+290 +repage -format '%[fx:maxima]' info:)" = 0 ]
}
check "what it does not reach is black" until_true 5 corner_is_black
tell_window "resize 100x60"
check "it runs on in a window that has shrunk" frames_advance "$window"
end_saver
same "and ends in order" 0 "$code"
end_window

start_window 320x200+100+80
start_saver /p "$window"
until_true 10 shows_sky "$window"
tell_window destroy
await_saver 5
same "a destroyed window ends it" 1 "$code"
same "with one line" 1 "$(wc -l <"$work/err")"
check "that says so" grep -q "the window was destroyed" "$work/err"
check "the world was shut down" logged "ScreenSaverProc() received  WM_DESTROY"
same "the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"
end_window

start_window 320x200+100+80
start_saver /p "$window"
tell_window destroy
await_saver 5
same "a window destroyed during the start ends it" 1 "$code"
same "with one line" 1 "$(wc -l <"$work/err")"
end_window

start_window 300x180+20+30 32
check "a window with an alpha channel shows the sky" start_and_see "$window" --window-id "$window"
check "its frames advance" frames_advance "$window"
end_saver
end_window

# The pane of a settings program that starts the saver in the daemon's words.
start_window 300x180+20+30
export XSCREENSAVER_WINDOW=$window
check "a small window in the environment shows the sky" start_and_see "$window" --root
check "small: it is the preview" logged "Creating TnoctisWorld with monitorId =-1"
check "small: by the canonical argument" logged "arg[1]:/p"
check "small: with the window's decimal id" logged "arg[2]:$((window))"
same "small: one line says why" 1 "$(grep -c 'window of 300x180 is small for this screen: it shows the preview' "$log")"
check "small: frames advance" frames_advance "$window"
end_saver
same "small: SIGTERM ends it" 0 "$code"
at_most "small: within 100 ms" 100 "$milliseconds"
same "small: the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"
end_window

start_window 600x500+20+30
export XSCREENSAVER_WINDOW=$window
check "the full run in the environment's window shows the sky" start_and_see "$window" --root
check "it is the full run" logged "Creating TnoctisWorld with monitorId =0"
check "by the canonical argument" logged "arg[1]:/s"
same "nothing is said of a preview" 0 "$(grep -c 'shows the preview' "$log")"
xdotool mousemove 100 100 click 1 mousemove 150 60
check "input ends nothing" frames_advance "$window"
end_saver HUP
same "SIGHUP ends it" 0 "$code"
at_most "within 100 ms" 100 "$milliseconds"
unset XSCREENSAVER_WINDOW
end_window

check "the root window shows the sky" start_and_see root --root
check "the root window has the full run" logged "Creating TnoctisWorld with monitorId =0"
check "its frames advance" frames_advance root
end_saver
same "and it ends" 0 "$code"

start_window 1x1+5+5
start_saver /p "$window"
until_true 5 logged "Exiting: WM_ERASEBKGND"
end_saver
same "a window of one pixel is borne" "0 1" "$code $(grep -c 'received  WM_DESTROY' "$log")"
end_window
