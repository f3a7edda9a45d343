#!/usr/bin/env bash
# The Linux and the Windows renderer print the same 1,000 frames for each background.
set -euo pipefail
cd "$(dirname "$0")/../.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
options=(--size 480x270 --seed 20 --time 2026-11-21T20:00:00 --at 0 --frames 1000 --hashes)
for background in 0 1 2 3; do
  echo "background=$background" > "$work/settings.ini"
  build/linux/bin/lunaria-render "${options[@]}" --settings "$work/settings.ini" > "$work/linux.txt"
  tests/wine/run build/windows/bin/lunaria-render.exe "${options[@]}" --settings "$(cd "$work" && pwd)/settings.ini" |
    tr -d '\r' > "$work/windows.txt"
  [ "$(wc -l < "$work/linux.txt")" -eq 1000 ] || { echo "background $background: no 1,000 lines"; exit 1; }
  # A sky that stands still would be the same everywhere.
  [ "$(cut -d' ' -f3 "$work/linux.txt" | sort -u | wc -l)" -gt 500 ] || { echo "the frames hardly change"; exit 1; }
  if ! diff -q "$work/linux.txt" "$work/windows.txt" > /dev/null; then
    echo "background $background differs first at:"
    diff "$work/linux.txt" "$work/windows.txt" | head -4
    exit 1
  fi
  echo "background $background: 1,000 frames are the same"
done
