#!/usr/bin/env bash
# Installs Lunaria under Wine as a person and as a script would, looks at everything that it leaves, and removes it.
# Usage: windows_installer.sh [BUILD_FOLDER]   (default: build/windows; its target windows_installer must be built)
# It works in a copy of the tests' Wine prefix. Screenshots of the pages stay in the build folder, in installer/pages.
set -u
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
build=$(realpath "${1:-$root/build/windows}")
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
installer=$build/installer/Lunaria-$version-setup.exe
without_rights=$build/tests/package/windows/without_rights.exe
out=$build/installer/pages
[ -e "$installer" ] || { echo "$installer is not built" >&2; exit 2; }
. "$root/tests/endtoend/windows/harness.sh"
. "$here/windows/installer_lib.sh"
make_scratch_prefix

check "the installer: at most 4 MB" [ "$(stat -c %s "$installer")" -le 4000000 ]
# tells FILE KEY VALUE: the version resource of a program.
tells() { strings -el "$1" | grep -xF -A1 "$2" | grep -qxF "$3"; }
for file in "$installer" "$build/installer/Lunaria.scr" "$build/installer/Lunaria.exe"; do
  name=$(basename "$file")
  check "$name: product" tells "$file" ProductName 'Lunaria screensaver'
  check "$name: version of the product" tells "$file" ProductVersion "$version"
  check "$name: version of the file" tells "$file" FileVersion "$version"
  check "$name: company" tells "$file" CompanyName 'Lunaria software'
  check "$name: copyright" tells "$file" LegalCopyright 'Copyright (c) 2026 the owner of Lunaria'
  check "$name: needs no library but the system's" no_foreign_library "$file"
  check "$name: stripped" [ "$(x86_64-w64-mingw32-objdump -h "$file" | grep -c '\.debug')" = 0 ]
done
check "the installer describes itself" tells "$installer" FileDescription 'Lunaria installer'
check "it asks for the rights it needs" grep -qa 'requestedExecutionLevel level="requireAdministrator"' "$installer"
for file in "$root/packaging/windows/copyright.txt" "$root/packaging/debian/copyright-beginning"; do
  check "$(basename "$file"): no licence is chosen" grep -q 'The owner has chosen no licence yet' "$file"
done

keep_state before
check "silent: exit code 0" [ "$(setup /S)" = 0 ]
check "silent: the saver" cmp "$build/installer/Lunaria.scr" "$saver_file"
check "silent: what the Start menu starts" cmp "$build/installer/Lunaria.exe" "$folder/Lunaria.exe"
check "silent: the copyright file" cmp "$root/packaging/windows/copyright.txt" "$folder/Copyright.txt"
keep_state installed
check "silent: these files and no others" diff "$here/windows/contents-installed" <(added_files before installed)
check "silent: another saver is not chosen" same_part before installed 'Control Panel'
check "silent: the user's registry is as it was" same_part before installed 'HKEY_CURRENT_USER'

value_is() {  # NAME VALUE
  check "the list of apps: $1" [ "$(reg_value "$uninstall_key" "$1")" = "$2" ]
}
value_is DisplayName 'Lunaria screensaver'
value_is DisplayVersion "$version"
value_is Publisher 'Lunaria software'
value_is DisplayIcon 'C:\Program Files\Lunaria\Lunaria.exe,0'
value_is InstallLocation 'C:\Program Files\Lunaria'
value_is UninstallString '"C:\Program Files\Lunaria\Uninstall.exe"'
value_is QuietUninstallString '"C:\Program Files\Lunaria\Uninstall.exe" /S'
value_is NoModify 0x1
value_is NoRepair 0x1
size=$(($(reg_value "$uninstall_key" EstimatedSize)))
kilobytes=$(cat "$saver_file" "$folder"/[CL]* | wc -c | awk '{print int($1 / 1024)}')
check "the list of apps: a true size ($size KB)" [ $((size - kilobytes)) -ge 0 -a $((size - kilobytes)) -lt 100 ]

# The saver from the system folder, and by the entries of the Start menu.
program='C:\windows\system32\Lunaria.scr'
start_saver /s
check "the installed saver: fills the screen" wait_until 60 window_is Lunaria 0,0 "$screen"
check "the installed saver: the sky moves" wait_until 30 frames_differ
xdotool key a
check "the installed saver: a key ends it" wait_for_end 10
check "the installed saver: exit code 0" [ "$exit_code" = 0 ]
start_entry() { "$run" start "$entries\\$1.lnk"; }
start_entry 'Lunaria now'
check "the entry Lunaria now: fills the screen" wait_until 60 window_is Lunaria 0,0 "$screen"
xdotool key a
check "the entry Lunaria now: a key ends it" wait_until 10 eval '! window_exists Lunaria'
start_entry 'Lunaria settings'
check "the entry Lunaria settings: the sheet is shown" wait_until 60 window_exists "Lunara $version "
xdotool key Return
check "the entry Lunaria settings: the sheet ends" wait_until 10 eval '! window_exists "Lunara $version "'
mv "$saver_file" "$saver_file.away"
start_entry 'Lunaria now'
check "without its saver the entry says so" wait_until 30 window_exists Lunaria
screenshot missing
xdotool key Return
mv "$saver_file.away" "$saver_file"

# Removing keeps what the user wrote, and nothing else.
settle
mkdir -p "$user_data" "$common_data"
for file in "$user_data/Lunaria screensaver.ini"{,.32-0.new} "$user_data/userQuotes.txt" \
  "$common_data/usage.txt"{,.32-1.new} "$log" "${user_data%/AppData/*}/Desktop/Lunaria.xplLog.txt"; do
  echo written > "$file"
done
remove /S
check "removed: the user's settings stay" [ -s "$user_data/Lunaria screensaver.ini" ]
check "removed: the user's quotations stay" [ -s "$user_data/userQuotes.txt" ]
check "removed: the record of use does not" [ ! -e "$common_data" ]
check "removed: the log does not" [ ! -e "$log" ]
keep_state kept
check "removed: no other file is left" diff <(printf '%s\n' "${user_data#"$prefix"/drive_c/}"{,/Lunaria\ screensaver.ini,/userQuotes.txt}) \
  <(added_files before kept)
check "removed: the registry is as before" same_part before kept ''
check "installed again: exit code 0" [ "$(setup /S)" = 0 ]
remove /S /PURGE
keep_state purged
check "with /PURGE: no file is left" [ -z "$(added_files before purged)" ]
check "with /PURGE: no other file was touched" [ -z "$(changed_files before purged)" ]
check "with /PURGE: the registry is as before" same_part before purged ''

. "$here/windows/installer_cases.sh"
. "$here/windows/installer_choice.sh"
. "$here/windows/installer_pages.sh"
keep_state after
check "after all of it: no file is left" [ -z "$(added_files before after)" ]
check "after all of it: no other file was touched" [ -z "$(changed_files before after)" ]
check "after all of it: the registry is as before" same_part before after ''
finish
