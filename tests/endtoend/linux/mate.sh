#!/usr/bin/env bash
# MATE's screen saver finds Lunaria among its themes, shows it and takes it away; its preferences show the preview.
# It runs as an ordinary user, with the package's files in their places in a name space of its own, which only the super
# user can make: MATE looks for themes nowhere else.
if [ "$(id -u)" -eq 0 ] && [ -z "${LUNARIA_OWN_MOUNTS:-}" ] && [ -d /usr/libexec/xscreensaver ] &&
  unshare -m true 2>/dev/null; then
  LUNARIA_OWN_MOUNTS=1 exec unshare -m "$0" "$@"
fi
. "$(dirname "$0")/lib.sh"
. "$(dirname "$0")/other_user.sh"
for tool in mate-screensaver mate-screensaver-command dbus-daemon; do
  command -v "$tool" >/dev/null || { echo "skipped: no $tool (install the packages mate-screensaver and dbus-daemon)"; exit 0; }
done
[ -n "${LUNARIA_OWN_MOUNTS:-}" ] || { echo "skipped: only root can put the theme where MATE looks"; exit 0; }
themes=$work/themes
mkdir -m 755 "$themes"
install -m 644 "$source/packaging/linux/screensavers-lunaria.desktop" "$themes/lunaria.desktop"
mount --bind "$themes" /usr/share/applications/screensavers
savers_folder_with_ours
command=$(sed -n 's/^Exec=//p' "$themes/lunaria.desktop")

# Its choice as the preferences of MATE write it, in the store of settings that needs no service.
export GSETTINGS_BACKEND=keyfile
user mkdir -p "$HOME/.config/glib-2.0/settings"
printf '[org/mate/screensaver]\n%s\n' "themes=['screensavers-lunaria']
mode='single'
lock-enabled=false" | user tee "$HOME/.config/glib-2.0/settings/keyfile" >"$work/out"

start_display 1024x768x24
start_as_user dbus-daemon --session --nofork --print-address 1>"$work/bus" 2>"$work/bus.log" &
servers+=($!)
check "the session's bus" until_true 10 test -s "$work/bus"
DBUS_SESSION_BUS_ADDRESS=$(cat "$work/bus")
export DBUS_SESSION_BUS_ADDRESS
start_as_user mate-screensaver --no-daemon --debug >"$work/daemon.log" 2>&1 &
daemon=$!
servers+=("$daemon")
tell() { user mate-screensaver-command "$@" 2>&1; }
answers() { tell --query | grep -q 'is inactive'; }
check "the daemon starts" until_true 20 answers
shown() { child "$daemon" lunaria; }

rm -f "$log" "$HOME/.cache/lunaria/tmp/Lunaria.xplLog.txt"
tell --activate >"$work/out"
check "it starts the theme" until_true 20 shown
process=$(shown)
same "by its command" "$command " "$(arguments "$process")"
window=$(variable "$process" XSCREENSAVER_WINDOW)
check "the sky fills the daemon's window" until_true 10 shows_sky "$window"
check "and with that the screen" shows_sky root
check "frames advance" frames_advance "$window"
[ -z "${LUNARIA_SHOTS:-}" ] || import -window root "$LUNARIA_SHOTS/mate.png"
[ -e "$log" ] || log=$HOME/.cache/lunaria/tmp/Lunaria.xplLog.txt # MATE hands no TMPDIR on
check "it is the full run" logged "Creating TnoctisWorld with monitorId =0"
check "a pause in its own process makes no jump" goes_on_where_it_stopped "$process" "$window"
tell --deactivate >"$work/out"
ends "$process"
at_most "it is gone as soon as the daemon asks (ms)" 500 "$milliseconds"
check "the daemon knows" until_true 10 answers
same "the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"

tell --activate >"$work/out"
check "it starts once more" until_true 20 shown
process=$(shown)
until_true 10 shows_sky root
kill -TERM "$daemon"
ends "$process"
at_most "it ends with the daemon (ms)" 500 "$milliseconds"

# The preferences show it in a pane, started by the same command.
if ! command -v mate-screensaver-preferences >/dev/null; then
  echo "skipped: no mate-screensaver-preferences"
  exit 0
fi
rm -f "$log"
start_as_user mate-screensaver-preferences >"$work/preferences.log" 2>&1 &
preferences=$!
servers+=("$preferences")
check "the preferences start it" until_true 30 child "$preferences" lunaria
process=$(child "$preferences" lunaria)
same "by the command of the theme" "$command " "$(arguments "$process")"
window=$(variable "$process" XSCREENSAVER_WINDOW)
check "their pane shows the sky" until_true 10 shows_sky "$window"
check "its frames advance" frames_advance "$window"
[ -z "${LUNARIA_SHOTS:-}" ] || import -window root "$LUNARIA_SHOTS/mate-preferences.png"
check "it is the preview, since the pane is small" logged "Creating TnoctisWorld with monitorId =-1"
kill -TERM "$preferences"
ends "$process"
at_most "it ends with the preferences (ms)" 500 "$milliseconds"
