#!/usr/bin/env bash
# The settings program: how it starts, what the keyboard does with it, and that it leaves a running saver alone.
. "$(dirname "$0")/lib.sh"
configure=$bin/lunaria-configure
settings="$HOME/.config/Lunaria software/Lunaria screensaver.ini"
[ -x "$configure" ] || { echo "no program $configure: build the target lunaria_configure" >&2; exit 1; }

# refused NAME TEXT ARGUMENT...: exit 1, and standard error begins with the text.
refused() {
  local name=$1 text=$2; shift 2
  "$configure" "$@" >"$work/out" 2>"$work/err"; same "$name: exit code" 1 $?
  same "$name: nothing on standard output" "" "$(cat "$work/out")"
  case "$(head -1 "$work/err")" in "lunaria-configure: $text"*) ok "$name: says why" ;; *) not_ok "$name: says why" ;; esac
}
sheet_is_shown() { sheet=$(xdotool search --onlyvisible --name '^Lunara 5.4.1 $') && [ -n "$sheet" ]; }
# There is no window manager that would give the sheet the keyboard.
type_keys() { xdotool windowfocus --sync "$sheet" key "$@"; }
# start_sheet PROGRAM ARGUMENT...: in the background, until it is shown; its process id is in saver.
start_sheet() {
  "$@" >"$work/out" 2>"$work/err" &
  saver=$!
  until_true 10 sheet_is_shown
}
# milliseconds_to_open: from the start to the window on the screen.
milliseconds_to_open() {
  local start; start=$(date +%s%N)
  start_sheet "$configure" && milliseconds=$((($(date +%s%N) - start) / 1000000))
}

unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
"$configure" --help >"$work/out" 2>"$work/err"; same "help without a display: exit code" 0 $?
check "help says what it is" grep -q '^Usage: lunaria-configure' "$work/out"
same "version" "lunaria-configure 5.4.1" "$("$configure" --version)"
refused "unknown option" "unknown option '--nonsense'" --nonsense
refused "no display" "cannot show the settings"
same "no display: one line" 1 "$(wc -l <"$work/err")"
DISPLAY=:987 refused "a display that is not there" "cannot show the settings"
check "the saver itself carries no toolkit" test -z "$(ldd "$lunaria" | grep -i qt)"

check "the launcher is a valid one" desktop-file-validate \
  "$(dirname "$0")/../../../packaging/linux/lunaria-configure.desktop"

start_display 1280x800x24
rm -f "$log"
check "the sheet opens" start_sheet "$lunaria" --configure
type_keys Escape
await_saver 5; same "Escape closes it: exit code" 0 "$code"
same "the log says that the dialog opened" 1 \
  "$(log_entries | grep -cx 'ScreenSaverConfigureDialog received WM_INITDIALOG')"
same "the log ends as on Windows" $'xplLog closing\nxplLog closing' "$(log_entries | tail -2)"
same "Escape writes the page alone" "activeDialogTab=0" "$(cat "$settings")"

check "it opens again" start_sheet "$configure"
type_keys alt+b
type_keys alt+l
import -window "$sheet" "$work/background.png"
check "something is on it" test "$(identify -format %k "$work/background.png")" -gt 20
type_keys Return
await_saver 5; same "Return confirms: exit code" 0 "$code"
same "what was chosen is written" $'activeDialogTab=2\nbackground=0\nmoonSize=300' "$(cat "$settings")"

slowest=0
for _ in 1 2 3; do
  milliseconds_to_open || not_ok "it opens each time"
  [ "$milliseconds" -le "$slowest" ] || slowest=$milliseconds
  type_keys Escape
  await_saver 5
done
at_most "milliseconds until the sheet is on the screen" 500 "$slowest"

check "a saver runs" start_and_see root --window 640x480
running=$saver
check "the sheet opens beside it" start_sheet "$configure"
type_keys alt+p
type_keys Return
await_saver 5; same "it is confirmed: exit code" 0 "$code"
check "the saver goes on" frames_advance root
saver=$running
end_saver
same "the saver ends in order" 0 "$code"
check "the choice is still there" grep -qx 'preventComputerSleep=0' "$settings"
