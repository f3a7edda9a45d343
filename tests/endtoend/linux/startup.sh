#!/usr/bin/env bash
# The old television at the start: it begins with the desktop that was there, and leads to the sky.
. "$(dirname "$0")/lib.sh"
start_display 1280x720x24
settings=$HOME/.config/"Lunaria software"
mkdir -p "$settings"
choose_effect() { printf 'startupEffect=%s\nbackground=0\n' "$1" >"$settings/Lunaria screensaver.ini"; }
choose_effect 1

convert -size 1280x720 -seed 7 plasma:steelblue-orange -depth 8 "$work/desktop.png"
display -window root "$work/desktop.png"
import -window root "$work/before.png"
check "the desktop is a picture" test "$(identify -format '%k' "$work/before.png")" -gt 100000

# The desktop has many more colours than any sky.
sky_has_come() {
  local count
  count=$(colours root)
  [ "$count" -gt 20 ] && [ "$count" -lt 20000 ]
}
# is_seen CONDITION: looks until the cross through the middle shows what is wanted (of dark, row and column).
is_seen() {
  local dark row column
  while read -r _ dark row column; do
    (($1)) && return 0
  done < <("$helper" cross 3)
  return 1
}
# catch CONDITION FILE: a run that is stopped when the condition holds, and what the screen shows then. On a busy
# machine the next frame may come before the stop: then once more.
catch() {
  local caught=1
  for _ in 1 2 3 4 5; do
    start_saver
    is_seen "$1"
    kill -STOP "$saver"
    # shellcheck disable=SC2034
    read -r _ dark row column < <("$helper" cross 0)
    (($1)) && caught=0 && import -window root "$2"
    kill -CONT "$saver"
    end_saver
    [ "$caught" = 0 ] && return
  done
  return 1
}
# differing TOP HEIGHT FILE: pixels of these rows that are not the desktop's.
differing() {
  convert "$3" "$work/before.png" -crop "1280x$2+0+$1" +repage -metric AE -compare -format '%[distortion]' info:
}
# colours_of_rows TOP HEIGHT FILE
colours_of_rows() { convert "$3" -crop "1280x$2+0+$1" +repage -format '%k' info:; }

"$helper" cross 4 >"$work/looks" &
looking=$!
start_saver
wait "$looking"
check "the sky comes" until_true 10 sky_has_come
same "the first look is the desktop" "0 0 0" "$(head -1 "$work/looks" | cut -d' ' -f2-)"
# Ten frames of bands, each 36 pixels more at the top and the bottom. A look may fall between the two.
check "the bands close in steps" awk '
  $4 > 0 || $2 == 720 {exit}
  $2 % 36 != 0 || $2 < before {bad = 1}
  $2 > before {steps++; before = $2}
  END {exit bad || steps < 4}' "$work/looks"
# The line loses 80 pixels at each end in a frame, and is wiped out before it is drawn again.
check "then a line shrinks" awk '
  BEGIN {before = 1281}
  $3 > 60 && ($3 > before || $3 % 160 != 0) {bad = 1}
  $3 > 60 && $3 < before {steps++; before = $3}
  END {exit bad || steps < 3}' "$work/looks"
check "then a dot shrinks" awk '
  BEGIN {before = 50}
  $2 >= 600 && $3 > 0 && $3 < 60 {if ($3 > before) bad = 1; if ($3 < before) steps++; before = $3}
  END {exit bad || steps < 3}' "$work/looks"
end_saver
same "a signal ends it" 0 "$code"

for sharing in 0 1; do
  name="without shared memory: "
  [ "$sharing" = 0 ] && name=
  export LUNARIA_NO_SHM=$sharing
  check "${name}the first band is caught" catch 'dark > 0 && dark < 360' "$work/band.png"
  same "${name}between the bands the desktop stands as it was" 0 "$(differing 180 360 "$work/band.png")"
  check "${name}the middle of the bands is caught" catch 'dark >= 360 && dark < 648' "$work/half.png"
  same "${name}the top is covered" 1 "$(colours_of_rows 0 144 "$work/half.png")"
  same "${name}the bottom is covered" 1 "$(colours_of_rows 576 144 "$work/half.png")"
  same "${name}the middle is not" 0 "$(differing 324 72 "$work/half.png")"
  check "${name}the line is caught" catch 'row > 60 && column == 1' "$work/line.png"
  same "${name}a white line on dark" 2 "$(identify -format '%k' "$work/line.png")"
  check "${name}the dot is caught" catch 'dark > 600 && row > 0 && row < 60 && row == column' "$work/dot.png"
  same "${name}a white dot with a black rim on dark" 3 "$(identify -format '%k' "$work/dot.png")"
  start_saver
  check "${name}and then the sky" until_true 10 sky_has_come
  end_saver
done
export LUNARIA_NO_SHM=0

cat >"$work/expected" <<'LINES'
Creating TnoctisWorld with monitorId =0
cWindowTransitionEffect_base.initWithWindow()
Entering: initializeWorld()
Exiting: initializeWorld()
mPreserveDeskopContents = false;
Deleted startupEffectPtr
Deleted ncWorldPtr
xplLog closing
xplLog closing
LINES
log_entries | grep -xFf "$work/expected" >"$work/actual"
check "the log tells of it in order" diff "$work/expected" "$work/actual"
same "the log has no error" 0 "$(grep -c '^ERROR' "$log")"

# Input ends the run while it plays.
start_saver
check "it plays" is_seen 'dark >= 72'
xdotool key a
await_saver 5
same "a key ends it while it plays" 0 "$code"
same "the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"
import -window root "$work/after.png"
same "the desktop is there again" 0 "$(differing 0 720 "$work/after.png")"

choose_effect 0
start_saver
check "without the effect the sky comes" until_true 10 sky_has_come
check "and nothing is said of one" sh -c "! grep -q 'cWindowTransitionEffect_base\|mPreserve' '$log'"
end_saver
choose_effect 1

start_window 152x112+20+30
start_and_see "$window" --window-id "$window"
check "it plays in the window of another program" until_true 10 logged 'mPreserveDeskopContents = false;'
end_saver
end_window

for size in 1x1 1x2000 2x19 15x15 64x48; do
  start_saver --window "$size"
  check "in a window of $size it ends" until_true 20 logged 'mPreserveDeskopContents = false;'
  end_saver
  same "$size: it ends in order" "0 1" "$code $(grep -c 'Deleted ncWorldPtr' "$log")"
done
true
