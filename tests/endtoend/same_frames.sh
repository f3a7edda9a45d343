#!/usr/bin/env bash
# The Linux and the Windows renderer print the same frames for each background: 3,000 on the one that people
# see first, long enough for four messages, and 200 on the others. No text is drawn: its pixels are each
# platform's own.
set -euo pipefail
cd "$(dirname "$0")/../.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

hidden_text() {  # the sky without its words, for a background
  printf '%s\n' "background=$1" bottomline1= bottomline2= 'message1=Good night\r\nsleep well' message2=Moonlight \
    messagesCount=2 msg_defaultMessagesAdded=yes showMoonPhaseName=no showMoonPhasePercentAndDegrees=no \
    showNotableDates=no
}

for background in 3 0 1 2; do
  frames=200
  [ "$background" -ne 3 ] || frames=3000
  options=(--size 480x270 --seed 20 --time 2026-11-21T20:00:00 --at 0 --frames "$frames" --hashes)
  hidden_text "$background" > "$work/settings.ini"
  build/linux/bin/lunaria-render "${options[@]}" --settings "$work/settings.ini" > "$work/linux.txt"
  tests/wine/run build/windows/bin/lunaria-render.exe "${options[@]}" --settings "$(cd "$work" && pwd)/settings.ini" |
    tr -d '\r' > "$work/windows.txt"
  [ "$(wc -l < "$work/linux.txt")" -eq "$frames" ] || { echo "background $background: not $frames lines"; exit 1; }
  # A sky that stands still would be the same everywhere.
  [ "$(cut -d' ' -f3 "$work/linux.txt" | sort -u | wc -l)" -gt $((frames / 2)) ] || { echo "the frames hardly change"; exit 1; }
  if ! diff -q "$work/linux.txt" "$work/windows.txt" > /dev/null; then
    echo "background $background differs first at:"
    diff "$work/linux.txt" "$work/windows.txt" | head -4
    exit 1
  fi
  echo "background $background: $frames frames are the same"
done
