#!/usr/bin/env bash
# A sound server under the saver: what is heard of it, and what becomes of the sky when the server hangs or goes.
here=$(cd "$(dirname "$0")" && pwd)
. "$here/lib.sh"
settings=$HOME/.config/"Lunaria software"
mkdir -p "$settings"
printf '%s\n' snd_selectedSound=5 snd_loopSound=yes >"$settings/Lunaria screensaver.ini"
start_display 640x480x24

threads() { ls "/proc/$saver/task" | wc -l; }
# What the saver has without a sound: its own thread and that of the report.
sounds() { [ "$(threads)" -gt 2 ]; }
# ends_soon WHAT: the saver, told to end, is gone within 100 ms. A busy machine may hold one of three up.
ends_soon() {
  local what=$1 best=1000 attempt; shift
  for attempt in 1 2 3; do
    [ "$attempt" = 1 ] || { "$@"; start_and_see root /s; until_true 10 sounds; }
    end_saver
    [ "$code" = 0 ] || not_ok "$what ends well" "exit code $code"
    [ "$milliseconds" -ge "$best" ] || best=$milliseconds
    [ "$best" -gt 100 ] || break
  done
  at_most "$what ends soon, in milliseconds" 100 "$best"
}

for driver in dummy disk; do
  export SDL_AUDIODRIVER=$driver SDL_DISKAUDIOFILE=$work/played
  start_and_see root /s
  check "a sound starts ($driver)" until_true 10 sounds
  ends_soon "a run with a sound ($driver)" true
done

# A card that takes everything and plays nothing.
echo 'pcm.!default { type null }' >"$work/asound.conf"
export SDL_AUDIODRIVER=alsa ALSA_CONFIG_PATH=$work/asound.conf
start_and_see root /s
check "a sound starts (ALSA)" until_true 10 sounds
ends_soon "a run with a sound (ALSA)" true
unset ALSA_CONFIG_PATH

# A sound server of the test's own, whose card is a null sink.
export SDL_AUDIODRIVER=pulseaudio PULSE_SERVER=unix:$work/pulse XDG_RUNTIME_DIR=$work/runtime
mkdir -m 700 "$XDG_RUNTIME_DIR"
start_server() {
  pulseaudio -n --daemonize=no --use-pid-file=no --exit-idle-time=-1 --disallow-exit \
    --load="module-native-protocol-unix socket=$work/pulse auth-anonymous=1" \
    --load="module-null-sink sink_name=sky" >"$work/pulse.log" 2>&1 &
  sound_server=$!
  servers+=("$sound_server")
  until_true 10 pactl info || { echo "no sound server:"; cat "$work/pulse.log"; exit 1; }
}
stop_server() { kill -KILL "$sound_server"; wait "$sound_server" 2>/dev/null; rm -f "$work/pulse"; }
hears_the_saver() { pactl list sink-inputs | grep -q 'application.name = "Lunaria"'; }
has_loud_samples() { [ "$(tr -d '\000' <"$work/heard" | wc -c)" -gt 20000 ]; }

start_server
check "the sky is there" start_and_see root /s
check "the server hears of the saver" until_true 10 hears_the_saver
parec --raw -d sky.monitor >"$work/heard" 2>/dev/null &
servers+=("$!")
check "and of its sound" until_true 20 has_loud_samples
ends_soon "a run with a sound (sound server)" true
check "the server has lost it" until_true 5 eval '! hears_the_saver'

start_and_see root /s
until_true 10 hears_the_saver
kill -STOP "$sound_server"
check "a server that hangs does not hold the sky up" frames_advance root
end_saver
same "the run ends all the same" 0 "$code"
at_most "and soon, in milliseconds" 100 "$milliseconds"
start_and_see root /s
check "with a server that hangs the sky is there" frames_advance root
end_saver
same "and ends" 0 "$code"
at_most "as soon, in milliseconds" 100 "$milliseconds"
kill -CONT "$sound_server"

start_and_see root /s
until_true 10 hears_the_saver
stop_server
check "a server that goes does not take the sky with it" frames_advance root
check "nor a moment later" frames_advance root
end_saver
same "and the run ends well" 0 "$code"
check "without an error in the log" eval '! grep -q "^ERROR" "$log"'
check "without a server the sky is there" start_and_see root /s
end_saver
check "a run without a server is silent, and says so" logged "silent: "
