#!/usr/bin/env bash
# The rules that keep the house in order: platform code in its rooms, floors that only look down, files that say
# what they are for.
set -uo pipefail
cd "$(dirname "$0")/../.."
bad=0
complain() {
  echo "$1:"
  echo "$2" | sed 's/^/  /'
  bad=1
}
check_none() { [ -z "$2" ] || complain "$1" "$2"; }

code=$(git ls-files 'src/*.h' 'src/*.cpp')
common=$(echo "$code" | grep -vE '/(windows|linux)/')

check_none "A platform condition outside a seam header" \
  "$(echo "$common" | grep -v '/platform\.h$' | xargs grep -nE '#.*(_WIN32|__linux__|__unix__|__MINGW32__|WIN32)')"
check_none "A platform header outside the windows and linux folders" \
  "$(echo "$common" | xargs grep -nE '#include <(windows|windowsx|commctrl|shlobj|unistd|fcntl|dlfcn|poll|pwd|xcb/|X11/|SDL|sys/|fontconfig/|ft2build|Q[A-Z])')"

# A folder may include itself and the floors below it.
declare -A below=(
  [support]="support"
  [graphics]="support graphics"
  [sprites]="support graphics sprites"
  [moon]="support graphics sprites moon"
  [quotes]="support graphics sprites quotes"
  [services]="support graphics sprites services"
  [world]="support graphics sprites moon quotes services world"
  [host]="support graphics sprites moon quotes services world host"
  [render]="support graphics sprites moon quotes services world render"
)
for floor in "${!below[@]}"; do
  [ -d "src/$floor" ] || continue
  allowed=${below[$floor]// /|}
  check_none "src/$floor includes from a floor above it" \
    "$(git ls-files "src/$floor/*.h" "src/$floor/*.cpp" | xargs -r grep -nE '^#include "[a-z]+/' | grep -vE "#include \"($allowed)/")"
done

# The settings sheet is a program of its own on Linux: of the host it knows its own folder and the version alone.
check_none "src/host/sheet includes what its program does not carry" \
  "$(git ls-files 'src/host/sheet/*.h' 'src/host/sheet/*.cpp' | xargs grep -nE '^#include "[a-z]+/' |
    grep -vE '#include "(support/|services/|host/sheet/|host/programVersion\.h|graphics/windows/gdi\.h)')"

for file in $code $(git ls-files 'tests/*.h' 'tests/*.cpp' 'bench/*.cpp' 'tools/*.cpp' 'tools/*.h'); do
  head -n 1 "$file" | grep -qE '^// .{10,}' || complain "No sentence that says what the file is for" "$file"
done
for file in $(git ls-files 'src/*.h'); do
  grep -q '^#pragma once' "$file" || complain "A header without #pragma once" "$file"
done

# Time and chance come through the support library alone.
check_none "A clock or a random source outside support" \
  "$(git ls-files 'src/*.cpp' 'src/*.h' | grep -v '^src/support/' | xargs grep -nE '\b(std::rand|srand|random_device|system_clock|gettimeofday|GetSystemTime|time\((NULL|nullptr|0)\))')"
# The build's version is said again where the compiler cannot take it from there.
version=$(sed -nE 's/^project\(.*VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)
for file in src/host/programVersion.h src/render/renderOptions.cpp src/services/telemetryValues.h src/resources/windows/lunaria.{rc,manifest}; do
  grep -qwF "${version:-no version in CMakeLists.txt}" "$file" || complain "Not the version $version" "$file"
done
exit $bad
