#!/usr/bin/env bash
# XScreenSaver itself shows Lunaria: its daemon, its commands and its settings program, after --install-xscreensaver.
# As the super user it runs them as another user, since the daemon starts nothing for that one, and with the package's
# files in their places in a name space of its own; as anybody else with the program where it was built.
if [ "$(id -u)" -eq 0 ] && [ -z "${LUNARIA_OWN_MOUNTS:-}" ] && [ -d /usr/libexec/xscreensaver ] &&
  unshare -m true 2>/dev/null; then
  LUNARIA_OWN_MOUNTS=1 exec unshare -m "$0" "$@"
fi
. "$(dirname "$0")/lib.sh"
. "$(dirname "$0")/other_user.sh"
for tool in xscreensaver xscreensaver-command xscreensaver-settings; do
  command -v "$tool" >/dev/null || { echo "skipped: no $tool (install the package xscreensaver)"; exit 0; }
done

entry="$lunaria --root"
if [ -n "${LUNARIA_OWN_MOUNTS:-}" ]; then
  mkdir -m 755 "$work/config"
  install -m 644 "$source/packaging/linux/xscreensaver-lunaria.xml" "$work/config/lunaria.xml"
  savers_folder_with_ours
  mount --bind "$work/config" /usr/share/xscreensaver/config
  entry="lunaria --root"
fi
# Two savers that show nothing.
for name in one two; do
  printf '#!/bin/sh\nexec sleep 100\n' >"$work/bin/$name"
  chmod 755 "$work/bin/$name"
done
preferences=$HOME/.xscreensaver
printf 'fade:\tFalse\nmode:\tone\nselected:\t0\nprograms:\\\n\t%s\t\\n\\\n- \t%s\t\\n\\\n\n' \
  "$work/bin/one" "$work/bin/two" >"$work/before"
user cp "$work/before" "$preferences"

# --- The command, also without a display.
refused() { # NAME TEXT: the command must end with 1, one line and this text in it, and change nothing.
  user env -u DISPLAY "$lunaria" --install-xscreensaver >"$work/out" 2>"$work/err"
  same "$1: exit code" 1 $?
  same "$1: one line" 1 "$(wc -l <"$work/err")"
  check "$1: names the file and the cure" grep -qF "$2" "$work/err"
  same "$1: nothing on standard output" "" "$(cat "$work/out")"
  same "$1: nothing was left behind" "$homes" "$(ls -A "$HOME")"
}
user mkdir -p "$HOME/.config"
homes=$(ls -A "$HOME")
user chmod 400 "$preferences"
refused "a file that may not be written" "cannot write $preferences (Permission denied): make the file and its folder"
check "it is as it was" cmp "$work/before" "$preferences"
user chmod 600 "$preferences"
user chmod 500 "$HOME"
refused "a home that may not be written" "cannot write $preferences (Permission denied): make the file and its folder"
user chmod 700 "$HOME"
check "it is as it was" cmp "$work/before" "$preferences"

rm -f "$work/err"
check "it is made the saver" quietly user env -u DISPLAY "$lunaria" --install-xscreensaver
check "by an entry in the list" grep -qF "$(printf '\t%s\t' "$entry")" "$preferences"
user cp "$preferences" "$work/tmp/once"
check "once more changes nothing" quietly user "$lunaria" --install-xscreensaver
check "in the file" cmp "$work/tmp/once" "$preferences"

# --- The daemon.
# The settings program takes a form after the screen's size, and one of its buttons is pressed below.
start_display 1024x768x24
running() { user xscreensaver-command --time >/dev/null 2>&1; }
tell() { user xscreensaver-command "$@" >/dev/null 2>&1; }
start_daemon() {
  start_as_user xscreensaver --no-splash --verbose >"$work/daemon.log" 2>&1 &
  daemon=$!
  servers+=("$daemon")
  until_true 20 running || { not_ok "the daemon starts"; cat "$work/daemon.log"; exit 1; }
}
# The program that the daemon shows, and its process.
shown() { local host; host=$(child "$daemon" xscreensaver-gf) && child "$host" "$1"; }

start_daemon
rm -f "$log"
tell --activate
check "the daemon starts it" until_true 20 shown lunaria
process=$(shown lunaria)
same "with the arguments of the entry" "$entry " "$(arguments "$process")"
window=$(variable "$process" XSCREENSAVER_WINDOW)
check "the sky fills the daemon's window" until_true 10 shows_sky "$window"
check "and with that the screen" shows_sky root
check "frames advance" frames_advance "$window"
check "it is the full run" logged "Creating TnoctisWorld with monitorId =0"

check "a pause in its own process makes no jump" goes_on_where_it_stopped "$process" "$window"

tell --deactivate
ends "$process"
at_most "it is gone as soon as the daemon asks (ms, the daemon's own time included)" 500 "$milliseconds"
check "and the daemon shows nothing" until_true 5 not shown lunaria
same "the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"
# The daemon destroys the window right after its signal: whichever comes first.
same "it complained of nothing else than its window's end" "" \
  "$(grep 'lunaria: ' "$work/daemon.log" | grep -v 'the window was destroyed')"

# The commands that go through the list, in which it is the last.
tell --activate
check "again" until_true 10 shown lunaria
process=$(shown lunaria)
tell --prev
check "the saver before it" until_true 10 shown sleep
ends "$process"
at_most "takes its place (ms)" 500 "$milliseconds"
tell --next
check "and the next one is Lunaria" until_true 10 shown lunaria
check "with a sky" until_true 10 shows_sky "$(variable "$(shown lunaria)" XSCREENSAVER_WINDOW)"
tell --deactivate
until_true 5 not shown lunaria

# The daemon's end is the saver's.
tell --activate
until_true 10 shown lunaria
process=$(shown lunaria)
kill -TERM "$daemon"
ends "$process"
at_most "it ends with the daemon (ms)" 500 "$milliseconds"
wait "$daemon"
start_daemon

# --- The settings program, which writes the file anew.
start_settings() {
  rm -f "$log"
  start_as_user xscreensaver-settings >"$work/settings.log" 2>&1 &
  settings=$!
  servers+=("$settings")
  check "the settings program starts its preview" until_true 30 child "$settings" lunaria
  process=$(child "$settings" lunaria)
}
preview_window() { xdotool search --onlyvisible --name 'XScreenSaver Settings Preview'; }
start_settings
check "in a window of its own" until_true 10 preview_window
same "with these arguments" "$entry --window-id $(printf '0x%X' "$(preview_window)") " "$(arguments "$process")"
check "the preview shows the sky" until_true 10 shows_sky "$(preview_window)"
check "its frames advance" frames_advance "$(preview_window)"
check "it is the preview's sky" logged "Creating TnoctisWorld with monitorId =-1"
check "it is the one that the settings program speaks of" quietly xdotool search --onlyvisible --name ': Lunaria Settings'
# One minute more until the screen is blanked: the program saves what is changed.
xdotool search --sync --onlyvisible --name ': Lunaria Settings' windowfocus
xdotool mousemove 270 505 click 1
rewritten() { grep -q 'Written by xscreensaver-settings' "$preferences"; }
check "the settings program writes the file" until_true 10 rewritten
[ -z "${LUNARIA_SHOTS:-}" ] || import -window root "$LUNARIA_SHOTS/xscreensaver-settings.png"
kill -TERM "$settings"
wait "$settings"
ends "$process"
at_most "the preview ends with it (ms)" 500 "$milliseconds"
check "Lunaria is in the list that was written" grep -qE '[/[:blank:]]lunaria[[:blank:]]' "$preferences"
check "and chosen" grep -q '^mode:.*one$' "$preferences"
cp "$preferences" "$work/rewritten"
check "choosing it again changes nothing" quietly user "$lunaria" --install-xscreensaver
check "in that file either" cmp "$work/rewritten" "$preferences"

# --- Taken out again.
check "it is taken out" quietly user env -u DISPLAY "$lunaria" --uninstall-xscreensaver
# A long command is written over two lines.
sed -E '/[/[:blank:]]lunaria[[:blank:]]/{/\\n\\$/!N;d}' "$work/rewritten" | grep -v '^selected:' >"$work/expected"
check "every other line stays" diff "$work/expected" <(grep -v '^selected:' "$preferences")
same "the choice is what it was" "mode: one selected: 0" "$(grep -E '^(mode|selected):' "$preferences" | xargs)"
tell --activate
check "the daemon shows the one that was chosen before" until_true 10 shown sleep
tell --deactivate
until_true 5 not shown sleep
user cp "$work/before" "$preferences"
user "$lunaria" --install-xscreensaver >"$work/out"
user "$lunaria" --uninstall-xscreensaver >"$work/out"
check "a file that nothing else has changed is the same to the byte" cmp "$work/before" "$preferences"

# --- The first start of all: no file, and the defaults of the system.
user rm "$preferences"
user "$lunaria" --install-xscreensaver >"$work/out"
tell --activate
check "without a file before, the daemon shows it too" until_true 20 shown lunaria
tell --deactivate
start_settings
check "and the settings program" until_true 10 shows_sky "$(preview_window)"
kill -TERM "$settings"
wait "$settings"
user "$lunaria" --uninstall-xscreensaver >"$work/out"
check "and there is none again" test ! -e "$preferences"
same "nor a trace among the settings" "" "$(find "$HOME/.config/Lunaria software" -name 'xscreensaver*' 2>/dev/null)"
