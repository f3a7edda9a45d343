#!/usr/bin/env bash
# Environments that lack what a session usually has.
. "$(dirname "$0")/lib.sh"
start_display 640x480x24

# runs NAME COMMAND...: the command starts the saver, which must show the sky and end in order.
runs() {
  local name=$1; shift
  "$@" >"$work/out" 2>"$work/err" &
  saver=$!
  check "$name: the sky is there" until_true 10 shows_sky root
  check "$name: frames advance" frames_advance root
  end_saver
  same "$name: ends in order" 0 "$code"
  check "$name: nothing on standard error" test ! -s "$work/err"
}

runs "nothing but PATH and DISPLAY" env -i PATH="$PATH" DISPLAY="$DISPLAY" "$lunaria"
runs "no home folder" env HOME="$work/nowhere" "$lunaria"
runs "no HOME" env -u HOME "$lunaria"
runs "an empty HOME" env HOME= "$lunaria"
mkdir -m 500 "$work/locked"
runs "a temporary folder without rights" env TMPDIR="$work/locked" HOME="$work/locked" "$lunaria"
runs "a temporary folder that is not there" env TMPDIR="$work/nowhere" "$lunaria"
runs "a temporary folder that is a file" env TMPDIR="$lunaria" HOME="$lunaria" "$lunaria"
if [ "$(id -u)" = 0 ] && command -v setpriv >/dev/null; then
  # Rights mean nothing to the administrator: tried as nobody.
  chmod 711 "$work"
  runs "nobody, without any folder of its own" setpriv --reuid=65534 --regid=65534 --clear-groups \
    env -i PATH="$PATH" DISPLAY="$DISPLAY" TMPDIR="$work/locked" HOME="$work/locked" "$lunaria"
fi
runs "closed input and output" sh -c "exec '$lunaria' <&- >&-"
runs "another locale" env LC_ALL=C.UTF-8 LANG=C.UTF-8 "$lunaria"
