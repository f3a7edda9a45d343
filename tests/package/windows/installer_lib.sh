# What windows_installer.sh stands on: a prefix of its own, its state before and after, the installer's exit codes.
# shellcheck shell=bash
# It is sourced, after endtoend/windows/harness.sh, with `build`, `version`, `installer`, `out` and `root` set.
uninstall_key='HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\Lunaria screensaver'
desktop_key='HKCU\Control Panel\Desktop'
entries='C:\ProgramData\Microsoft\Windows\Start Menu\Programs\Lunaria'

make_scratch_prefix() {
  start_display
  prepare_prefix
  scratch=$(mktemp -d)
  prefix=$scratch/wine
  cp -a --reflink=auto "$LUNARIA_WINEPREFIX" "$prefix"
  log=$prefix/${log#"$LUNARIA_WINEPREFIX"/}
  export LUNARIA_WINEPREFIX=$prefix WINEPREFIX=$prefix
  trap 'settle; stop_all; rm -rf "$scratch"' EXIT
  saver_file=$prefix/drive_c/windows/system32/Lunaria.scr
  folder="$prefix/drive_c/Program Files/Lunaria"
  common_data="$prefix/drive_c/ProgramData/Lunaria software"
  user_data="$(echo "$prefix"/drive_c/users/*/AppData/Roaming | tr ' ' '\n' | grep -v /Public/ | head -n 1)/Lunaria software"
  # What earlier runs of the saver left there.
  rm -rf "$user_data" "$common_data" "$log" "$prefix"/drive_c/users/*/Desktop/Lunaria.xplLog.txt
}

# Waits until every Windows program of the prefix has ended, the installer's helpers among them.
settle() { timeout 60 wineserver64 -w 2>/dev/null || timeout 60 /usr/lib/wine/wineserver64 -w; }

# exit_code_on_windows PROGRAM OPTIONS: a Windows path, and the rest of the line as it is. Prints the exit code as Windows
# sees it, which may be above 255.
exit_code_on_windows() {
  printf '@"%s" %s\r\n@echo code %%errorlevel%%\r\n' "$1" "$2" > "$scratch/run.bat"
  timeout 120 "$run" cmd /c "Z:${scratch//\//\\}\\run.bat" 2>/dev/null | tr -d '\r' | sed -n 's/^code //p'
}
setup_of() { local file=$1; shift; exit_code_on_windows "Z:${file//\//\\}" "$*"; }
setup() { setup_of "$installer" "$@"; }
# Removes as the list of apps does: the uninstaller goes on under another name, and its exit code is lost.
remove() {
  "$run" 'C:\Program Files\Lunaria\Uninstall.exe' "$@" 2>/dev/null
  settle
}
# Where the exit code counts: the uninstaller stays in its folder, which `remove` then takes away.
remove_in_place() { exit_code_on_windows 'C:\Program Files\Lunaria\Uninstall.exe' "$* _?=C:\\Program Files\\Lunaria"; }

reg_value() { "$run" reg query "$1" /v "$2" 2>/dev/null | tr -d '\r' | sed -n "s/^ *$2 *REG_[A-Z]* *//p"; }
reg_set() { "$run" reg add "$1" /v "$2" /d "$3" /f >/dev/null 2>&1; }
reg_delete() { "$run" reg delete "$1" /v "$2" /f >/dev/null 2>&1; }

# Keeps the files and the registry of this moment under a name. Left out: folders of temporary files.
keep_state() {  # NAME
  settle
  local temporary=(\( -ipath '*/users/*/Temp/*' -o -ipath '*/windows/temp/*' \) -prune)
  find "$prefix/drive_c/" "${temporary[@]}" -o -printf '%P\n' | LC_ALL=C sort > "$scratch/$1.files"
  find "$prefix/drive_c/" "${temporary[@]}" -o -type f -printf '%P\t%s\t%T@\n' | LC_ALL=C sort > "$scratch/$1.stamps"
  local part number=0
  # The last holds what is to be deleted at the next start.
  for part in 'HKEY_LOCAL_MACHINE\Software' HKEY_CURRENT_USER \
    'HKEY_LOCAL_MACHINE\System\CurrentControlSet\Control\Session Manager'; do
    number=$((number + 1))
    "$run" regedit /E "Z:${scratch//\//\\}\\part$number.reg" "$part" 2>/dev/null
  done
  settle
  cat "$scratch"/part[123].reg | iconv -f UTF-16 -t UTF-8 2>/dev/null | tr -d '\r' > "$scratch/$1.reg"
  [ "$(wc -l < "$scratch/$1.reg")" -gt 1000 ] || { echo "the registry was not written" >&2; exit 2; }
}
# changed_files FROM TO: those of the first state that have gone since, or were written to.
changed_files() { LC_ALL=C comm -23 "$scratch/$1.stamps" "$scratch/$2.stamps"; }
added_files() { LC_ALL=C comm -3 "$scratch/$1.files" "$scratch/$2.files" | tr -d '\t'; }
# same_part FROM TO TEXT: whether no key whose name holds TEXT differs; every line carries its key's name. Left out: what
# Wine notes of the windows of console programs, at the first one that the tests themselves start or at a later one.
same_part() {
  diff <(lines_with_keys "$scratch/$1.reg" "$3") <(lines_with_keys "$scratch/$2.reg" "$3")
}
lines_with_keys() {
  awk -v part="$2" '/^\[/ {key = $0} (index(key, part) || part == "") && !index(key, "[HKEY_CURRENT_USER\\Console") {print key ": " $0}' \
    "$1" | LC_ALL=C sort
}

no_foreign_library() {
  ! x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/.*DLL Name: //p' |
    grep -viE '^(kernel32|user32|gdi32|advapi32|shell32|comctl32|comdlg32|ole32|winmm|msvcrt|uxtheme|version|msimg32)\.dll$'
}

# make_installer VERSION MARK: another version's installer, whose saver ends with the mark; prints its path.
make_installer() {
  local files=$scratch/files-$1
  mkdir -p "$files"
  cp "$build/installer/Lunaria.exe" "$files"
  { cat "$build/installer/Lunaria.scr"; printf '%s' "$2"; } > "$files/Lunaria.scr"
  makensis -V1 -NOCD -INPUTCHARSET UTF8 "-DVERSION=$1" "-DFILES=$files" "-DSCRIPTS=$root/packaging/windows" \
    "-DICON=$root/src/resources/lunaria.ico" "-DOUTPUT=$files/setup.exe" "$root/packaging/windows/lunaria.nsi" >&2
  echo "$files/setup.exe"
}
