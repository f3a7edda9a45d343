# The installer and the uninstaller as a person sees them: page after page, by keys.
# shellcheck shell=bash
# It is sourced by windows_installer.sh. Screenshots are kept.
program=$installer
uninstaller='C:\Program Files\Lunaria\Uninstall.exe'
xsetroot -solid '#3a6ea5'

# Whether the screen shows the same in five looks, a tenth of a second apart: a page is drawn bit by bit.
is_still() {
  screenshot still-a
  for _ in 1 2 3 4; do
    read -r -t 0.1 <> <(:)
    screenshot still-b
    [ "$(differing_pixels "$out/still-a.png" "$out/still-b.png")" = 0 ] || return 1
  done
}
# page NAME KEY...: presses the keys, and waits for another picture that stands still.
page() {
  local name=$1
  shift
  screenshot before-key
  [ $# = 0 ] || xdotool key "$@"
  check "$name: the page is shown" wait_until 30 eval 'is_still &&
    [ "$(differing_pixels "$out/before-key.png" "$out/still-b.png")" != 0 ]'
  mv "$out/still-b.png" "$out/$name.png"
}
# The first and the last page have the great picture of the moon at the left, and at the same place; this is not the first.
left_picture() { convert "$1" -crop 140x200+170+150 +repage "$2"; }
shows_moon() {
  is_still || return 1
  left_picture "$out/still-b.png" "$out/moon-now.png"
  left_picture "$out/welcome.png" "$out/moon-then.png"
  [ "$(differing_pixels "$out/moon-now.png" "$out/moon-then.png")" = 0 ] &&
    [ "$(differing_pixels "$out/still-b.png" "$out/welcome.png")" != 0 ]
}
last_page() {  # NAME
  check "$1: the last page is shown" wait_until 60 shows_moon
  mv "$out/still-b.png" "$out/$1.png"
}
start_program() {  # PROGRAM OPTIONS
  screenshot before-start
  exit_code_on_windows "$@" > "$scratch/code" &
  program_job=$!
  check "$1: a window opens" wait_until 30 eval 'is_still &&
    [ "$(differing_pixels "$out/before-start.png" "$out/still-b.png")" != 0 ]'
}
ends_with() {  # CODE
  check "it ends with exit code $1" eval 'wait "$program_job"; [ "$(cat "$scratch/code")" = '"$1"' ]'
}

# By Enter alone it is installed and chosen.
start_program "Z:${installer//\//\\}" ''
shows_night() { screenshot welcome && [ "$(convert "$out/welcome.png" -crop 140x200+170+150 -format '%k' info:)" -gt 60 ]; }
check "welcome: a picture of the night" wait_until 30 shows_night
page choice Return
xdotool key Return
last_page finish
xdotool key Return
ends_with 0
check "by Enter alone: the saver" is_ours
check "by Enter alone: it is chosen" [ "$(chosen)" = "$ours" ]

# Again: there is nothing to choose any more.
start_program "Z:${installer//\//\\}" ''
xdotool key Return
last_page finish-again
xdotool key Return
ends_with 0

# Removing by Enter alone keeps what the user wrote.
mkdir -p "$user_data"
echo 'showMoon=no' > "$user_data/Lunaria screensaver.ini"
start_program "$uninstaller" '_?=C:\Program Files\Lunaria'
cp "$out/still-b.png" "$out/remove.png"
xdotool key Return
last_page removed
xdotool key Return
ends_with 0
check "removed by Enter alone: the saver has gone" [ ! -e "$saver_file" ]
check "removed by Enter alone: no saver is chosen" [ -z "$(chosen)" ]
check "removed by Enter alone: the settings stay" [ -s "$user_data/Lunaria screensaver.ini" ]

# Both questions answered the other way.
start_program "Z:${installer//\//\\}" ''
page choice-other Return
page choice-unticked space
xdotool key Return
last_page finish-other
xdotool key Return
ends_with 0
check "unticked: it is not chosen" [ -z "$(chosen)" ]
start_program "$uninstaller" '_?=C:\Program Files\Lunaria'
page remove-all alt+s
xdotool key alt+r
last_page removed-all
xdotool key Return
ends_with 0
check "ticked: the settings have gone" [ ! -e "$user_data" ]
check "installed once more: exit code 0" [ "$(setup /S)" = 0 ]
remove /S

# What is asked and refused is told.
start_program "Z:${installer//\//\\}" ''
xdotool key Escape
ends_with 1
check "cancelled: nothing is installed" [ ! -e "$folder" ]
check "a newer version: installs" [ "$(setup_of "$newer" /S)" = 0 ]
start_program "Z:${installer//\//\\}" ''
cp "$out/still-b.png" "$out/older.png"
xdotool key Return
ends_with 3
check "Enter keeps the newer version" saver_ends_with newer
remove /S
start_program "Z:${without_rights//\//\\}" "Z:${installer//\//\\}"
cp "$out/still-b.png" "$out/rights.png"
xdotool key Return
ends_with 4
rm -f "$out"/{before-key,before-start,moon-now,moon-then,still-a,still-b}.png
