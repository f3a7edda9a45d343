#!/usr/bin/env bash
# The run on a compositor with layers (sway): outputs of many kinds, an ordinary window, input, and what it holds.
. "$(dirname "$0")/waylandLib.sh"
need sway swaymsg swaybg grim wtype convert
start_sway 2

sway_shows_sky() { output_shows_sky HEADLESS-1; }
start_and_see_sway() {
  start_saver "$@"
  until_true 10 sway_shows_sky
}
# Its desktop is red.
no_desktop() { picture "$1" && nothing_of '#FF0000' "$work/picture.ppm"; }
desktop_is_seen() { ! no_desktop "$1"; }
tell_sway() { swaymsg -q -- "$@"; }

check "the sky is there" start_and_see_sway
check "on the other output too" until_true 5 output_shows_sky HEADLESS-2
check "as layers" logged "the screens are covered by layers"
check "one picture over both" logged "TopLeft:0,0 screen width:2080, height:720"
check "the main monitor" logged "Monitor 0: Left 0, top 0, right 1280, bottom 720"
check "the other monitor" logged "Monitor 1: Left 1280, top 0, right 2080, bottom 600"
check "nothing is seen of the desktop" no_desktop HEADLESS-1
check "frames advance" output_advances HEADLESS-1
check "on both" output_advances HEADLESS-2

descriptors() { find "/proc/$saver/fd" | wc -l; }
memory() { awk '/^VmRSS/ {print $2}' "/proc/$saver/status"; }
open_before=$(descriptors); before=$(memory)
sleep 10 # what grows meanwhile is what is tried
same "no descriptor is left open" "$open_before" "$(descriptors)"
at_most "memory does not grow (kibibytes)" 512 $(($(memory) - before))
end_saver
same "SIGTERM ends it" 0 "$code"
at_most "within 100 ms" 100 "$milliseconds"
same "the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"
check "nothing on standard error" test ! -s "$work/err"

# ended NAME: it has ended in order, and is not left running where it has not.
ended() {
  await_saver 5
  same "$1" 0 "$code"
  [ -z "$saver" ] || end_saver KILL
}
start_and_see_sway /s
wtype -s 300 -k a
ended "a key ends it"

start_and_see_sway
before=$(awk '{print $14 + $15}' "/proc/$saver/stat")
kill -STOP "$saver"
sleep 3 # the pause is what is tried
kill -CONT "$saver"
output_advances HEADLESS-1
at_most "a pause of 75 ticks is not caught up (hundredths of a second of processor time)" 15 \
  $(($(awk '{print $14 + $15}' "/proc/$saver/stat") - before))
end_saver

# Two screens of one scale: the picture has their own pixels. Otherwise it has logical ones.
for scale in 2 1.5; do
  tell_sway output '*' scale "$scale"
  start_and_see_sway
  check "scale $scale: the picture has the screens' own pixels" \
    grep -qE 'Monitor 0: Left 0, top 0, right 1280, bottom 720$' "$log"
  check "scale $scale: it moves" output_advances HEADLESS-1
  end_saver
done
tell_sway output HEADLESS-2 scale 1
start_and_see_sway
check "two scales: logical pixels" grep -qE 'Monitor [01]: Left 0, top 0, right 85[34], bottom 480$' "$log"
check "two scales: it moves" output_advances HEADLESS-1
end_saver
tell_sway output HEADLESS-1 scale 1
tell_sway output HEADLESS-1 transform 90
start_and_see_sway
check "a screen on its side" grep -qE 'Monitor [01]: Left 0, top 0, right 720, bottom 1280$' "$log"
tell_sway output HEADLESS-1 transform normal
check "that is turned meanwhile stays covered" until_true 5 no_desktop HEADLESS-1
check "and moves" output_advances HEADLESS-1
tell_sway create_output
check "an output that is added is covered" until_true 5 no_desktop HEADLESS-3
end_saver
check "until the end" until_true 5 desktop_is_seen HEADLESS-3

window_is_there() { swaymsg -t get_tree -r | grep -q '"app_id": "lunaria"'; }
open_window() {
  start_saver --window "$@"
  until_true 10 window_is_there
}
open_window 320x200
check "a window is called lunaria" window_is_there
check "its title is Lunaria" sh -c "swaymsg -t get_tree -r | grep -q '\"name\": \"Lunaria\"'"
content() { swaymsg -t get_tree | grep -A6 '"geometry"' | tr -d ' \n'; }
check "it has the size that was asked for" sh -c "echo '$(content)' | grep -q '\"width\":320,\"height\":200'"
tell_sway '[app_id="lunaria"] move' output HEADLESS-1, workspace 1
check "it shows the sky" until_true 5 sway_shows_sky
wtype -s 300 -k a
check "other keys do not end it" output_advances HEADLESS-1
tell_sway workspace elsewhere
check "on a workspace that is not shown, drawing waits" until_true 3 logged "drawing waits"
idles "on it, at next to no cost"
tell_sway workspace back_and_forth
check "shown again, the sky goes on" output_advances HEADLESS-1
for key in Escape q; do
  [ -n "$saver" ] || open_window 320x200
  wtype -s 300 -k "$key"
  ended "$key ends it"
done
open_window
tell_sway '[app_id="lunaria"] kill'
ended "closing it ends it"
same "and the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"

# The settings, without an X server.
if [ -n "$(find /usr/lib -path '*qt6/plugins/platforms/libqwayland*' -print -quit 2>/dev/null)" ]; then
  settings_are_open() { swaymsg -t get_tree | grep -q '"app_id": "lunaria-configure"'; }
  env -u QT_QPA_PLATFORM "$bin/lunaria-configure" >"$work/out" 2>"$work/err" &
  saver=$!
  check "the settings open on Wayland" until_true 10 settings_are_open
  tell_sway '[app_id="lunaria-configure"] kill'
  ended "closing them ends them"
else
  echo "skipped: no qt6-wayland, which shows the settings on Wayland"
fi

start_and_see_sway
{ kill -KILL "$compositor_pid"; wait "$compositor_pid"; } 2>/dev/null
await_saver 5
same "when sway dies it ends" "1 1" "$code $(wc -l <"$work/err")"
check "and says so" grep -q "the Wayland display $WAYLAND_DISPLAY went away" "$work/err"
