#!/usr/bin/env bash
# Makes the Debian packages of a build and checks them: contents, size, dependencies, descriptions for desktops, man
# pages; then unpacks, starts and removes them in a scratch root. Usage: package.sh BUILD_FOLDER
here=$(cd "$(dirname "$0")" && pwd)
source=$(cd "$here/../.." && pwd)
build=$(cd "${1:?Usage: package.sh BUILD_FOLDER}" && pwd) || exit 1
export LUNARIA_BIN=$build/bin
. "$here/../endtoend/linux/lib.sh"
. "$here/unpacked.sh"
version=$(cd "$build" && sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' CMakeCache.txt)
packages=$build/packages
xml_folder=/usr/share/xscreensaver/config

# quiet COMMAND...: succeeds, and says nothing on either output; what it says is shown.
quiet() {
  local said
  said=$("$@" 2>&1) && [ -z "$said" ] || { echo "$said" >&2; return 1; }
}
# tells COMMAND...: succeeds; what it says is shown where it fails.
tells() {
  "$@" >"$work/err" 2>&1 && rm -f "$work/err"
}
field() { dpkg-deb -f "$1" "$2"; }
depends_on() { field "$1" Depends | tr ',' '\n' | sed 's/^ *//' | grep -qE "^${2//+/\\+}( |$)"; }
names_licence_of() { sed -n '/^Libraries/,$p' "$2" | grep -qE "^ .*${1//+/\\+}(,| )"; }

make_packages() {
  rm -rf "$packages"
  # With a narrow umask, which must not be seen in the packages.
  (cd "$build" && umask 077 && cpack)
}
check "the packages are made" tells make_packages
main=$(find "$packages" -maxdepth 1 -name "lunaria_${version}_*.deb")
sheet=$(find "$packages" -maxdepth 1 -name "lunaria-configure_${version}_*.deb")
same "there are two, of the program's version" 2 "$(find "$packages" -maxdepth 1 -name '*.deb' | wc -l)"
[ -f "$main" ] && [ -f "$sheet" ] || exit 1

listing() { dpkg-deb -c "$1" | awk '{print $1, $2, $6, $7, $8}' | sed 's/ *$//'; }
for package in "$main" "$sheet"; do
  name=$(field "$package" Package)
  check "$name: every file and its mode" diff "$here/contents-$name" <(listing "$package" | grep -v '^d' | sort -k3)
  same "$name: folders" 'drwxr-xr-x root/root' "$(listing "$package" | grep '^d' | cut -d' ' -f1,2 | sort -u)"
  at_most "$name: bytes" 4000000 "$(stat -c %s "$package")"
  at_most "$name: kibibytes when installed" 7812 "$(field "$package" Installed-Size)"
  check "$name: lintian" quiet lintian --fail-on error,warning --tag-display-limit 0 --allow-root "$package"
  mkdir -p "$work/$name"
  dpkg-deb -x "$package" "$work/$name"
  kibibytes=$(find "$work/$name" -mindepth 1 -type f -printf '%s\n' -o -printf '1\n' |
    awk '{total += int(($1 + 1023) / 1024)} END {print total}')
  same "$name: the installed size is true" "$kibibytes" "$(field "$package" Installed-Size)"
  check "$name: the copyright file says that there is no licence" grep -q 'The owner has chosen no licence yet' \
    "$work/$name/usr/share/doc/$name/copyright"
  for library in $(objdump -p "$work/$name"/usr/bin/* | awk '/NEEDED/ {print $2}' | sort -u); do
    owner=$(dpkg -S "*/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/$library" | sed -n '1s/:.*//p')
    check "$name: it depends on $owner for $library" depends_on "$package" "$owner"
    check "$name: and names its licence" names_licence_of "$owner" "$work/$name/usr/share/doc/$name/copyright"
  done
done

check "the fonts come with it" depends_on "$main" fonts-liberation
same "it recommends its settings" lunaria-configure "$(field "$main" Recommends)"
same "which recommend what shows them on Wayland" qt6-wayland "$(field "$sheet" Recommends)"
check "which belong to the same version" grep -qF "lunaria (= $version)" <(field "$sheet" Depends)
# everything_behind PACKAGE: what its dependencies pull in here, where all of them are installed.
everything_behind() {
  field "$1" Depends | tr ',' '\n' | sed 's/(.*//; s/ //g; /^lunaria$/d' | xargs apt-cache depends --recurse --installed \
    --no-recommends --no-suggests --no-enhances --no-conflicts --no-breaks --no-replaces | grep -v '^[ |<]' | sort -u
}
same "the saver pulls in no Qt" "" "$(everything_behind "$main" | grep -iE 'qt[0-9]')"
check "as its settings do" grep -qx libqt6core6 <(everything_behind "$sheet")

share=$work/lunaria/usr/share
theme=$share/applications/screensavers/lunaria.desktop
check "the launcher is valid" quiet desktop-file-validate "$share/applications/lunaria.desktop"
check "the settings' launcher is valid" quiet desktop-file-validate \
  "$work/lunaria-configure/usr/share/applications/lunaria-configure.desktop"
check "the theme for MATE is valid" tells desktop-file-validate "$theme"
for line in Type=Application 'Exec=/usr/libexec/xscreensaver/lunaria --root' TryExec=/usr/libexec/xscreensaver/lunaria \
  'Categories=Screensaver;' 'OnlyShowIn=MATE;'; do
  check "the theme says $line" grep -qxF "$line" "$theme"
done
keys() { xargs grep -ho '^[A-Za-z]*=' | sort -u; }
same "the theme has the keys of those that are there" \
  "$(dpkg -L xscreensaver-data | grep '/screensavers/.*\.desktop$' | keys)" "$(echo "$theme" | keys)"
for icon in "$share"/icons/hicolor/*/apps/lunaria.png; do
  size=$(basename "$(dirname "$(dirname "$icon")")")
  same "icon $size: its size, and it is clear in the corner" "$size 0" \
    "$(convert "$icon" -format '%wx%h %[fx:round(p{0,0}.a)]' info:)"
  check "icon $size: a picture" [ "$(identify -format %k "$icon")" -gt 20 ]
done
same "the launchers name it" "lunaria lunaria" "$(sed -n 's/^Icon=//p' "$work"/*/usr/share/applications/*.desktop | xargs)"
check "the software catalogue takes it" tells appstreamcli validate --no-net "$share"/metainfo/*.metainfo.xml
check "it claims no licence" grep -q '<project_license>LicenseRef-proprietary<' "$share"/metainfo/*.metainfo.xml
check "it names the version" grep -q "<release version=\"$version\"" "$share"/metainfo/*.metainfo.xml
same "so does the list of changes" "$version" "$(dpkg-parsechangelog -l "$source/packaging/debian/changelog" -S Version)"

# The form of the descriptions that XScreenSaver's settings program reads.
description=$share/xscreensaver/config/lunaria.xml
of_the_form() { xmllint --noout --dtdvalid "$work/form.dtd" "$@" 2>>"$work/xmllint.log"; }
python3 "$here/xscreensaver_form.py" "$xml_folder" >"$work/form.dtd"
check "there is a form" grep -q '^<!ATTLIST command arg CDATA #REQUIRED>$' "$work/form.dtd"
check "those that are there have it" of_the_form "$xml_folder"/*.xml
check "ours has it" of_the_form "$description"
sed 's/<command[^>]*>/<command\/>/' "$description" >"$work/spoiled.xml"
if of_the_form "$work/spoiled.xml"; then not_ok "one whose command says nothing has not"; else
  ok "one whose command says nothing has not"
fi
same "the command" --root "$(xmllint --xpath 'string(/screensaver/command/@arg)' "$description")"
same "the name" lunaria "$(xmllint --xpath 'string(/screensaver/@name)' "$description")"

man_page_is_clean() { LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -Tutf8 -Z -l "$1" >/dev/null; }
for page in "$work"/lunaria*/usr/share/man/man1/*.1.gz; do
  name=$(basename "$page" .1.gz)
  zcat "$page" | sed 's/\\-/-/g' >"$work/page"
  check "man page of $name: no warnings" quiet man_page_is_clean "$page"
  check "man page of $name: version" grep -q "^\.TH ${name^^} 1 .* \"lunaria $version\"" "$work/page"
  for option in $("$build/bin/$name" --help | grep -oE -- '(^|[ ,])--?[a-z-]+' | tr -d ' ,' | sort -u); do
    check "man page of $name: $option" grep -qF -- "$option" "$work/page"
  done
done
same "each program has one" "$(cd "$work" && find lunaria*/usr/bin -type f -printf '%f\n' | sort)" \
  "$(cd "$work" && find lunaria*/usr/share/man -name '*.gz' -printf '%f\n' | sed 's/\.1\.gz//' | sort)"

try_in_scratch_root "$main" "$sheet"
