#!/usr/bin/env bash
# What the program does with its command line, with a display and without one.
sources=$(cd "$(dirname "$0")/../../.." && pwd)
. "$(dirname "$0")/lib.sh"

# refused NAME LINES TEXT ARGUMENT...: exit 1, so many lines on standard error, the first one with the text.
refused() {
  local name=$1 lines=$2 text=$3; shift 3
  "$lunaria" "$@" >"$work/out" 2>"$work/err"; same "$name: exit code" 1 $?
  same "$name: nothing on standard output" "" "$(cat "$work/out")"
  [ "$lines" = usage ] || same "$name: lines on standard error" "$lines" "$(wc -l <"$work/err")"
  case "$(head -1 "$work/err")" in *"$text"*) ok "$name: says why" ;; *) not_ok "$name: says why" ;; esac
}

unset DISPLAY
"$lunaria" --help >"$work/out" 2>"$work/err"; same "help without a display: exit code" 0 $?
check "help lists the options" grep -q -- '--window-id ID' "$work/out"
# says_it NAME FILE: what is recorded, and when --root is the preview, in the words that the other texts use, too.
says_it() {
  local text part; text=$(tr -d '`' <"$2" | tr -s ' \n' ' ')
  for part in "In a window of at most half of every monitor's area it is the preview" \
    'full run of more than 23 seconds adds one line (times, version, build) to ' \
    'nothing leaves the machine. The setting sisableTelemetry=yes stops that.'; do
    case "$text" in *"$part"*) ok "$1: $part" ;; *) not_ok "$1: $part" ;; esac
  done
}
says_it help "$work/out"
says_it README "$sources/README.md"
says_it "man page" "$sources/docs/lunaria.1"
same "help: nothing on standard error" "" "$(cat "$work/err")"
same "version" "lunaria 5.4.1" "$("$lunaria" --version)"
refused "unknown option" usage "unknown option '--nonsense'" --nonsense
check "unknown option: usage on standard error" grep -q '^Usage: lunaria' "$work/err"
check "no run, no log" test ! -e "$log"

refused "no DISPLAY" 1 "no display: set DISPLAY"
refused "no DISPLAY, preview" 1 "no display: set DISPLAY" /p 5
export DISPLAY=:987
refused "a display that is not there" 1 "cannot open display :987"
check "its log is complete" test "$(tail -1 "$log")" = $'Info>\txplLog closing'
refused "a window id that is no number" 1 "'abc' is not a window id" --window-id abc
refused "no window id" usage "option /p needs a window id" /p
XSCREENSAVER_WINDOW=abc refused "a bad XSCREENSAVER_WINDOW" 1 "XSCREENSAVER_WINDOW is 'abc'" --root

start_display 640x480x24
refused "a window that does not exist" 1 "there is no window 0x2a on display $DISPLAY" --window-id 42
refused "a window number beyond all" 1 "there is no window 0xffffffff" --preview 0xffffffff
refused "window 0" 1 "there is no window 0x0" /p 0
XSCREENSAVER_WINDOW=0x2a refused "a window of the environment that does not exist" 1 "no window 0x2a" --root
check "its log is complete" test "$(tail -1 "$log")" = $'Info>\txplLog closing'
start_window 100x100+0+0 input-only
refused "a window that shows nothing" 1 "takes input only" --window-id "$window"
end_window

mkdir "$work/alone" && cp "$lunaria" "$work/alone/lunaria"
PATH=/usr/bin:/bin lunaria=$work/alone/lunaria refused "settings without their program" 1 \
  "cannot start lunaria-configure" /c
