#!/usr/bin/env bash
# The signals that end the saver, at any moment, and the one that only stops it for a while.
. "$(dirname "$0")/lib.sh"
start_display 1280x720x24
start_window 320x200+100+80

for signal in TERM INT HUP; do
  for mode in /s "/p $window" "--window 400x300"; do
    place=root
    [ "$mode" = "/p $window" ] && place=$window
    # shellcheck disable=SC2086
    start_and_see "$place" $mode
    end_saver "$signal"
    same "SIG$signal ends $mode" 0 "$code"
    at_most "SIG$signal, $mode: gone within 100 ms" 100 "$milliseconds"
    same "SIG$signal, $mode: the window was closed" 1 "$(grep -c 'received WM_CLOSE' "$log")"
    same "SIG$signal, $mode: the window was destroyed" 1 "$(grep -c 'received  WM_DESTROY' "$log")"
    same "SIG$signal, $mode: the log is complete" $'Info>\txplLog closing' "$(tail -1 "$log")"
    check "SIG$signal, $mode: nothing on standard error" test ! -s "$work/err"
    [ "$place" = root ] || { tell_window "resize 321x200"; tell_window "resize 320x200"; }
  done
done

# During the start: whenever the signal comes, the process goes and the log that was begun is complete.
complete=0
for delay in 0.000 0.002 0.004 0.006 0.008 0.010 0.015 0.020 0.030 0.050; do
  start_saver /s
  sleep "$delay" # the moment is what is tried
  end_saver
  if [ ! -e "$log" ] || [ "$(tail -1 "$log")" = $'Info>\txplLog closing' ] && [ "$milliseconds" -le 250 ]; then
    complete=$((complete + 1))
  else
    echo "        after $delay s: code $code, $milliseconds ms"; tail -2 "$log"
  fi
done
same "a signal at any moment of the start" 10 "$complete"

# The display that does not answer any more does not keep the saver.
start_and_see root /s
kill -STOP "$server"
end_saver
kill -CONT "$server"
same "SIGTERM while the display stands still" 0 "$code"
at_most "gone within 100 ms all the same" 100 "$milliseconds"

# Ticks that were missed are not caught up.
start_and_see root /s
before=$(awk '{print $14 + $15}' "/proc/$saver/stat")
kill -STOP "$saver"
sleep 3 # the pause is what is tried
kill -CONT "$saver"
frames_advance root
after=$(awk '{print $14 + $15}' "/proc/$saver/stat")
at_most "a pause of 75 ticks is not caught up (hundredths of a second of processor time)" 10 $((after - before))
check "and makes no jump" goes_on_where_it_stopped "$saver" root
end_saver
end_window
