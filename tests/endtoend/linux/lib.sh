# What the end-to-end scripts share. Source it; LUNARIA_BIN names the folder of the programs.
set -u
bin=$(cd "${LUNARIA_BIN:?LUNARIA_BIN must name the folder of the programs}" && pwd)
lunaria=$bin/lunaria
helper=${LUNARIA_HELPER:-$bin/../tests/endtoend/linux/x11_helper}
[ -x "$lunaria" ] || { echo "no program $lunaria: build the target lunaria" >&2; exit 1; }
[ -x "$helper" ] || { echo "no program $helper: build the target x11_helper" >&2; exit 1; }

passed=0
failed=0
work=$(mktemp -d)
servers=()
saver=
unset WAYLAND_DISPLAY WAYLAND_SOCKET XSCREENSAVER_WINDOW LUNARIA_NO_SHM XDG_RUNTIME_DIR XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME
export HOME=$work/home TMPDIR=$work/tmp SDL_AUDIODRIVER=dummy
mkdir -m 700 "$HOME" "$TMPDIR"
# Without any folder to be had the log goes to the current one.
cd "$work" || exit 1
log=$TMPDIR/Lunaria.xplLog.txt

script=$BASHPID
finish() {
  # A saver that is ended before it has begun is still a copy of this shell, and must not clear up after it.
  [ "$BASHPID" = "$script" ] || return 0
  [ -n "$saver" ] && kill -KILL "$saver" 2>/dev/null
  for server in "${servers[@]}"; do kill "$server" 2>/dev/null; done
  wait 2>/dev/null
  rm -rf "$work"
  echo "$passed passed, $failed failed"
  [ "$failed" -eq 0 ]
}
trap 'finish; exit $?' EXIT

ok() { passed=$((passed + 1)); echo "ok      $1"; }
not_ok() {
  failed=$((failed + 1))
  echo "FAILED  $1${2:+: $2}"
  [ -s "$work/err" ] && sed 's/^/        stderr: /' "$work/err"
}
# check NAME COMMAND...: the command must succeed.
check() { local name=$1; shift; if "$@"; then ok "$name"; else not_ok "$name" "$*"; fi; }
# same NAME EXPECTED ACTUAL
same() { if [ "$2" = "$3" ]; then ok "$1"; else not_ok "$1" "expected '$2', got '$3'"; fi; }
# at_most NAME LIMIT ACTUAL
at_most() { if [ "$3" -le "$2" ]; then ok "$1 ($3)"; else not_ok "$1" "$3 is more than $2"; fi; }

# until_true SECONDS COMMAND...: waits until the command succeeds, at most so long.
until_true() {
  local end=$(($(date +%s%N) + $1 * 1000000000)); shift
  until "$@" >/dev/null 2>&1; do
    [ "$(date +%s%N)" -lt "$end" ] || return 1
    sleep 0.02
  done
}
gone() { ! kill -0 "$1" 2>/dev/null; }
logged() { grep -qF -- "$1" "$log"; }

# start_display GEOMETRY [OPTION...]: an Xvfb on a free display; sets DISPLAY and server.
start_display() {
  local geometry=$1 number=$work/display.${#servers[@]}; shift
  Xvfb -displayfd 7 -screen 0 "$geometry" -nolisten tcp -noreset "$@" 7>"$number" 2>"$work/xvfb.log" &
  server=$!
  servers+=("$server")
  until_true 10 test -s "$number" || { echo "Xvfb does not start:"; cat "$work/xvfb.log"; exit 1; }
  DISPLAY=:$(cat "$number")
  export DISPLAY
}

# start_saver ARGUMENT...: the program in the background; its process id is in saver.
start_saver() {
  rm -f "$log"
  "$lunaria" "$@" >"$work/out" 2>"$work/err" &
  saver=$!
}
# start_and_see WINDOW ARGUMENT...: and waits until the window (an id, or root) shows a sky.
start_and_see() {
  local window=$1; shift
  start_saver "$@"
  until_true 10 shows_sky "$window"
}
# second_gives_way DISPLAY FRAMES_ADVANCE...: while the saver runs, a second one ends at once and says why.
second_gives_way() {
  local display=$1 second; shift
  timeout 10 "$lunaria" >"$work/second" 2>&1
  second=$?
  same "a second run gives way" "0 Lunaria already runs on display $display" "$second $(cat "$work/second")"
  check "the first one goes on" "$@"
}
# await_saver SECONDS: sets code to the exit code once the program has ended, to "running" where it has not.
await_saver() {
  code=running
  if until_true "$1" gone_or_zombie "$saver"; then wait "$saver"; code=$?; saver=; fi
}
gone_or_zombie() { [ "$(sed 's/.*) //; s/ .*//' "/proc/$1/stat" 2>/dev/null || echo Z)" = Z ]; }
# end_saver [SIGNAL]: sends it, sets code and milliseconds until the program had gone.
end_saver() {
  local start; start=$(date +%s%N)
  if ! kill -"${1:-TERM}" "$saver" 2>/dev/null; then
    wait "$saver"
    not_ok "the saver runs until it is told to end" "it ended before, with exit code $?"
    tail -12 "$log"
    start=0
  fi
  wait "$saver"; code=$?
  milliseconds=$((($(date +%s%N) - start) / 1000000))
  saver=
}

# The saver's time on the processor in nanoseconds, without the threads of sounds and reports.
busy() { cut -d' ' -f1 "/proc/$saver/task/$saver/schedstat"; }
# idles NAME: next to nothing is done for two seconds. The times that the saver is woken are counted, since they stay the
# same where the machine is slow: fifty a second and more where it draws. So much time as a loop without a rest takes
# is seen by the processor's time.
idles() {
  local woken before
  woken=$(wakes); before=$(busy)
  sleep 2 # the rest is what is tried
  at_most "$1: times that it is woken in two seconds" 20 $(($(wakes) - woken))
  at_most "$1: hundredths of the processor" 20 $((($(busy) - before) / 20000000))
}
wakes() { awk '/^voluntary_ctxt_switches/ {print $2}' "/proc/$saver/task/$saver/status"; }

# Colours that a window shows, and a word that changes with every frame.
colours() { "$helper" pixels "$1" | cut -d' ' -f2; }
frame() { "$helper" pixels "$1" | cut -d' ' -f1; }
shows_sky() { [ "$(colours "$1")" -gt 20 ]; }
frame_is_not() { [ "$(frame "$1")" != "$2" ]; }
frames_advance() { until_true 5 frame_is_not "$1" "$(frame "$1")"; }

# nothing_of COLOUR PICTURE [OPTION...]: whether a picture, or a part of it, shows nothing of a surface of this colour. A
# few stars may have the colour by chance; a strip of one pixel along a monitor is more.
nothing_of() {
  local colour=$1 count; shift
  count=$(convert "$@" -depth 8 -format %c histogram:info:- | grep -i "$colour" | awk '{sum += $1} END {print sum + 0}')
  [ "$count" -lt 300 ]
}

# pixels_moved PROCESS WINDOW PAUSE: how many pixels of the screen differ between what a saver shows when it is stopped
# and its first frame when it has gone on after so many seconds. pixels_moved_in SECONDS: while it runs.
pixels_moved() {
  local halted
  kill -STOP "$1"
  import -window root "$work/halt.png"
  halted=$(frame "$2")
  sleep "$3" # the pause is what is tried
  kill -CONT "$1"
  until_true 5 frame_is_not "$2" "$halted"
  kill -STOP "$1"
  import -window root "$work/next.png"
  kill -CONT "$1"
  differing
}
pixels_moved_in() {
  import -window root "$work/halt.png"
  sleep "$1" # the time is what is tried
  import -window root "$work/next.png"
  differing
}
differing() { compare -metric AE "$work/halt.png" "$work/next.png" null: 2>&1; }
# goes_on_where_it_stopped PROCESS WINDOW: a pause of two seconds moves far less than two seconds of its run do. Best of
# three, since a message may begin to fly in any frame.
goes_on_where_it_stopped() {
  local step least=999999999 run=0
  for _ in 1 2 3; do
    step=$(pixels_moved "$1" "$2" 2)
    least=$((step < least ? step : least))
    step=$(pixels_moved_in 2)
    run=$((step > run ? step : run))
  done
  echo "        pixels that differ after a pause: $least, after a run of that time: $run"
  [ "$run" -gt 2000 ] && [ $((least * 4)) -lt "$run" ]
}

# start_window GEOMETRY [DEPTH|input-only]: a window of another program; sets window. tell_window LINE.
start_window() {
  coproc foreign { "$helper" window "$@"; }
  read -r window <&"${foreign[0]}"
}
tell_window() { echo "$1" >&"${foreign[1]}"; read -r answer <&"${foreign[0]}"; }
end_window() { echo end >&"${foreign[1]}"; wait "$foreign_PID" 2>/dev/null; }

# The lines of the log without levels, marks, stamps and blank lines.
log_entries() { sed -n 's/^[A-Za-z]*>\t\(| \)*//p' "$log"; }
