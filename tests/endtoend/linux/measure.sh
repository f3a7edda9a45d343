#!/usr/bin/env bash
# Measures the processor time of the full run at 1920x1080 with each background, everything shown (the first
# message flies together meanwhile, quotes come and go), the display server included.
# Usage: measure.sh BUILD_BIN_DIR [SECONDS]. No test: other work on the machine falsifies it.
export LUNARIA_BIN=${1:?Usage: measure.sh BUILD_BIN_DIR [SECONDS]}
seconds=${2:-30}
. "$(dirname "$0")/lib.sh"
trap 'finish >/dev/null' EXIT
ticks() { awk '{sum += $14 + $15} END {print sum}' "/proc/$saver/stat" "/proc/$server/stat"; }
start_display 1920x1080x24
for background in 0 1 2 3; do
  settings=$HOME/.config/"Lunaria software"
  mkdir -p "$settings"
  printf '%s\n' "background=$background" showQuotes_Advice=yes showQuotes_Love=yes showQuotes_Wisdom=yes \
    >"$settings/Lunaria screensaver.ini"
  start_and_see root
  own=$(awk '{print $14 + $15}' "/proc/$saver/stat")
  before=$(ticks)
  sleep "$seconds"
  after=$(ticks)
  own=$(($(awk '{print $14 + $15}' "/proc/$saver/stat") - own))
  awk -v b="$background" -v t=$((after - before)) -v o="$own" -v s="$seconds" -v h="$(getconf CLK_TCK)" \
    'BEGIN {printf "background %d: %.2f %% of a core (the saver %.2f, the display %.2f)\n", b,
            100 * t / h / s, 100 * o / h / s, 100 * (t - o) / h / s}'
  end_saver
done
