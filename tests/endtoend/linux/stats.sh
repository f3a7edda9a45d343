#!/usr/bin/env bash
# The statistics of a run, in every kind of run and after every kind of end.
. "$(dirname "$0")/lib.sh"
start_display 800x600x24
start_window 320x200+100+80

# tells NAME: the run that has just ended has told its statistics, on standard output and in the log.
tells() {
  same "$1: it ends in order" 0 "$code"
  same "$1: three lines" 3 "$(wc -l <"$work/out")"
  check "$1: frames" grep -qE '^Frames: [0-9]+ in [0-9]+\.[0-9] s, [0-9]+\.[0-9] a second$' "$work/out"
  check "$1: a frame" grep -qE '^A frame: [0-9.]+ ms on average, [0-9.]+ ms at worst$' "$work/out"
  check "$1: the processor" grep -qE '^Processor: [0-9.]+ s, [0-9.]+ % of one core$' "$work/out"
  same "$1: the log has it in one line" "$(sed ':all;N;$!b all;s/\n/. /g' "$work/out")" \
    "$(log_entries | grep '^Frames: ')"
  same "$1: the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"
  same "$1: nothing on standard error" "" "$(cat "$work/err")"
}
value() { sed -n "s/$1/\\1/p" "$work/out"; }

# see_frames WINDOW ARGUMENT...: starts the saver and waits for several frames.
see_frames() { start_and_see "$@" && frames_advance "$1" && frames_advance "$1"; }

start_and_see root /s --stats
sleep 4 # the length of the run is what is tried
end_saver
tells "a full run"
frames=$(value '^Frames: \([0-9]*\) .*')
check "25 frames a second, more or less ($frames in 4 to 5 seconds)" test "$frames" -gt 60 -a "$frames" -lt 140
check "the worst frame is no better than the mean one" awk -F'[ ]' '/^A frame/ {exit !($7 >= $3)}' "$work/out"
check "a share of the processor between nothing and all" awk '/^Processor/ {exit !($4 > 0 && $4 < 90)}' "$work/out"

see_frames root --stats
xdotool key a
await_saver 5
tells "a run that input ends"
see_frames "$window" /p "$window" --stats
end_saver HUP
tells "a preview"
see_frames root --root --stats
end_saver INT
tells "the root window"
see_frames root --stats --window 320x200
"$helper" close "$(xwininfo -root -children | awk '/"Lunaria"/ {print $1}')"
await_saver 5
tells "an ordinary window"

start_and_see root /s
end_saver
same "without the option nothing is printed" "" "$(cat "$work/out")"
same "nor logged" "" "$(log_entries | grep '^Frames: ')"
end_window
start_and_see root --stats
kill -KILL "$server"; wait "$server" 2>/dev/null
await_saver 5
same "a display that goes away ends it" 1 "$code"
same "and the statistics are told all the same" 3 "$(wc -l <"$work/out")"
