#!/usr/bin/env bash
# Several monitors: one sky covers them all, also when they come, go and change while it runs.
. "$(dirname "$0")/lib.sh"

# Everything that the saver does not cover shows this colour.
bare='#FF0000'
# shows_no_desktop GEOMETRY: nothing of the desktop is left in this part of the screen.
shows_no_desktop() {
  import -window root -crop "$1" +repage "$work/part.ppm" && nothing_of "$bare" "$work/part.ppm"
}
shows_stars() { [ "$(import -window root -crop "$1" +repage -format %k info:)" -gt 20 ]; }
# covered NAME SKY-GEOMETRY...: these monitors show the sky, and nothing of the desktop.
covered() {
  local name=$1 monitor; shift
  for monitor in "$@"; do
    check "$name: $monitor shows the sky" until_true 5 shows_stars "$monitor"
    check "$name: $monitor shows nothing of the desktop" until_true 5 shows_no_desktop "$monitor"
  done
}
main_monitor_is() { [ "$(grep -o 'Monitor 0: .*' "$log" | tail -1)" = "Monitor 0: $1" ]; }
# follows NAME EDGES: the saver has learned that the main monitor has these edges.
follows() { check "$1: the main monitor is known" until_true 5 main_monitor_is "$2"; }
not() { ! "$@"; }
goes_on() {
  check "$1: frames advance" frames_advance root
  same "$1: nothing is refused" 0 "$(grep -c 'The display refused' "$log")"
}

# Monitors that are parts of one output.
start_display 2304x1020x24
xsetroot -solid "$bare"
xrandr --setmonitor '*main' 1280/339x720/190+1024+300 screen >/dev/null
xrandr --setmonitor left 1024/271x600/159+0+0 none
check "the sky is there" start_and_see root
check "two monitors" logged "Number of monitors:2"
check "the main one is the one of the two" logged "m_mainMonitorRect.left=1024, top=300, w=1280 h=720"
covered "one above and left of the main one" 1280x720+1024+300 1024x600+0+0
xrandr --setmonitor low 1024/271x400/100+0+600 none
check "a third one defined: it is known" until_true 5 logged "Monitor 2: Left 0, top 600, right 1024, bottom 1000"
follows "a third one defined" "Left 1024, top 300, right 2304, bottom 1020"
xrandr --delmonitor main >/dev/null
follows "the main one gone, the screen as large as before" "Left 0, top 0, right 1024, bottom 600"
covered "the main one gone, the screen as large as before" 1024x600+0+0
goes_on "monitors that are parts of one output"
end_saver
same "it ends in order" 0 "$code"
same "the log has no error" 0 "$(grep -c '^ERROR' "$log")"

# A daemon gives each monitor a window and a run of its own: the sounds and the report are those of one of them.
start_display 2304x1020x24
xrandr --setmonitor '*main' 1280/339x720/190+1024+300 screen >/dev/null
xrandr --setmonitor left 1024/271x600/159+0+0 none
# start_run NAME GEOMETRY: a run in another program's window; sets process and window, its log is in the folder NAME.
start_run() {
  mkdir -m 700 "$work/$1"
  mkfifo "$work/$1/lines"
  # Opened for both ends, the window's program never sees its input end.
  "$helper" window "$2" <>"$work/$1/lines" >"$work/$1/id" &
  servers+=($!)
  until_true 10 test -s "$work/$1/id" || return 1
  window=$(cat "$work/$1/id")
  TMPDIR=$work/$1 XSCREENSAVER_WINDOW=$window "$lunaria" --root >"$work/out" 2>"$work/err" &
  process=$!
  servers+=("$process")
  until_true 10 shows_sky "$window"
}
threads_of() { cat "/proc/$1/task/"*/comm | sort | paste -sd' '; }
sounds() { threads_of "$1" | grep -q SDLAudio; }
says_in() { grep -qF -- "$2" "$work/$1/Lunaria.xplLog.txt"; }
silent='is not the one over the main monitor: the sky is silent here'
report='creating telemetry thread'
settings=$HOME/.config/"Lunaria software"
mkdir -p "$settings"
echo snd_selectedSound=4 >"$settings/Lunaria screensaver.ini"
check "the run over the other monitor shows the sky" start_run left 1024x600+0+0
left=$process left_window=$window
check "and says why it is silent" says_in left "Info>	The window at 0,0 $silent"
check "the run over the main monitor shows the sky" start_run right 1280x720+1024+300
check "and has the sound" until_true 5 sounds "$process"
check "and the report" says_in right "$report"
check "and does not say that it is silent" not says_in right "$silent"
check "the other's frames advance" frames_advance "$left_window"
same "it has its own thread and no other" lunaria "$(threads_of "$left")"
check "and no report" not says_in left "$report"
kill "$process" "$left"
wait "$process" && wait "$left"
same "both end in order" 0 $?
same "the log of the silent one is complete" $'Info>\txplLog closing' "$(tail -1 "$work/left/Lunaria.xplLog.txt")"
check "one window over all monitors" start_run both 2304x1020+0+0
check "has the sound" until_true 5 sounds "$process"
kill "$process"
XSCREENSAVER_WINDOW=$(xwininfo -root | sed -n 's/.*Window id: \([^ ]*\).*/\1/p')
export XSCREENSAVER_WINDOW
check "the root window" start_and_see root --root
check "has the sound, too" until_true 5 sounds "$saver"
end_saver
unset XSCREENSAVER_WINDOW
xrandr --delmonitor left
xrandr --delmonitor main
check "one of several windows on one monitor" start_run part 1800x800+504+220
check "has the sound, too" until_true 5 sounds "$process"
kill "$process"
rm "$settings/Lunaria screensaver.ini"

# Monitors of their own, plugged and unplugged.
xorg=/usr/lib/xorg/Xorg
if [ ! -x "$xorg" ] || ! ls /usr/lib/xorg/modules/drivers/dummy_drv.so >/dev/null 2>&1; then
  echo "skipped  monitors that are plugged and unplugged: install xserver-xorg-core and xserver-xorg-video-dummy"
  exit
fi
start_xorg() {
  cat >"$work/xorg.conf" <<CONF
Section "ServerFlags"
  Option "AutoAddDevices" "false"
  Option "AutoEnableDevices" "false"
EndSection
Section "Device"
  Identifier "device"
  Driver "dummy"
  VideoRam 256000
EndSection
Section "Monitor"
  Identifier "monitor"
  HorizSync 5-1000
  VertRefresh 5-200
EndSection
Section "Screen"
  Identifier "screen"
  Device "device"
  Monitor "monitor"
  DefaultDepth 24
  SubSection "Display"
    Modes "1280x720"
  EndSubSection
EndSection
CONF
  "$xorg" -config "$work/xorg.conf" -logfile "$work/xorg.log" -displayfd 7 -nolisten tcp -noreset -sharevts -novtswitch \
    7>"$work/xorg.number" 2>"$work/xorg.err" &
  server=$!
  servers+=("$server")
  until_true 10 test -s "$work/xorg.number" || return 1
  DISPLAY=:$(cat "$work/xorg.number")
  xrandr --newmode wide 109.00 1280 1368 1496 1712 720 722 725 730 &&
    xrandr --newmode small 65.00 1024 1048 1184 1344 600 603 606 625 &&
    for output in 1 2; do xrandr --addmode "DUMMY$output" wide && xrandr --addmode "DUMMY$output" small || return 1; done
}
start_xorg || { echo "skipped  monitors that are plugged and unplugged: Xorg does not start here"; tail -3 "$work/xorg.err"; exit; }
xrandr --output DUMMY0 --primary --mode 1280x720 --pos 1024x300 --output DUMMY1 --mode small --pos 0x0
xsetroot -solid "$bare"
check "the sky is on monitors of their own" start_and_see root
check "two monitors of their own" logged "TopLeft:0,0 screen width:2304, height:1020"
covered "two monitors" 1280x720+1024+300 1024x600+0+0
follows "two monitors" "Left 1024, top 300, right 2304, bottom 1020"

xrandr --output DUMMY1 --primary
follows "another is the main one" "Left 0, top 0, right 1024, bottom 600"
covered "another is the main one" 1280x720+1024+300 1024x600+0+0

xrandr --output DUMMY2 --mode small --pos 2304x420
check "one more: it is covered" until_true 5 shows_no_desktop 1024x600+2304+420
covered "one more" 1280x720+1024+300 1024x600+0+0
goes_on "one more"
xrandr --output DUMMY2 --off
check "one less: the saver has learned of it" until_true 5 sh -c "grep -o 'Number of monitors:.' '$log' | tail -1 | grep -q 2"
covered "one less" 1280x720+1024+300 1024x600+0+0

xrandr --output DUMMY1 --off --output DUMMY0 --primary --pos 0x0
follows "the main one unplugged" "Left 0, top 0, right 1280, bottom 720"
check "the main one unplugged: the screen is smaller" sh -c "xwininfo -root | grep -q 'geometry 1280x720'"
covered "the main one unplugged" 1280x720+0+0
goes_on "the main one unplugged"

xrandr --output DUMMY1 --mode wide --pos 1280x0 --output DUMMY2 --mode small --pos 0x720
check "all plugged in again: right, what the sky has not reached is covered" until_true 5 shows_no_desktop 1280x720+1280+0
check "all plugged in again: below, too" until_true 5 shows_no_desktop 1024x600+0+720
covered "all plugged in again" 1280x720+0+0
goes_on "all plugged in again"
xrandr --output DUMMY0 --mode 800x600
covered "a smaller mode" 800x600+0+0 1280x720+1280+0
xdotool key a
await_saver 5
same "a key ends it" 0 "$code"
same "the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"
same "the log has no error" 0 "$(grep -c '^ERROR' "$log")"
