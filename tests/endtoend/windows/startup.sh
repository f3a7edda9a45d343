# The old television at the start: it begins with the desktop that was there, and leads to the sky.
# shellcheck shell=bash
# It is sourced by run_windows.sh.
dark='#050510'
white='#FFFFFF'

# column, row and colour: how many pixels of the screenshot's middle column or row have the colour.
in_column() { convert "$1" -crop 1x600+400+0 +repage -depth 8 txt:- | grep -c "$2"; }
in_row() { convert "$1" -crop 800x1+0+300 +repage -depth 8 txt:- | grep -c "$2"; }

# Stops the saver again and again, with a look at the screen each time, until the log says that it is over.
record() {  # NAME
  local end=$((SECONDS + 120)) shot
  recorded=()
  while [ $SECONDS -lt $end ]; do
    shot=$(printf '%s-%03d' "$1" "${#recorded[@]}")
    kill -STOP "$saver"
    screenshot "$shot"
    recorded+=("$out/$shot.png")
    kill -CONT "$saver"
    grep -q 'mPreserveDeskopContents = false;' "$log" 2>/dev/null && return 0
    # Long enough for a tick of the saver's timer, and for its frame.
    read -r -t 0.03 <> <(:)
  done
  return 1
}

# What the recorded screens show: counts of those with bands, with the line, with the dot; and the first with bands.
survey() {
  local shot dark_rows line dot
  bands=0 lines=0 dots=0 first_band=''
  for shot in "${recorded[@]}"; do
    dark_rows=$(in_column "$shot" "$dark")
    line=$(in_row "$shot" "$white")
    dot=$(in_column "$shot" "$white")
    if [ "$dark_rows" -gt 0 ] && [ "$dark_rows" -lt 599 ] && [ "$line" = 0 ]; then
      bands=$((bands + 1))
      [ -n "$first_band" ] || first_band=$shot
    fi
    [ "$line" -gt 60 ] && [ "$dot" -le 1 ] && lines=$((lines + 1))
    [ "$dot" -gt 1 ] && [ "$dot" -lt 50 ] && [ "$line" = "$dot" ] && dots=$((dots + 1))
  done
}

settings=$(WINEPREFIX=$LUNARIA_WINEPREFIX winepath -u "$("$run" cmd /c 'echo %APPDATA%' | tr -d '\r')" 2>/dev/null)
settings="$settings/Lunaria software/Lunaria screensaver.ini"
mkdir -p "$(dirname "$settings")"
printf 'startupEffect=1\nbackground=0\n' > "$settings"
convert -size "$screen" -seed 7 plasma:steelblue-orange -depth 8 "$out/desktop.png"
display -window root "$out/desktop.png"
screenshot before
check "startup: the desktop is a picture" [ "$(identify -format '%k' "$out/before.png")" -gt 1000 ]
start_saver /s
check "startup: it is over" record startup
check "startup: it is the saver's own process that stops" grep -qa Lunaria.scr "/proc/$saver/cmdline"
check "startup: the sky moves" wait_until 30 frames_differ
screenshot startup
check "startup: stars on a dark sky" is_sky "$out/startup.png"
survey
check "startup: bands close in ($bands looks)" [ "$bands" -ge 2 ]
check "startup: a line shrinks ($lines looks)" [ "$lines" -ge 2 ]
check "startup: a dot shrinks ($dots looks)" [ "$dots" -ge 2 ]
check "startup: it begins with the desktop" [ "$(differing_pixels "$out/before.png" "${recorded[0]}")" = 0 ]
rows=$(($(in_column "${first_band:-/dev/null}" "$dark") / 2))
check "startup: between the bands the desktop stands as it was" [ "$(convert "$first_band" "$out/before.png" \
  -crop "800x$((600 - 2 * rows))+0+$rows" +repage -metric AE -compare -format '%[distortion]' info:)" = 0 ]
xdotool key a
check "startup: ends" wait_for_end 10
keep_log startup
check "startup: the log tells of it in order" log_in_order 'Creating TnoctisWorld with monitorId =0' \
  'cWindowTransitionEffect_base.initWithWindow()' 'Entering: initializeWorld()' 'mPreserveDeskopContents = false;' \
  'Deleted startupEffectPtr' 'xplLog closing'
rm -f "$settings" "${recorded[@]}" "$out/before.png" "$out/desktop.png"
xsetroot -solid black
