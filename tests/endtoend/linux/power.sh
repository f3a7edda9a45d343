#!/usr/bin/env bash
# What nobody can see is not drawn: a display that is switched off, and a window that others cover.
here=$(cd "$(dirname "$0")" && pwd)
. "$here/lib.sh"
start_display 1280x720x24
display=$DISPLAY

start_power() {
  coproc power { exec /usr/bin/python3 "$here/powerProxy.py" "$display" "$1"; }
  power_pid=$power_PID
  read -r managed <&"${power[0]}"
}
tell_power() { echo "$1" >&"${power[1]}"; read -r answer <&"${power[0]}"; }
end_power() { eval "exec ${power[1]}>&-"; wait "$power_pid" 2>/dev/null; }
# start_behind WINDOW ARGUMENT...: the saver on the display with power management, until it is seen.
start_behind() {
  local window=$1; shift
  rm -f "$log"
  DISPLAY=$managed "$lunaria" "$@" >"$work/out" 2>"$work/err" &
  saver=$!
  until_true 10 shows_sky "$window" && frames_advance "$window"
}
# rests WINDOW NAME: no frame comes for two seconds, and next to no time goes into the rest.
rests() {
  local seen; seen=$(frame "$1")
  idles "$2"
  same "$2: nothing is drawn" "$seen" "$(frame "$1")"
}
rested() { logged "The display is switched off: drawing waits"; }
milliseconds_until_frame() {
  local start; start=$(date +%s%N)
  frames_advance "$1" && milliseconds=$((($(date +%s%N) - start) / 1000000))
}

for minor in 1 2; do
  start_power "$minor"
  check "1.$minor: the sky is there" start_behind root /s
  for level in standby suspend off; do
    tell_power "$level"
    check "1.$minor, $level: it is noticed" until_true 2 rested
    rests root "1.$minor, $level"
    tell_power on
    milliseconds=9999
    milliseconds_until_frame root
    at_most "1.$minor, $level: the sky is back within a second" 1000 "$milliseconds"
    rm -f "$work/part"; cp "$log" "$work/part"; : >"$log"
  done
  end_saver
  same "1.$minor: it ends in order" 0 "$code"
  tell_power asked
  if [ "$minor" = 2 ]; then same "a display that tells is asked once" 1 "$answer"; fi
  end_power
done

# A window of another program over all of it.
covered() { logged "The window is covered: drawing waits"; }
none_of_it_is_left() { import -window root "$work/screen.ppm" && nothing_of '#00F800' "$work/screen.ppm"; }
# is_covered WINDOW NAME GEOMETRY: what becomes of the saver while something lies over its window.
is_covered() {
  start_window "$3"
  check "$2: it is noticed" until_true 2 covered
  rests "$1" "$2"
  end_window
  milliseconds=9999
  milliseconds_until_frame "$1"
  at_most "$2: uncovered, the sky is back within a second" 1000 "$milliseconds"
  check "$2: as a whole" until_true 2 none_of_it_is_left
}
start_and_see root /s
frames_advance root
saver_window=$(xwininfo -root -children | awk '/"Lunaria"/ {print $1}')
start_window 1280x360+0+0
check "half covered it goes on" frames_advance "$saver_window"
end_window
is_covered root "the full run" 1280x720+0+0
start_window 1280x720+0+0
until_true 2 covered
xdotool key a
await_saver 5
same "covered, it still hears what ends it" 0 "$code"
end_window

mkfifo "$work/host"
"$helper" window 320x200+100+80 <"$work/host" >"$work/host.id" &
exec 8>"$work/host"
until_true 5 test -s "$work/host.id"
host_window=$(cat "$work/host.id")
start_and_see "$host_window" /p "$host_window"
frames_advance "$host_window"
is_covered root "a preview" 400x300+90+70
end_saver
same "a preview ends in order" 0 "$code"
exec 8>&-

start_saver --window 320x200
until_true 10 shows_sky root
saver_window=$(xwininfo -root -children | awk '/"Lunaria"/ {print $1}')
xdotool windowunmap "$saver_window"
check "a window that is put away: it is noticed" until_true 2 covered
idles "a window that is put away"
xdotool windowmap "$saver_window"
check "brought back, it goes on" frames_advance "$saver_window"
end_saver
