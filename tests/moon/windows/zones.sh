#!/usr/bin/env bash
# Runs the moon's tests of each zone under Wine, which takes the zone from the environment when it starts.
# Usage: tests/moon/windows/zones.sh TEST_MOON.EXE
set -uo pipefail
here=$(cd "$(dirname "$0")/../../.." && pwd)
for zone in Asia/Kolkata America/St_Johns Pacific/Auckland; do
  city=${zone#*/}
  output=$(TZ=$zone "$here/tests/wine/run" "$1" --gtest_filter="*${city/_/}*" 2>&1)
  status=$?
  # A run that skipped or found nothing has tried nothing.
  if [ $status -ne 0 ] || grep -qE 'SKIPPED|PASSED  \] 0 tests' <<< "$output"; then
    printf '%s\n%s: failed (status %s)\n' "$output" "$zone" "$status"
    exit 1
  fi
  printf '%s: %s\n' "$zone" "$(grep PASSED <<< "$output")"
done
