#!/usr/bin/env bash
# Displays of every kind: few colours, no shared memory, several monitors, very large, and one that goes away.
. "$(dirname "$0")/lib.sh"

start_display 640x480x24
check "the sky is there" start_and_see root
kill -KILL "$server"; wait "$server" 2>/dev/null
await_saver 5
same "a display that goes away ends it" 1 "$code"
same "with one line" 1 "$(wc -l <"$work/err")"
check "that says so" grep -q "the display $DISPLAY went away" "$work/err"
check "the world was shut down" logged "ScreenSaverProc() received  WM_DESTROY"
same "the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"

start_display 640x480x24
start_window 300x200+0+0
start_and_see "$window" /p "$window"
kill -KILL "$server"; wait "$server" 2>/dev/null
await_saver 5
same "and ends a preview" "1 1" "$code $(wc -l <"$work/err")"
end_window

for depth in 16 15; do
  start_display "800x600x$depth"
  check "$depth bits: the sky is there" start_and_see root
  check "$depth bits: frames advance" frames_advance root
  end_saver
  same "$depth bits: it ends in order" 0 "$code"
  start_window 320x200+100+80
  check "$depth bits: the preview shows the sky" start_and_see "$window" /p "$window"
  end_saver
  end_window
done

start_display 640x480x8 -cc 3
start_saver
await_saver 5
same "without true colours: exit code" 1 "$code"
same "without true colours: one line" 1 "$(wc -l <"$work/err")"
check "without true colours: says why" grep -q "8 bits a pixel without true colours" "$work/err"

start_display 1280x720x24 -extension MIT-SHM
check "without shared memory the sky is there" start_and_see root
check "without shared memory frames advance" frames_advance root
end_saver
at_most "without shared memory it is gone within 100 ms" 100 "$milliseconds"

start_display 1280x720x24 -extension RANDR
check "without monitors to ask for the sky is there" start_and_see root
check "the screen is the monitor" logged "Monitor 0: Left 0, top 0, right 1280, bottom 720"
end_saver
LUNARIA_NO_SHM=1 check "with shared memory switched off the sky is there" start_and_see root
same "no memory is shared" 0 "$(grep -c lunaria-frame "/proc/$saver/maps")"
end_saver
start_and_see root
same "otherwise one frame's memory is shared" 1 "$(grep -c lunaria-frame "/proc/$saver/maps")"
end_saver

start_display 1920x600x24
xrandr --setmonitor left 960/254x600/159+0+0 screen >/dev/null
xrandr --setmonitor '*right' 960/254x600/159+960+0 none
start_and_see root
check "two monitors" logged "Number of monitors:2"
check "the main one is the first" logged "Monitor 0: Left 960, top 0, right 1920, bottom 600"
check "then the other" logged "Monitor 1: Left 0, top 0, right 960, bottom 600"
half_shows_sky() { [ "$(import -window root -crop "960x600+$1+0" +repage -format %k info:)" -gt 20 ]; }
check "the left one shows the sky" half_shows_sky 0
check "the right one shows the sky" half_shows_sky 960
end_saver
start_window 400x300+1000+100
start_and_see "$window" /p "$window"
check "a window on one of them is its own monitor" logged "Monitor 0: Left 0, top 0, right 400, bottom 300"
end_saver
end_window

echo 'Xft.dpi: 192' | xrdb -merge
start_and_see root
frames_advance root
end_saver
same "twice the dots per inch are borne" 0 "$code"

start_display 15360x4320x24
check "a screen of 15360x4320 shows the sky" start_and_see root
check "as a whole" logged "TopLeft:0,0 screen width:15360, height:4320"
far_corner_is_drawn() { [ "$(import -window root -crop 2000x1000+13360+3320 +repage -format %k info:)" -gt 20 ]; }
check "down to its far corner" until_true 20 far_corner_is_drawn
end_saver
same "and ends in order" 0 "$code"

start_display 1920x1080x24
xsetroot -solid red
xrandr --fb 1024x600 >/dev/null 2>&1
start_and_see root
check "a screen that was made smaller is taken as it is" logged "TopLeft:0,0 screen width:1024, height:600"
xrandr --fb 1920x1080 >/dev/null 2>&1
new_part_is_black() {
  [ "$(import -window root -crop 800x1000+1050+10 +repage -format '%[fx:maxima]' info:)" = 0 ]
}
check "what a growing screen adds is covered with black" until_true 5 new_part_is_black
check "and the run goes on" frames_advance root
end_saver
