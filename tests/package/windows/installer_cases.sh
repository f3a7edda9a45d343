# Installing over another version, without rights, on an old Windows, and while a saver runs.
# shellcheck shell=bash
# It is sourced by windows_installer.sh.
installed_version() { reg_value "$uninstall_key" DisplayVersion; }
saver_ends_with() { [ "$(tail -c ${#1} "$saver_file" | tr -d '\0')" = "$1" ]; }
is_ours() { cmp -s "$build/installer/Lunaria.scr" "$saver_file"; }

older=$(make_installer 5.4.0 older)
newer=$(make_installer 55.0.0 newer)
check "an older version: installs" [ "$(setup_of "$older" /S)" = 0 ]
check "an older version: its saver" saver_ends_with older
check "over an older version: exit code 0" [ "$(setup /S)" = 0 ]
check "over an older version: the new saver" is_ours
check "over an older version: the list of apps" [ "$(installed_version)" = "$version" ]
keep_state once
check "over the same version: exit code 0" [ "$(setup /S)" = 0 ]
keep_state twice
check "over the same version: the same files" [ -z "$(added_files once twice)" ]
check "over the same version: the same registry" same_part once twice ''

check "a newer version: installs" [ "$(setup_of "$newer" /S)" = 0 ]
check "over a newer version: exit code 3" [ "$(setup /S)" = 3 ]
check "over a newer version: it stays" saver_ends_with newer
check "over a newer version: the list of apps" [ "$(installed_version)" = 55.0.0 ]
check "with /FORCE: exit code 0" [ "$(setup /S /FORCE)" = 0 ]
check "with /FORCE: the saver" is_ours
check "with /FORCE: the list of apps" [ "$(installed_version)" = "$version" ]

without_rights() { timeout 120 "$run" "$without_rights" "$@" 2>/dev/null | tr -d '\r' | sed -n 's/^exit code //p'; }
check "removing without rights: exit code 4" \
  [ "$(without_rights 'C:\Program Files\Lunaria\Uninstall.exe' /S '_?=C:\Program Files\Lunaria')" = 4 ]
check "removing without rights: the saver stays" is_ours
remove /S /PURGE
check "without rights: exit code 4" [ "$(without_rights "Z:${installer//\//\\}" /S)" = 4 ]
reg_set 'HKCU\Software\Wine' Version winxp64
check "on an old Windows: exit code 5" [ "$(setup /S)" = 5 ]
reg_delete 'HKCU\Software\Wine' Version
keep_state refused
check "refused: no file is left" [ -z "$(added_files before refused)" ]
check "refused: the registry is as before" same_part before refused ''

# A full run is asked to close, and closes in order.
full_run_during() {  # NAME COMMAND...
  local name=$1
  shift
  program='C:\windows\system32\Lunaria.scr'
  start_saver /s
  check "$name: the saver runs" wait_until 60 window_is Lunaria 0,0 "$screen"
  check "$name: exit code 0" [ "$("$@")" = 0 ]
  check "$name: the saver has ended" wait_for_end 10
  check "$name: in order" [ "$exit_code" = 0 ]
}
check "an older version: installs" [ "$(setup_of "$older" /S)" = 0 ]
full_run_during "installing during a full run" setup /S
check "installing during a full run: the new saver" is_ours
keep_log running
check "installing during a full run: the log tells of its end" log_in_order 'received WM_CLOSE' 'received  WM_DESTROY' \
  'xplLog closing'
full_run_during "removing during a full run" remove_in_place /S
check "removing during a full run: the saver has gone" [ ! -e "$saver_file" ]

# Settings that are open stay open: the file makes room, and goes with the next start of Windows.
left_behind() { find "$prefix/drive_c/windows/system32" -name '*.tmp' -newer "$scratch/before.reg"; }
open_settings() {
  start_saver /c
  check "$1: the settings are open" wait_until 60 window_exists "Lunara $version "
}
close_settings() {
  check "$1: the settings are still open" window_exists "Lunara $version "
  xdotool key Return
  check "$1: they end" wait_for_end 10
}
check "an older version: installs" [ "$(setup_of "$older" /S)" = 0 ]
open_settings "installing with open settings"
check "installing with open settings: exit code 3010" [ "$(setup /S)" = 3010 ]
check "installing with open settings: the new saver" is_ours
check "installing with open settings: the old one is there" [ "$(left_behind | wc -l)" = 1 ]
close_settings "installing with open settings"
open_settings "removing with open settings"
check "removing with open settings: exit code 3010" [ "$(remove_in_place /S)" = 3010 ]
check "removing with open settings: no saver" [ ! -e "$saver_file" ]
close_settings "removing with open settings"
settle
"$run" wineboot -r >/dev/null 2>&1
settle
check "the next start of Windows removes what was left" [ -z "$(left_behind)" ]
check "installed once more: exit code 0" [ "$(setup /S)" = 0 ]
remove /S /PURGE
