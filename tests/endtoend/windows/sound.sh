# What is heard of a full run: a sound server of the test's own, whose card is a null sink, in place of a sound card.
# shellcheck shell=bash
# It is sourced by run_windows.sh, which has started the display and the prefix.
sound_folder=$(mktemp -d)
sound_processes=()
trap 'stop_sound_server; stop_all' EXIT

stop_sound_server() {
  local process
  for process in "${sound_processes[@]}"; do
    kill "$process" 2>/dev/null && wait "$process" 2>/dev/null
  done
  rm -rf "$sound_folder"
}

start_sound_server() {
  export PULSE_SERVER=unix:$sound_folder/socket
  HOME=$sound_folder pulseaudio -n --daemonize=no --use-pid-file=no --exit-idle-time=-1 --disallow-exit \
    --load="module-native-protocol-unix socket=$sound_folder/socket auth-anonymous=1" \
    --load="module-null-sink sink_name=sky" 2>"$out/sound-server.txt" &
  sound_processes+=($!)
  wait_until 20 eval 'pactl info >/dev/null 2>&1' || return 1
  parec --raw -d sky.monitor >"$sound_folder/heard" 2>/dev/null &
  sound_processes+=($!)
}

loud_samples() { tr -d '\000' <"$sound_folder/heard" | wc -c; }
hears_more_than() { [ "$(loud_samples)" -gt "$1" ]; }
somebody_plays() { [ -n "$(pactl list short sink-inputs)" ]; }

settings_file() {
  local folder
  folder=$("$run" cmd /c 'echo %APPDATA%' | tr -d '\r')
  echo "$(WINEPREFIX=$LUNARIA_WINEPREFIX winepath -u "$folder" 2>/dev/null)/Lunaria software/Lunaria screensaver.ini"
}

play_a_background_sound() {
  local settings kept=$sound_folder/settings.ini
  settings=$(settings_file)
  mkdir -p "$(dirname "$settings")"
  [ ! -e "$settings" ] || cp "$settings" "$kept"
  printf 'snd_selectedSound=5\r\nsnd_loopSound=yes\r\n' >"$settings"
  start_saver /s
  check "sound: the sky is there" wait_until 60 window_is Lunaria 0,0 "$screen"
  check "sound: it is played" wait_until 30 somebody_plays
  # Of a second at least: two channels of words, 44,100 times a second.
  check "sound: it is heard" wait_until 60 hears_more_than 176400
  check "sound: the sky moves meanwhile" frames_go_on
  xdotool key a
  check "sound: the run ends" wait_for_end 10
  check "sound: with exit code 0" [ "$exit_code" = 0 ]
  check "sound: nobody plays after it" wait_until 10 eval '! somebody_plays'
  if [ -e "$kept" ]; then cp "$kept" "$settings"; else rm -f "$settings"; fi
}

if ! command -v pulseaudio parec pactl >/dev/null; then
  echo "skip  sound: there is no pulseaudio here (packages pulseaudio and pulseaudio-utils)"
elif ! start_sound_server; then
  check "sound: the sound server starts (see $out/sound-server.txt)" false
else
  play_a_background_sound
fi
stop_sound_server
trap stop_all EXIT
unset PULSE_SERVER
