# For scripts in which the programs of a desktop start the saver: they run as an ordinary user, also when the script is
# run by the super user, for whom some start nothing. Source it after lib.sh: it sets lunaria to a copy which that user
# reaches, and gives the folders of lib.sh to that user.
source=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../.." && pwd)
as_user=()
mkdir "$work/bin"
mkdir -m 700 "$work/run"
install -m 755 "$lunaria" "$work/bin/lunaria"
lunaria=$work/bin/lunaria
chmod 711 "$work"
if [ "$(id -u)" -eq 0 ]; then
  as_user=(setpriv --reuid=games --regid=games --clear-groups)
  chown games: "$HOME" "$TMPDIR" "$work/run"
fi
# user COMMAND...: as that user. start_as_user COMMAND... &: $! is then the process of the program itself.
user() { "${as_user[@]}" env XDG_RUNTIME_DIR="$work/run" "$@"; }
start_as_user() { exec "${as_user[@]}" env XDG_RUNTIME_DIR="$work/run" "$@"; }

# savers_folder_with_ours: in a name space of our own, the folder of savers holds ours and no other.
savers_folder_with_ours() {
  mkdir -m 755 "$work/savers"
  cp -a /usr/libexec/xscreensaver/xscreensaver-* "$work/savers"
  ln -s "$lunaria" "$work/savers/lunaria"
  mount --bind "$work/savers" /usr/libexec/xscreensaver
}

# child PROCESS NAME: its children of this name. arguments, variable: of a process.
child() { pgrep -P "$1" -x "$2"; }
arguments() { tr '\0' ' ' <"/proc/$1/cmdline"; }
variable() { tr '\0' '\n' <"/proc/$1/environ" | sed -n "s/^$2=//p"; }
# ends PROCESS: waits until it has gone; milliseconds is how long that took.
ends() {
  local start; start=$(date +%s%N)
  until_true 5 gone_or_zombie "$1"
  milliseconds=$((($(date +%s%N) - start) / 1000000))
}
quietly() { "$@" >"$work/out"; }
not() { ! "$@"; }
