#!/usr/bin/env bash
# Measures the processor time of the full run at 1920x1080 with each background, everything shown (the first
# message flies together meanwhile, quotes come and go), the display server included: on X11, and on Wayland
# where there are weston and sway.
# Usage: measure.sh BUILD_BIN_DIR [SECONDS]. No test: other work on the machine falsifies it.
export LUNARIA_BIN=${1:?Usage: measure.sh BUILD_BIN_DIR [SECONDS]}
seconds=${2:-30}
. "$(dirname "$0")/waylandLib.sh"
trap 'finish >/dev/null' EXIT
# has PROGRAM...: whether all of them are here; says so where they are not.
has() {
  local program
  for program in "$@"; do
    command -v "$program" >/dev/null || { echo "no $program here: not measured"; return 1; }
  done
}
ticks() { awk '{sum += $14 + $15} END {print sum}' "/proc/$1/stat"; }

# measure NAME SERVER COMMAND...: the command tells when the sky is there.
measure() {
  local name=$1 display=$2 own before; shift 2
  for background in 0 1 2 3; do
    settings=$HOME/.config/"Lunaria software"
    mkdir -p "$settings"
    printf '%s\n' "background=$background" showQuotes_Advice=yes showQuotes_Love=yes showQuotes_Wisdom=yes \
      >"$settings/Lunaria screensaver.ini"
    start_saver
    until_true 10 "$@"
    own=$(ticks "$saver"); before=$(ticks "$display")
    sleep "$seconds"
    awk -v n="$name" -v b="$background" -v o=$(($(ticks "$saver") - own)) -v d=$(($(ticks "$display") - before)) \
      -v s="$seconds" -v h="$(getconf CLK_TCK)" \
      'BEGIN {printf "%s, background %d: %.2f %% of a core (the saver %.2f, the display %.2f)\n", n, b,
              100 * (o + d) / h / s, 100 * o / h / s, 100 * d / h / s}'
    end_saver
  done
}
start_display 1920x1080x24
measure X11 "$server" shows_sky root
if has weston weston-screenshooter convert; then
  start_weston desktop 1920x1080
  measure weston "$compositor_pid" part_shows_sky 300x300+0+0
fi
if has sway swaymsg swaybg grim convert; then
  start_sway
  swaymsg -q output HEADLESS-1 resolution 1920x1080
  measure sway "$compositor_pid" output_shows_sky HEADLESS-1
fi
