# What the scripts for Wayland share, beyond lib.sh, which this sources.
. "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
wayland_helper=${LUNARIA_WAYLAND_HELPER:-$bin/../tests/endtoend/linux/wayland_helper}
export XDG_RUNTIME_DIR=$work/run
mkdir -m 700 "$XDG_RUNTIME_DIR"
unset DISPLAY

# start_helper ARGUMENT...: the compositor of this folder; sets WAYLAND_DISPLAY. tell LINE: its answer is in answer.
start_helper() {
  coproc compositor { exec "$wayland_helper" "$@"; }
  compositor_pid=$compositor_PID
  read -r -t 10 WAYLAND_DISPLAY <&"${compositor[0]}" || { echo "no compositor"; exit 1; }
  export WAYLAND_DISPLAY
}
tell() { echo "$1" >&"${compositor[1]}"; read -r -t 10 answer <&"${compositor[0]}"; }
end_helper() { kill "$compositor_pid" && wait "$compositor_pid"; } 2>/dev/null
# answers LINE VALUE: whether that is the answer now.
answers() { tell "$1"; [ "$answer" = "$2" ]; }

# frames_come: whether the compositor gets new frames within two seconds.
commits_are_more_than() { tell commits; [ "$answer" -gt "$1" ]; }
frames_come() { tell commits; until_true 2 commits_are_more_than "$answer"; }
# all_show_sky: every surface has more colours than one.
all_show_sky() {
  tell colours
  [ -n "$answer" ] && for count in $answer; do [ "$count" -gt 20 ] || return 1; done
}

# as_user COMMAND...: sway does not run for root.
as_user() {
  if [ "$(id -u)" = 0 ]; then
    exec setpriv --reuid nobody --regid nogroup --clear-groups env HOME="$XDG_RUNTIME_DIR" "$@"
  fi
  exec "$@"
}
# need PROGRAM...: ends the script as passed, with the reason, where one is not to be had.
need() {
  local program
  for program in "$@"; do
    command -v "$program" >/dev/null || { echo "skipped: there is no $program here"; exit 0; }
  done
}

# start_sway [OUTPUTS]: with so many outputs without a screen (1): the first 1280x720, then 800x600 to its right.
start_sway() {
  [ "$(id -u)" != 0 ] || { chmod 711 "$work"; chown nobody "$XDG_RUNTIME_DIR"; }
  cat >"$XDG_RUNTIME_DIR/sway.conf" <<'CONF'
output HEADLESS-1 resolution 1280x720 position 0 0
output HEADLESS-2 resolution 800x600 position 1280 0
output * bg #ff0000 solid_color
xwayland disable
CONF
  (WLR_BACKENDS=headless WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1 WLR_HEADLESS_OUTPUTS=${1:-1} \
    as_user sway -c "$XDG_RUNTIME_DIR/sway.conf") >"$work/sway.log" 2>&1 &
  compositor_pid=$!
  servers+=("$compositor_pid")
  if ! until_true 15 sway_answers; then echo "sway does not start:"; cat "$work/sway.log"; exit 1; fi
  WAYLAND_DISPLAY=$(cd "$XDG_RUNTIME_DIR" && echo wayland-?)
  export WAYLAND_DISPLAY SWAYSOCK
}
sway_answers() {
  SWAYSOCK=$(echo "$XDG_RUNTIME_DIR"/sway-ipc.*.sock)
  [ -S "$SWAYSOCK" ] && SWAYSOCK=$SWAYSOCK swaymsg -t get_version
}
# start_weston SHELL [WIDTHxHEIGHT]: of 1280x720 where no size is given.
start_weston() {
  local size=${2:-1280x720}
  weston --backend=headless-backend.so --use-pixman --width="${size%x*}" --height="${size#*x}" --shell="$1-shell.so" \
    --socket="weston-$1" --idle-time=0 --debug --no-config >"$work/weston.log" 2>&1 &
  compositor_pid=$!
  servers+=("$compositor_pid")
  until_true 15 test -S "$XDG_RUNTIME_DIR/weston-$1" || { echo "weston does not start:"; cat "$work/weston.log"; exit 1; }
  export WAYLAND_DISPLAY=weston-$1
}

# picture OUTPUT: what an output of sway shows, as a file. Colours that it shows, and a word for all of it.
picture() { grim -t ppm -o "$1" "$work/picture.ppm"; }
output_colours() { picture "$1" && convert "$work/picture.ppm" -format %k info:; }
output_shows_sky() { [ "$(output_colours "$1")" -gt 20 ]; }
output_word() { picture "$1" && cksum <"$work/picture.ppm"; }
output_word_is_not() { [ "$(output_word "$1")" != "$2" ]; }
output_advances() { until_true 5 output_word_is_not "$1" "$(output_word "$1")"; }

# screen: takes a picture of all that weston shows.
screen() {
  rm -f "$work"/wayland-screenshot*.png
  weston-screenshooter >"$work/shooter.log" 2>&1 && mv "$work"/wayland-screenshot*.png "$work/screen.png"
}
# part_shows_sky GEOMETRY: whether there are many colours there.
part_shows_sky() { screen && [ "$(convert "$work/screen.png" -crop "$1" +repage -format %k info:)" -gt 20 ]; }
