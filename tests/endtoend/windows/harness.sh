# What run_windows.sh stands on: a display, a Wine prefix, waiting for conditions, looking at the screen and the log.
# shellcheck shell=bash
# It is sourced, with `root`, `out`, `program` and `parent_program` set.
run=$root/tests/wine/run
screen=800x600
second_screen=640x480
log=''
failures=0
checks=0
saver=''
exit_code=''
xvfb=''

check() {  # TEXT COMMAND...
  local text=$1
  shift
  checks=$((checks + 1))
  if "$@"; then
    echo "ok    $text"
  else
    echo "FAIL  $text"
    failures=$((failures + 1))
  fi
}

# Asks again until it is so; false when the seconds are over.
wait_until() {  # SECONDS COMMAND...
  local end=$((SECONDS + $1))
  shift
  until "$@"; do
    [ $SECONDS -lt $end ] || return 1
    read -r -t 0.1 <> <(:)
  done
  return 0
}

start_display() {
  mkdir -p "$out"
  exec 5< <(exec Xvfb -displayfd 1 -screen 0 "${screen}x24" -nolisten tcp -noreset 2> "$out/xvfb.txt")
  xvfb=$!
  local number
  read -r -t 30 -u 5 number || { echo "no display: see $out/xvfb.txt" >&2; exit 2; }
  export DISPLAY=:$number
  # A second size of the screen, before Wine asks for them; the numbers are VGA's usual ones.
  xrandr --newmode "$second_screen" 25.18 640 656 752 800 480 490 492 525 && xrandr --addmode screen "$second_screen"
  trap stop_all EXIT
}

stop_all() {
  [ -z "$saver" ] || kill "$saver" 2>/dev/null
  [ -z "$xvfb" ] || kill "$xvfb" 2>/dev/null
}

# The prefix of the tests, with its users' folders inside it: the log may copy itself to the desktop.
prepare_prefix() {
  export LUNARIA_WINEPREFIX=${LUNARIA_WINEPREFIX:-$root/build/wine}
  "$run" cmd /c exit || { echo "Wine does not start" >&2; exit 2; }
  local link
  for link in "$LUNARIA_WINEPREFIX"/drive_c/users/*/*; do
    if [ -L "$link" ]; then
      rm "$link" && mkdir "$link"
    fi
  done
  # The folder of temporary files, as the program sees it.
  local folder
  folder=$("$run" cmd /c 'echo %TEMP%' | tr -d '\r')
  log=$(WINEPREFIX=$LUNARIA_WINEPREFIX winepath -u "$folder" 2>/dev/null)/Lunaria.xplLog.txt
}

start_saver() {  # ARGUMENT...
  rm -f "$log"
  exit_code=''
  # A pointer in a known place, from where the saver sees it first.
  xdotool mousemove 300 300
  "$run" "$program" "$@" &
  saver=$!
}

# Waits for the saver and keeps its exit code; false (and the saver killed) when it does not end in time.
wait_for_end() {  # SECONDS
  local in_time=0
  wait_until "$1" saver_has_ended || in_time=1
  [ $in_time = 0 ] || kill "$saver"
  wait "$saver"
  exit_code=$?
  saver=''
  return $in_time
}

saver_has_ended() { ! kill -0 "$saver" 2>/dev/null; }

start_parent() {  # [desktop]
  coproc PARENT { exec "$run" "$parent_program" "$@"; }
  read -r -t 60 -u "${PARENT[0]}" parent_handle || { echo "the parent window does not start" >&2; exit 2; }
  parent_handle=${parent_handle%$'\r'}
}

tell_parent() { echo "$1" >&"${PARENT[1]}"; }

child_is() {  # DESCRIPTION
  local answer=''
  tell_parent child
  read -r -t 10 -u "${PARENT[0]}" answer
  [ "${answer%$'\r'}" = "$1" ]
}

window_exists() { [ -n "$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null)" ]; }

window_is() {  # TITLE LEFT,TOP WIDTHxHEIGHT
  local id
  id=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1)
  [ -n "$id" ] && [ "$(xdotool getwindowgeometry "$id" | tr -s ' \n' ' ' |
    sed -E 's/.*Position: ([-0-9,]+).*Geometry: ([0-9x]+).*/\1 \2/')" = "$2 $3" ]
}

screenshot() { import -window root "$out/$1.png"; }

differing_pixels() { compare -metric AE "$1" "$2" null: 2>&1; }

# Whether the screen changes from one look to the next.
frames_differ() {
  screenshot frame-a
  screenshot frame-b
  [ "$(differing_pixels "$out/frame-a.png" "$out/frame-b.png")" != 0 ]
}

# Whether the saver still runs after the input that was sent before had its time: it takes a saver that ends
# 40 milliseconds and two messages.
saver_goes_on() { ! wait_until 2 saver_has_ended; }

# Whether frames still come, and the saver runs.
frames_go_on() { wait_until 10 frames_differ && ! saver_has_ended; }

# Whether a screenshot is a night sky: mostly dark, not of one colour, with bright points that are few.
is_sky() {  # FILE
  local dark bright colors
  dark=$(convert "$1" -colorspace gray -threshold 25% -negate -format '%[fx:mean*100]' info:)
  bright=$(convert "$1" -colorspace gray -threshold 25% -format '%[fx:mean*w*h]' info:)
  colors=$(identify -format '%k' "$1")
  awk -v dark="$dark" -v bright="$bright" -v colors="$colors" \
    'BEGIN { exit !(dark > 80 && bright >= 20 && colors >= 20) }'
}

keep_log() { tr -d '\r' < "$log" > "$out/$1.log" && log_copy=$out/$1.log; }

# Whether lines that hold these texts follow each other in the log, others between them allowed.
log_in_order() {  # TEXT...
  local line
  while IFS= read -r line; do
    [ $# -gt 0 ] || return 0
    case $line in *"$1"*) shift ;; esac
  done < "$log_copy"
  [ $# = 0 ] || echo "      missing in $log_copy: $1"
  [ $# = 0 ]
}

# The log's last entry, without its level and marks.
last_entry() { tail -n 1 "$log_copy" | sed -E 's/^[A-Za-z]+>\t(\| )*//'; }

finish() {
  echo "end-to-end on Windows: $((checks - failures)) of $checks checks passed; screenshots and logs in $out"
  [ $failures = 0 ]
  exit
}
