#!/usr/bin/env bash
# lunaria --doctor: what it says on systems where all is well, and where something is not.
here=$(cd "$(dirname "$0")" && pwd)
. "$here/waylandLib.sh"
unset WAYLAND_DISPLAY XDG_CURRENT_DESKTOP DISPLAY
# A process of the name by which XScreenSaver is known, and a bus on which logind agrees.
mkdir "$work/bin"
cp "$(type -P sleep)" "$work/bin/xscreensaver"
start_daemon() { "$work/bin/xscreensaver" 1000 & daemon=$!; servers+=("$daemon"); }
start_logind() {
  coproc logind { exec /usr/bin/python3 "$here/../../services/linux/mockLogind.py" "$1"; }
  logind_pid=$logind_PID
  read -r DBUS_SYSTEM_BUS_ADDRESS <&"${logind[0]}"
  export DBUS_SYSTEM_BUS_ADDRESS
}
end_logind() { eval "exec ${logind[1]}>&-"; wait "$logind_pid" 2>/dev/null; }
start_logind grant
# Where the settings program has not been built beside the saver, one on the PATH will do.
[ -x "$bin/lunaria-configure" ] || cp "$(type -P true)" "$work/bin/lunaria-configure"
PATH=$work/bin:$PATH

# doctor: the report goes to out, its exit code to code, its time to milliseconds.
doctor() {
  local start; start=$(date +%s%N)
  timeout 60 "$lunaria" --doctor >"$work/out" 2>"$work/err"; code=$?
  milliseconds=$((($(date +%s%N) - start) / 1000000))
}
# The report as running text, so that the ends of its lines do not matter.
says() { tr '\n' ' ' <"$work/out" | tr -s ' ' | grep -qF -- "$1"; }
problems() { grep -c '^  PROBLEM' "$work/out"; }
settings=$HOME/.config/"Lunaria software"/"Lunaria screensaver.ini"

start_display 1280x720x24
start_daemon
XDG_CURRENT_DESKTOP=MATE "$lunaria" --install-xscreensaver >/dev/null
export XDG_CURRENT_DESKTOP=MATE
doctor
cat "$work/out"
same "all is well: exit code" 0 "$code"
same "all is well: nothing on standard error" "" "$(cat "$work/err")"
check "all is well: it says so" test "$(tail -1 "$work/out")" = "All is well."
check "the desktop" says "The desktop is MATE."
check "the display" says "The display is $DISPLAY (X11, X.Org "
check "its size" says "), 1280x720 pixels large. It has one monitor."
check "the saver" says "XScreenSaver runs here and shows Lunaria after 10 minutes."
check "the fonts" says "The font for the messages of stars is Liberation Mono. /"
check "the sound" says "Sound works"
check "the sleep" says "The computer can be kept awake: logind agrees."
check "the settings" says "$settings"
same "lines of prose are no longer than 80" 0 "$(grep -vE '^ {11}/|^  Cure:' "$work/out" | grep -c '.\{81\}')"
check "there is no log yet" says "There is no log yet. The next run writes it, here: $log"
check "it leaves no log" test ! -e "$log"
check "and makes no settings" test ! -e "$settings"
echo list >&"${logind[1]}"; read -r answer <&"${logind[0]}"
same "the computer may sleep again" . "$answer"

# The files are where the saver has them.
start_and_see root
end_saver
for file in "$settings" "$log"; do
  doctor
  check "the saver's own: ${file##*/}" grep -qxF "           $file" "$work/out"
done
xrandr --setmonitor '*right' 640/169x720/190+640+0 screen >/dev/null
xrandr --setmonitor left 640/169x720/190+0+0 none
doctor
check "two monitors" says "It has 2 monitors: the main one with 640x720 at 640,0, one with 640x720 at 0,0."

sed -i 's/^mode:.*/mode: off/' "$HOME/.xscreensaver"
doctor
same "XScreenSaver switched off: exit code" 1 "$code"
same "XScreenSaver switched off: one problem" 1 "$(problems)"
check "XScreenSaver switched off: it says so" says "switched off in its settings. Cure: lunaria --install-xscreensaver"
printf 'mode: one\nselected: 0\nprograms: %s/gone/lunaria --root \\n\n' "$work" >"$HOME/.xscreensaver"
doctor
same "a program that is gone: one problem" 1 "$(problems)"
check "a program that is gone" says "names a program that is not there or cannot be started: $work/gone/lunaria Cure: lunaria --install-xscreensaver"
rm "$HOME/.xscreensaver"
doctor
check "no settings of XScreenSaver" says "Lunaria is not among the savers that it shows."
kill "$daemon"; wait "$daemon" 2>/dev/null
if pgrep -x xscreensaver >/dev/null; then
  echo "skipped  no XScreenSaver: somebody else's runs on this machine"
else
  doctor
  check "no XScreenSaver that runs" says "XScreenSaver is installed, but does not run"
  check "no XScreenSaver that runs: the cure" says "here. Cure: lunaria --install-xscreensaver; "
  XDG_CURRENT_DESKTOP=XFCE doctor
  check "none on Xfce" says "but its own; XScreenSaver is installed, but does not run. Cure: lunaria --install-xscreensaver; "
fi
start_daemon
"$lunaria" --install-xscreensaver >/dev/null

# xss-lock waits for the X server's own time; a process of its name and with Lunaria's is enough.
(exec -a xss-lock tail -f /dev/null lunaria >/dev/null 2>&1) &
lock=$!
servers+=("$lock")
until_true 5 grep -q '^xss-lock' "/proc/$lock/cmdline"
xset s 420 0
doctor
check "xss-lock" says "xss-lock runs here and starts Lunaria after 7 minutes."
xset s off
doctor
same "a display that never tells: one problem" 1 "$(problems)"
check "a display that never tells" says "never to say that nobody is there. Cure: now and at each login: xset s 600 0"
kill "$lock"; wait "$lock" 2>/dev/null

# MATE's own screen saver, where its settings are installed; a process of its name is enough.
export GSETTINGS_BACKEND=keyfile
if gsettings get org.mate.screensaver mode >/dev/null 2>&1; then
  kill "$daemon"; wait "$daemon" 2>/dev/null
  cp "$work/bin/xscreensaver" "$work/bin/mate-screensaver"
  "$work/bin/mate-screensaver" 1000 &
  mate=$!
  servers+=("$mate")
  gsettings set org.mate.screensaver themes "['screensavers-lunaria']"
  gsettings set org.mate.screensaver mode single
  gsettings set org.mate.session idle-delay 7
  doctor
  check "MATE shows Lunaria" says "MATE's screen saver runs here and shows Lunaria after 7 minutes."
  gsettings set org.mate.screensaver mode blank-only
  doctor
  same "MATE shows nothing: exit code" 1 "$code"
  check "MATE shows nothing" says "does not show Lunaria. Cure: choose Lunaria in MATE's Control Center"
  kill "$mate"; wait "$mate" 2>/dev/null
  start_daemon
else
  echo "skipped  MATE's screen saver: install mate-screensaver and libglib2.0-bin"
fi

printf 'moonSize=300\nnonsense\n\001\002\n' >"$settings"
doctor
same "damaged settings: exit code" 1 "$code"
check "damaged settings" says "the file is damaged, 2 lines of it set nothing: $settings"
rm "$settings"; mkdir "$settings"
doctor
check "a folder in the place of the settings" says "what stands in its place is no file"
rmdir "$settings"

DISPLAY='' doctor
same "no display: exit code" 1 "$code"
same "no display: one problem" 1 "$(problems)"
check "no display" says "There is no display here"
DISPLAY=:987 doctor
check "a display that is not there" says "The display :987 cannot be opened."
SDL_AUDIODRIVER="no such driver" doctor
check "no sound" says "Sound does not work (no sound system: "
same "no sound: nothing on standard error" "" "$(cat "$work/err")"

# Nobody has the fonts that are asked for.
mkdir "$work/fonts"
cp /usr/share/fonts/truetype/dejavu/DejaVuSans.ttf "$work/fonts"
cat >"$work/fonts.conf" <<CONF
<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig><dir>$work/fonts</dir><cachedir>$work/fonts/cache</cachedir></fontconfig>
CONF
FONTCONFIG_FILE=$work/fonts.conf doctor
same "other fonts: three problems" 3 "$(problems)"
check "other fonts" says "should be Arial, or one with letters as wide, but is DejaVu Sans"
check "other fonts: the cure" says "Cure: sudo apt install fonts-liberation"

# A logind that refuses, one that takes its time, one that never answers, and none.
end_logind
start_logind refuse
doctor
check "a logind that refuses" says "logind cannot be asked or refuses (not for you)"
end_logind
start_logind late
doctor
same "a logind that takes its time is well: exit code" 0 "$code"
end_logind
doctor
same "no bus: one problem" 1 "$(problems)"
check "no bus" says "The computer cannot be kept awake"
coproc silent { exec /usr/bin/python3 -c 'import socket, sys
listener = socket.socket(socket.AF_UNIX)
listener.bind(sys.argv[1])
listener.listen()
print("ready", flush=True)
sys.stdin.read()' "$work/silent"; }
silent_pid=$silent_PID
read -r answer <&"${silent[0]}"
DBUS_SYSTEM_BUS_ADDRESS=unix:path=$work/silent doctor
check "a bus that is silent" says "logind cannot be asked or refuses (no answer)"
at_most "a bus that is silent is not waited for, in milliseconds" 6000 "$milliseconds"
eval "exec ${silent[1]}>&-"; wait "$silent_pid" 2>/dev/null
# XScreenSaver runs, but in a Wayland session, where it cannot do its work.
start_helper
XDG_CURRENT_DESKTOP=sway doctor
check "XScreenSaver on Wayland" says "cannot cover the screen in a Wayland session. Cure: install swayidle; at login start: swayidle -w"
XDG_CURRENT_DESKTOP=GNOME doctor
check "XScreenSaver on GNOME's Wayland" says "Wayland session. Cure: log in to an X11 session: XScreenSaver shows Lunaria there"
end_helper
unset WAYLAND_DISPLAY
HOME='' XDG_CONFIG_HOME='' doctor
check "without HOME it ends, too" test "$code" = 1
