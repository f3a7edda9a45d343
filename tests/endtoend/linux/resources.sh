#!/usr/bin/env bash
# What the full run takes of the machine: memory, and the time until its first frame.
. "$(dirname "$0")/lib.sh"
resident() { awk '/^VmRSS/ {print int($2 / 1024)}' "/proc/$saver/status"; }

start_display 1920x1080x24
for background in 0 1 2 3; do
  settings=$HOME/.config/"Lunaria software"
  mkdir -p "$settings"
  echo "background=$background" >"$settings/Lunaria screensaver.ini"
  start_and_see root
  frames_advance root
  at_most "background $background: megabytes resident at 1920x1080" 40 "$(resident)"
  end_saver
done
rm -r "$HOME/.config"
best=1000
for _ in 1 2 3 4 5; do
  time=$("$helper" first-frame "$lunaria" /s)
  [ "$time" -lt "$best" ] && best=$time
done
at_most "milliseconds from the start to the first frame, best of five" 150 "$best"

start_display 3840x2160x24
start_and_see root
frames_advance root
at_most "megabytes resident at 3840x2160" 110 "$(resident)"
end_saver
