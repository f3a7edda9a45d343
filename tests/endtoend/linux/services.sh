#!/usr/bin/env bash
# What the saver does beyond its window: the sound that is really played, the computer that is kept awake, the report
# of its use, and what all that costs.
here=$(cd "$(dirname "$0")" && pwd)
. "$here/lib.sh"
resources=$here/../../../src/resources
settings=$HOME/.config/"Lunaria software"
mkdir -p "$settings"
set_up() { printf '%s\n' "$@" >"$settings/Lunaria screensaver.ini"; }
threads() { ls "/proc/$saver/task" | wc -l; }
has_threads() { [ "$(threads)" -eq "$1" ]; }
# The 8-bit samples of a WAVE file with the usual head of 44 bytes, or what of them was played so far.
samples() { tail -c +45 "$1"; }
hex() { od -An -v -tx1 | tr -d ' \n'; }
start_display 640x480x24

# No sound is chosen: there is the saver's own thread and that of the report, and none for sounds.
start_and_see root /s
check "without a sound there is no thread for it" has_threads 2
end_saver
set_up sisableTelemetry=yes
start_and_see root /s
check "the thread of a report that is not wanted ends" until_true 5 has_threads 1
check "and it says why" logged "telemetry is switched off in the settings: nothing is reported"
end_saver

# The sound goes into a file in the place of a card.
set_up snd_selectedSound=5 snd_loopSound=yes
export SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE=$work/played
start_and_see root /s
longer_than() { [ "$(stat -c %s "$1" 2>/dev/null || echo 0)" -gt "$2" ]; }
check "the background sound plays from the start" until_true 10 longer_than "$work/played" 16000
check "for as long as the sky is there" frames_advance root
end_saver
same "the end of the run ends it" 0 "$code"
at_most "and is not held up by it" 100 "$milliseconds"
samples "$resources/birds.wav" | head -c 12000 | hex >"$work/wanted"
hex <"$work/played" >"$work/heard"
check "what is played is the chosen sound" grep -qFf "$work/wanted" "$work/heard"
rm -f "$work/played"
start_window 152x112+20+30
start_and_see "$window" /p "$window"
check "a preview is silent" test ! -e "$work/played"
same "and has no thread but its own" 1 "$(threads)"
end_saver
end_window

# Time on the processor of everything but the sky's own thread, in nanoseconds.
others() {
  local task sum=0 taken rest
  for task in /proc/"$saver"/task/*; do
    [ "${task##*/}" = "$saver" ] || { read -r taken rest <"$task/schedstat"; sum=$((sum + taken)); }
  done
  echo "$sum"
}
export SDL_AUDIODRIVER=dummy
start_and_see root /s
check "a sound has its threads" until_true 5 has_threads 4
before=$(others); sky=$(busy)
sleep 5 # what they take meanwhile is what is tried
# The sky takes two and a half hundredths of a core that does nothing else; a slow machine takes longer for both.
at_most "a sound takes no more than one per cent of a core, or four tenths of the sky's time, in millionths" \
  $((($(busy) - sky) * 4 / 10 / 5000)) $((($(others) - before) / 5000))
end_saver

export SDL_AUDIODRIVER="no such driver"
check "without a sound system the sky is there" start_and_see root /s
end_saver
check "and the log says that it is silent" logged "silent: no sound system: "
check "and nothing comes on standard error" test ! -s "$work/err"
export SDL_AUDIODRIVER=dummy

# logind is asked over a bus of the test's own.
coproc logind { /usr/bin/python3 "$here/../../services/linux/mockLogind.py" grant; }
read -r DBUS_SYSTEM_BUS_ADDRESS <&"${logind[0]}"
export DBUS_SYSTEM_BUS_ADDRESS
ask_logind() { echo "$1" >&"${logind[1]}"; read -r answer <&"${logind[0]}"; }
set_up preventComputerSleep=3
start_and_see root /s
ask_logind list
same "the computer is kept awake" "idle:sleep|Lunaria|The screen saver keeps the computer awake|block" "$answer"
read -r answer <&"${logind[0]}"
end_saver
ask_logind empty
same "until the run ends" yes "$answer"
start_and_see root /s
end_saver KILL
ask_logind empty
same "or is ended by force" yes "$answer"
set_up preventComputerSleep=0
start_and_see root /s
ask_logind list
same "not where the user does not want it" . "$answer"
end_saver
eval "exec ${logind[1]}>&-"
wait "$logind_PID" 2>/dev/null
set_up preventComputerSleep=3
check "without a bus the sky is there" start_and_see root /s
end_saver
check "and the log says that sleep is not prevented" logged "cPreventComputerSleep preventIdleSleep() failed"
# A bus that takes every connection and says nothing.
coproc silent_bus { exec /usr/bin/python3 -c 'import socket, sys
bus = socket.socket(socket.AF_UNIX)
bus.bind(sys.argv[1])
bus.listen()
print("listening", flush=True)
sys.stdin.read()' "$work/silent-bus"; }
read -r _ <&"${silent_bus[0]}"
export DBUS_SYSTEM_BUS_ADDRESS=unix:path=$work/silent-bus
check "with a bus that never answers the sky is there" start_and_see root /s
check "and moves" frames_advance root
end_saver
same "and the run ends well" 0 "$code"
at_most "and soon, in milliseconds" 100 "$milliseconds"
check "and the log says that the answer is still to come" logged "the answer is still to come"
eval "exec ${silent_bus[1]}>&-"
wait "$silent_bus_PID" 2>/dev/null
unset DBUS_SYSTEM_BUS_ADDRESS

set_up preventComputerSleep=1 preventComputerSleepUntilUTCtime_inMinutes=1000
start_and_see root /s
end_saver
check "a time that is over switches itself off" grep -qx 'preventComputerSleep=0' "$settings/Lunaria screensaver.ini"

# A run of half a minute is reported, into a file and nowhere else.
# Beside it runs one whose folder has a library in the vendor's place.
set_up snd_selectedSound=0
mkdir -m 755 "$work/program"
mkdir -m 700 "$work/elsewhere"
cp "$lunaria" "$work/program/lunaria"
cp "$bin/../tests/services/libtrackerbird_recorder.so" "$work/program/libTrackerbird.so"
HOME=$work/elsewhere TMPDIR=$work/elsewhere "$work/program/lunaria" /s >"$work/vendor.out" 2>&1 &
with_vendor=$!
servers+=("$with_vendor")
start_and_see root /s
usage=$HOME/.local/share/"Lunaria software"/usage.txt
check "nothing is reported at first" test ! -e "$usage"
check "a session is noted after 27 seconds" until_true 40 test -s "$usage"
check "with its times, the version and the build" grep -qE \
  '^start=[0-9T:-]+Z stop=[0-9T:-]+Z version=5\.4\.1 build=[A-Z][a-z]{2} [ 0-9]{2} [0-9]{4}  [0-9:]{8}$' "$usage"
same "one line" 1 "$(wc -l <"$usage")"
same "nothing is connected to the network" "" "$(find /proc/"$saver"/fd -lname 'socket:*' -printf '%l\n' |
  tr -dc '0-9\n' | grep -xFf - <(awk 'NR > 1 {print $10}' /proc/net/tcp /proc/net/tcp6 /proc/net/udp /proc/net/udp6))"
end_saver
calls=$work/elsewhere/.local/share/"Lunaria software"/calls.txt
has_stopped() { grep -q tbStop "$calls"; }
check "the vendor's library is called in its place" until_true 15 has_stopped
same "in order" "tbSetFilePath tbCreateConfig tbStart tbStop" "$(cut -d' ' -f1 "$calls" | paste -sd' ')"
check "and nothing else is noted" test ! -e "${calls%/*}/usage.txt"
kill "$with_vendor"
wait "$with_vendor"
same "and that run ends well" 0 $?
