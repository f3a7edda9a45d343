# The record of use: a full run of more than 23 seconds adds one line to a file of this computer's.
# shellcheck shell=bash
# It is sourced by run_windows.sh, which has started the display and the prefix.
usage_file() {
  local folder
  folder=$("$run" cmd /c 'echo %ProgramData%' | tr -d '\r')
  echo "$(WINEPREFIX=$LUNARIA_WINEPREFIX winepath -u "$folder" 2>/dev/null)/Lunaria software/usage.txt"
}

usage=$(usage_file)
rm -f "$usage"
start_saver /s
check "usage: the sky is there" wait_until 60 window_is Lunaria 0,0 "$screen"
check "usage: nothing is noted at first" [ ! -e "$usage" ]
check "usage: a run of half a minute is noted" wait_until 60 [ -s "$usage" ]
xdotool key a
check "usage: the run ends" wait_for_end 10
check "usage: with one line" [ "$(wc -l <"$usage")" = 1 ]
check "usage: of times, version and build, and nothing else" grep -qE \
  '^start=[0-9T:-]+Z stop=[0-9T:-]+Z version=5\.4\.1 build=[A-Z][a-z]{2} [ 0-9]{2} [0-9]{4}  [0-9:]{8}.?$' "$usage"
