#!/usr/bin/env bash
# The run on a compositor without layers (weston): full-screen windows, and an ordinary one.
. "$(dirname "$0")/waylandLib.sh"
need weston weston-screenshooter convert

all_of_it_shows_sky() { part_shows_sky 200x200+0+0 && part_shows_sky 200x200+1080+520; }
word() { screen && convert "$work/screen.png" ppm:- | cksum; }
word_is_not() { [ "$(word)" != "$1" ]; }
screen_advances() { until_true 5 word_is_not "$(word)"; }

start_weston desktop
start_saver
check "the sky is there, from corner to corner" until_true 10 all_of_it_shows_sky
check "as windows" logged "the screens are covered by windows"
check "over the whole output" logged "TopLeft:0,0 screen width:1280, height:720"
check "frames advance" screen_advances
open_before=$(find "/proc/$saver/fd" | wc -l)
for _ in 1 2 3 4 5; do screen_advances; done
same "no descriptor is left open" "$open_before" "$(find "/proc/$saver/fd" | wc -l)"
second_gives_way "$WAYLAND_DISPLAY" screen_advances
woken=$(wakes)
sleep 2 # the frames of this time are what is counted
at_most "one wake for each frame, more or less, in two seconds" 75 $(($(wakes) - woken))
end_saver
same "SIGTERM ends it" 0 "$code"
at_most "within 100 ms" 100 "$milliseconds"
same "the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"
start_saver --window 640x400
check "an ordinary window shows the sky" until_true 10 screen_advances
end_saver
same "and ends" 0 "$code"
start_saver
until_true 10 all_of_it_shows_sky
{ kill -KILL "$compositor_pid"; wait "$compositor_pid"; } 2>/dev/null
await_saver 5
same "when it dies the run ends" "1 1" "$code $(wc -l <"$work/err")"
check "and says so" grep -q "the Wayland display $WAYLAND_DISPLAY went away" "$work/err"
