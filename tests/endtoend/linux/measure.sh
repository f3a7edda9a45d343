#!/usr/bin/env bash
# Measures the processor time of the full run at 1920x1080 with each background, everything shown (the first
# message flies together meanwhile, quotes come and go): on X11, and on Wayland where there are weston and sway. All
# displays run at once, so that whatever else the machine does falls on each of them, and with faketime (package
# faketime) all show the same sky.
# Usage: measure.sh BUILD_BIN_DIR [SECONDS [TIMES]]. No test: other work on the machine falsifies it.
export LUNARIA_BIN=${1:?Usage: measure.sh BUILD_BIN_DIR [SECONDS [TIMES]]}
seconds=${2:-30}
times=${3:-1}
. "$(dirname "$0")/waylandLib.sh"
trap 'finish >/dev/null' EXIT
faketime=$(find /usr/lib -name libfaketime.so.1 2>/dev/null | head -n 1)
[ -n "$faketime" ] || echo "no faketime here: every display shows a sky of its own"

# has PROGRAM...: whether all of them are here; says so where they are not.
has() {
  local program
  for program in "$@"; do
    command -v "$program" >/dev/null || { echo "no $program here: not measured"; return 1; }
  done
}
# nanoseconds PROCESS: its processor time so far, that of all its threads.
nanoseconds() { cat "/proc/$1/task/"*/schedstat | awk '{sum += $1} END {printf "%.0f\n", sum}'; }

names=()   # of the displays
servers_of=()
variables=()  # how a program finds each
run_directory() { XDG_RUNTIME_DIR=$work/run.$1; mkdir -m 700 "$XDG_RUNTIME_DIR"; }
note_display() { names+=("$1"); servers_of+=("$2"); variables+=("$3"); }
start_display 1920x1080x24
note_display X11 "$server" "DISPLAY=$DISPLAY"
unset DISPLAY
if has weston; then
  run_directory weston
  start_weston desktop 1920x1080
  note_display weston "$compositor_pid" "XDG_RUNTIME_DIR=$XDG_RUNTIME_DIR WAYLAND_DISPLAY=$WAYLAND_DISPLAY"
fi
if has sway swaymsg swaybg; then
  run_directory sway
  start_sway
  swaymsg -q output HEADLESS-1 resolution 1920x1080
  note_display sway "$compositor_pid" "XDG_RUNTIME_DIR=$XDG_RUNTIME_DIR WAYLAND_DISPLAY=$WAYLAND_DISPLAY"
fi
unset WAYLAND_DISPLAY

# start_on DISPLAY-NUMBER BACKGROUND: a saver there, with settings of its own; its process is in savers.
start_on() {
  local home=$work/home.$1
  mkdir -p "$home/.config/Lunaria software" "$home/tmp"
  printf '%s\n' "background=$2" showQuotes_Advice=yes showQuotes_Love=yes showQuotes_Wisdom=yes \
    >"$home/.config/Lunaria software/Lunaria screensaver.ini"
  # shellcheck disable=SC2086
  env ${variables[$1]} HOME="$home" TMPDIR="$home/tmp" LD_PRELOAD="$faketime" FAKETIME='@2026-01-01 12:00:00' \
    FAKETIME_DONT_FAKE_MONOTONIC=1 "$lunaria" --stats >"$home/out" 2>&1 &
  savers+=("$!")
}
# measure BACKGROUND
measure() {
  local number own=() shown=() savers=() measured=()
  for number in "${!names[@]}"; do start_on "$number" "$1"; done
  sleep 3 # the start is not what is measured
  for number in "${!names[@]}"; do
    own+=("$(nanoseconds "${savers[$number]}")")
    shown+=("$(nanoseconds "${servers_of[$number]}")")
  done
  sleep "$seconds"
  for number in "${!names[@]}"; do
    measured+=("${names[$number]} $1 $(($(nanoseconds "${savers[$number]}") - own[number]))$(
      printf ' %s' $(($(nanoseconds "${servers_of[$number]}") - shown[number])))")
  done
  kill "${savers[@]}"
  wait "${savers[@]}"
  for number in "${!names[@]}"; do
    echo "${measured[$number]} $(sed -nE 's/^Frames: .* ([0-9.]+) a second$/\1/p' "$work/home.$number/out")"
  done >>"$work/measured"
}
for ((i = 0; i < times; i++)); do
  for background in 0 1 2 3; do measure "$background"; done
done
awk -v s="$seconds" '
  function tell(name) {
    printf "%s: %.2f %% of a core (the saver %.2f, the display %.2f), %.1f frames a second\n", name,
           (own[name] + shown[name]) / n[name], own[name] / n[name], shown[name] / n[name], frames[name] / n[name]
  }
  { for (i = 0; i < 2; i++) {
      name = i ? $1 ", all backgrounds" : $1 ", background " $2
      if (!n[name]++) order[++count] = name
      own[name] += $3 / s / 1e7; shown[name] += $4 / s / 1e7; frames[name] += $5
  } }
  END { for (i = 1; i <= count; i++) if (order[i] !~ /all/) tell(order[i])
        for (i = 1; i <= count; i++) if (order[i] ~ /all/) tell(order[i]) }' "$work/measured"
