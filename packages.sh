#!/usr/bin/env bash
# The Debian packages that Lunaria is built, packed and tested with, and how they are installed; read by ./run, ./test
# and the scripts in packaging.

build_packages=(g++ cmake ninja-build pkg-config libxcb1-dev libxcb-shm0-dev libxcb-randr0-dev libxcb-dpms0-dev
  libxcb-xfixes0-dev libwayland-dev wayland-protocols libxkbcommon-dev libfreetype-dev libfontconfig-dev
  fonts-liberation libsdl2-dev libasound2-dev libsystemd-dev libstb-dev qt6-base-dev)
package_packages=(dpkg-dev gzip)
windows_packages=(g++-mingw-w64-x86-64-posix nsis)
test_packages=("${package_packages[@]}" "${windows_packages[@]}" googletest libbenchmark-dev wine wine64 xvfb
  xdotool x11-utils x11-xserver-utils imagemagick fonts-dejavu-core clang-format clang-tidy procps tzdata
  dbus-daemon python3-dbusmock pulseaudio pulseaudio-utils desktop-file-utils
  lintian appstream libxml2-utils man-db fakeroot xscreensaver-data xscreensaver)
# Tests that miss one of these say so and pass.
optional_test_packages=(sway swaybg weston grim wtype qt6-wayland mate-screensaver xserver-xorg-core
  xserver-xorg-video-dummy)

# missing_packages PACKAGE...: prints those that are not installed.
missing_packages() {
  local package
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || echo "$package"
  done
}

# install_missing PACKAGE...: installs what is missing with the rights that there are, or names it and fails.
install_missing() {
  local missing as_root=()
  mapfile -t missing < <(missing_packages "$@")
  [ ${#missing[@]} -eq 0 ] && return 0
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null || ! sudo -n true 2>/dev/null; then
      echo "These packages are missing: ${missing[*]}" >&2
      echo "Install them with: sudo apt-get install ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
