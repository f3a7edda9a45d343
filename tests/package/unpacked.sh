# Installs the packages into a scratch root, starts the programs from there, and removes them. package.sh sources it.

# in_root ARGUMENT...: dpkg with a data base of its own; the libraries are those of this machine. It unpacks man pages
# also where the machine is set up to have none.
in_root() {
  tells env PATH="$PATH:/usr/sbin:/sbin" fakeroot dpkg --root="$root" --force-depends --force-script-chrootless \
    --log=/dev/null --path-include='/*' "$@"
}
files_in_root() { (cd "$root" && find . -path ./var/lib/dpkg -prune -o ! -type d -print | sort); }
sheet_is_shown() { xdotool search --onlyvisible --name '^Lunara .* $'; }

# starts_from NAME PROGRAM: the version, and a sky in a window.
starts_from() {
  same "$1: version" "lunaria $version" "$("$2" --version)"
  lunaria=$2
  start_and_see root --window 320x200
  check "$1: the sky in a window" shows_sky root
  window=$(xwininfo -root -children | awk '/"Lunaria"/ {print $1}')
  check "$1: frames advance" frames_advance "$window"
  end_saver
  same "$1: ends in order" 0 "$code"
}

# as_daemons_start_it: the commands of the theme for MATE and of the description for XScreenSaver, in its window and as
# the preview in its settings.
as_daemons_start_it() {
  local command
  read -ra command < <(sed -n 's/^Exec=//p' "$root/usr/share/applications/screensavers/lunaria.desktop")
  lunaria=$root${command[0]}
  start_window 640x480+0+0
  XSCREENSAVER_WINDOW=$window start_and_see "$window" "${command[@]:1}"
  check "in a daemon's window: frames advance" frames_advance "$window"
  end_saver
  same "in a daemon's window: ends in order" 0 "$code"
  end_window

  command=("$(xmllint --xpath 'string(/screensaver/command/@arg)' "$root/usr/share/xscreensaver/config/lunaria.xml")")
  start_window 200x150+0+0
  start_and_see "$window" "${command[@]}" --window-id "$(printf '0x%x' "$((window))")"
  check "as the preview: frames advance" frames_advance "$window"
  end_saver
  same "as the preview: ends in order" 0 "$code"
  end_window
}

try_in_scratch_root() {
  root=$work/root
  mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
  touch "$root/var/lib/dpkg/status"
  check "they can be installed" in_root -i "$@"
  same "with all their files" "$(cat "$here"/contents-* | sed 's/ ->.*//; s/.* //' | LC_ALL=C sort)" \
    "$(files_in_root | LC_ALL=C sort)"
  start_display 640x480x24
  starts_from "the program" "$root/usr/bin/lunaria"
  starts_from "the savers' folder" "$root/usr/libexec/xscreensaver/lunaria"
  same "lunaria-render: version" "lunaria-render $version" "$("$root/usr/bin/lunaria-render" --version)"
  as_daemons_start_it

  lunaria=$root/usr/libexec/xscreensaver/lunaria
  start_saver --configure
  check "started in the savers' folder it finds its settings" until_true 20 sheet_is_shown
  xdotool windowfocus --sync "$(sheet_is_shown)" key Escape
  await_saver 10
  same "which end" 0 "$code"

  same "it knows nothing of XScreenSaver yet" "" "$(find "$HOME" -maxdepth 1 -name .xscreensaver)"
  check "it makes itself XScreenSaver's saver" tells "$root/usr/bin/lunaria" --install-xscreensaver
  check "under the name of the installed program" grep -qF "$root/usr/bin/lunaria --root" "$HOME/.xscreensaver"
  check "it takes itself out again" tells "$root/usr/bin/lunaria" --uninstall-xscreensaver
  same "without a trace of that" "" "$(find "$HOME" -name '*xscreensaver*')"
  tells "$root/usr/bin/lunaria" --install-xscreensaver
  cp "$HOME/.xscreensaver" "$work/preferences"

  lunaria=$root/usr/bin/lunaria
  start_and_see root
  check "they can be removed, also while the saver runs" in_root --purge lunaria lunaria-configure
  same "without a trace" "" "$(files_in_root)$(cd "$root" && find . -path ./var -prune -o -type d ! -name . -print)"
  check "the saver goes on" frames_advance root
  xdotool key a
  await_saver 5
  same "and ends in order" 0 "$code"
  check "and without a change to the user's files" cmp "$work/preferences" "$HOME/.xscreensaver"
}
