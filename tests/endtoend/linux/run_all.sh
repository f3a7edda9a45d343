#!/usr/bin/env bash
# Runs every end-to-end script of this folder, each on displays of its own, and sums them up.
# Usage: run_all.sh BUILD_BIN_DIR [SCRIPT...]
set -u
here=$(cd "$(dirname "$0")" && pwd)
export LUNARIA_BIN; LUNARIA_BIN=$(cd "${1:?Usage: run_all.sh BUILD_BIN_DIR [SCRIPT...]}" && pwd) || exit 1
shift
for tool in Xvfb xsetroot xdotool import display convert xwininfo xprop xrandr xrdb; do
  command -v "$tool" >/dev/null || { echo "no $tool: install xvfb, xdotool, imagemagick, x11-utils and x11-xserver-utils" >&2; exit 1; }
done
scripts=(
  commandline
  configure
  sheet_screenshots
  fullrun
  startup
  preview
  signals
  displays
  monitors
  environments
  power
  stats
  doctor
  window
  wayland
  sway
  weston
  resources
  services
  sound_server
  xscreensaver
  mate
)
[ $# -gt 0 ] || set -- "${scripts[@]}"
passed=0
failed=0
for script in "$@"; do
  echo "== $script"
  output=$(timeout 300 "$here/$script.sh" 2>&1)
  code=$?
  echo "$output"
  counts=$(echo "$output" | sed -n '$s/^\([0-9]*\) passed, \([0-9]*\) failed$/\1 \2/p')
  passed=$((passed + ${counts% *}0 / 10))
  failed=$((failed + ${counts#* }0 / 10))
  # A script that breaks off has failed, whatever it had passed.
  if [ -z "$counts" ] || { [ "$code" -ne 0 ] && [ "${counts#* }" = 0 ]; }; then
    echo "$script broke off with exit code $code"
    failed=$((failed + 1))
  fi
done
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
