#!/usr/bin/env bash
# Makes a picture of each page of the settings, for a person to look at, and checks that each shows something else.
# Usage: LUNARIA_BIN=FOLDER sheet_screenshots.sh [PICTURES [light|dark [SCALE]]]; without PICTURES they are not kept.
[ -z "${1:-}" ] || { mkdir -p "$1" && pictures=$(cd "$1" && pwd) || exit 1; }
here=$(cd "$(dirname "$0")" && pwd)
. "$here/lib.sh"
pictures=${pictures:-$work}
colours=${2:-light}
export QT_SCALE_FACTOR=${3:-1}
configure=("$bin/lunaria-configure")
[ "$colours" = light ] || configure=(/usr/bin/python3 "$here/darkPortal.py" "${configure[@]}")
settings="$HOME/.config/Lunaria software/Lunaria screensaver.ini"
mkdir -p "$(dirname "$settings")"
pages=(Moon Messages Background Sounds Quotes Power Startup About)

sheet_is_shown() { sheet=$(xdotool search --onlyvisible --name '^Lunara 5.4.1 $') && [ -n "$sheet" ]; }
# A window is on the screen a moment before all of it is painted: two looks must show the same.
takes_picture() {
  sheet_is_shown && import -window "$sheet" "$work/before.png" && import -window "$sheet" "$1" &&
    [ "$(identify -format %k "$1")" -gt 20 ] && cmp -s <(convert "$work/before.png" rgb:-) <(convert "$1" rgb:-)
}

unset WAYLAND_DISPLAY QT_QPA_PLATFORM DBUS_SESSION_BUS_ADDRESS
start_display 1920x1440x24
for page in "${!pages[@]}"; do
  picture=$pictures/linux-$colours-$QT_SCALE_FACTOR-$page-${pages[page]}.png
  echo "activeDialogTab=$page" >"$settings"
  "${configure[@]}" >"$work/out" 2>"$work/err" &
  saver=$!
  check "${pages[page]} shows something" until_true 10 takes_picture "$picture"
  xdotool windowfocus --sync "$sheet" key Escape
  await_saver 5; same "${pages[page]} is closed: exit code" 0 "$code"
done
same "no two pages are alike" "${#pages[@]}" \
  "$(identify -format '%#\n' "$pictures/linux-$colours-$QT_SCALE_FACTOR-"*.png | sort -u | wc -l)"
