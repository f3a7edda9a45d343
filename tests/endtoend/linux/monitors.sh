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
