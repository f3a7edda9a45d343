#!/usr/bin/env bash
# Draws the pictures of the README anew (settings.png is a photograph of the settings program); needs a Linux build and ImageMagick.
set -euo pipefail
cd "$(dirname "$0")"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

render() {  # settings as lines, then options of lunaria-render
  printf '%s\n' "$1" > "$work/settings.ini"
  ../build/linux/bin/lunaria-render --settings "$work/settings.ini" "${@:2}"
}

small() {  # 256 colours are enough for a night
  convert "$1" -dither FloydSteinberg -colors 256 -define png:compression-level=9 "PNG8:$2"
}

words='bottomline1=and may the morning wait a little
message1=Good night\r\nsleep well
messagesCount=1
msg_defaultMessagesAdded=yes'
quotes=$'showQuotes_Love=yes\nshowQuotes_Peace=yes\nshowQuotes_Wisdom=yes'
render "moonSize=200"$'\n'"$words"$'\n'"$quotes" --size 1280x720 --seed 5 --time 2026-11-19T20:00:00 --at 26 -o "$work/sky.png"
small "$work/sky.png" sky.png

render "showMoon=no"$'\n'"$words" --size 1280x540 --seed 4 --time 2026-11-19T20:00:00 --at 11 -o "$work/flight.png"
small "$work/flight.png" flight.png

only_moon=$'messagesCount=0\nmoonSize=200\nmsg_defaultMessagesAdded=yes\nshowMoonPhasePercentAndDegrees=no\nshowNotableDates=no'
for moment in 11-09T20 11-13T08 11-17T00 11-20T12 11-24T20 11-28T08 12-02T00 12-05T12; do
  render "$only_moon" --size 1280x720 --seed 3 --time "2026-$moment:00:00" --at 3 -o "$work/whole.png"
  convert "$work/whole.png" -crop 240x245+876+76 +repage "$work/phase-$moment.png"
done
montage "$work"/phase-*.png -background black -geometry 240x245+2+2 -tile 4x2 "$work/phases.png"
small "$work/phases.png" moon-phases.png

render "$words" --preview --size 304x224 --seed 9 --time 2026-11-21T20:00:00 --at 33 -o "$work/preview.png"
small "$work/preview.png" preview.png
