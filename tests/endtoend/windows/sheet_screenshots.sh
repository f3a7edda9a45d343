#!/usr/bin/env bash
# Makes a picture of each page of the settings under Wine, for a person to look at, and checks that each shows
# something else. The settings in the Wine prefix (LUNARIA_WINEPREFIX) are overwritten.
# Usage: sheet_screenshots.sh PICTURES [DPI [PROGRAM]]   (default: 96, build/windows/bin/Lunaria.scr)
set -u
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../../.." && pwd)
mkdir -p "${1:?Usage: sheet_screenshots.sh PICTURES [DPI [PROGRAM]]}" && out=$(cd "$1" && pwd) || exit 1
dpi=${2:-96}
program=$(realpath "${3:-$root/build/windows/bin/Lunaria.scr}")
[ -e "$program" ] || { echo "$program is not built" >&2; exit 2; }
. "$here/harness.sh"
screen=1280x1024
pages=(Moon Messages Background Sounds Quotes Power Startup About)

set_dpi() {
  "$run" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null 2>&1
  WINEPREFIX=$LUNARIA_WINEPREFIX wineserver -w
}
# A window is on the screen a moment before all of it is painted: two looks must show the same.
takes_picture() {
  local sheet before=$out/before.png
  sheet=$(xdotool search --onlyvisible --name '^Lunara 5.4.1 $' 2>/dev/null) && [ -n "$sheet" ] &&
    import -window "$sheet" "$before" && read -r -t 0.1 <> <(:)
  [ -n "$sheet" ] && import -window "$sheet" "$1" && [ "$(identify -format %k "$1")" -gt 20 ] &&
    [ "$(differing_pixels "$before" "$1")" = 0 ]
}

start_display
prepare_prefix
settings=$(WINEPREFIX=$LUNARIA_WINEPREFIX winepath -u "$("$run" cmd /c 'echo %APPDATA%' | tr -d '\r')" 2>/dev/null)
settings="$settings/Lunaria software/Lunaria screensaver.ini"
mkdir -p "$(dirname "$settings")"
[ "$dpi" = 96 ] || set_dpi "$dpi"
for page in "${!pages[@]}"; do
  picture=$out/windows-$dpi-$page-${pages[page]}.png
  echo "activeDialogTab=$page" >"$settings"
  start_saver /c
  check "${pages[page]} shows something" wait_until 30 takes_picture "$picture"
  xdotool key Escape
  check "${pages[page]} is closed" wait_for_end 10
done
[ "$dpi" = 96 ] || set_dpi 96
rm -f "$out/before.png" "$out/xvfb.txt"
check "no two pages are alike" [ "$(identify -format '%#\n' "$out/windows-$dpi-"*.png | sort -u | wc -l)" = "${#pages[@]}" ]
echo "$((checks - failures)) passed, $failures failed"
[ "$failures" = 0 ]
