// The texts with which the program explains itself.
#include "host/linux/commandLine.h"
#include "host/programVersion.h"

std::string usageText() {
  return R"(Usage: lunaria [OPTION]...
A night sky that moves: a screen saver for X11 and Wayland.

Without an option it covers the whole screen until a key, a button or the pointer ends it.

  /s, --fullscreen      the same
  --root                run in the window that XSCREENSAVER_WINDOW names, as screen saver daemons ask for;
                        where that is not set, on the root window. Input does not end it. In a window of at most
                        half of every monitor's area it is the preview
  /p ID, --preview ID, --window-id ID
                        the preview, in the window of this id (decimal, or hexadecimal with 0x).
                        Wins over --root
  --window [WxH]        run in an ordinary window, 960x600 where no size is given;
                        Escape, q or closing the window ends it
  --x11, --wayland      use that kind of display. Without them Wayland is used where WAYLAND_DISPLAY is set,
                        or else X11. The windows that --root and a window's id name are X11's
  /c, --configure       edit the settings
  --install-xscreensaver
                        make it the saver that your XScreenSaver shows
  --uninstall-xscreensaver
                        take it out of XScreenSaver again; what was chosen before comes back
  --stats               at the end of a run print its frames, the milliseconds that one took, and the share of
                        the processor
  --doctor              look at the desktop, its screen saver, fonts, sound, sleep and files, say what is not
                        well, and how to mend it
  --help                show this text
  --version             show the version

Long options may be written with one dash. WAYLAND_DISPLAY or DISPLAY names the display. LUNARIA_NO_SHM=1 draws
without memory shared with an X display.
The log of the last run is Lunaria.xplLog.txt in the temporary folder.
A full run of more than 23 seconds adds one line (times, version, build) to "Lunaria software/usage.txt" in the
user's data folder; nothing leaves the machine. The setting sisableTelemetry=yes stops that.
)";
}

std::string versionText() {
  return std::string("lunaria ") + programVersion + "\n";
}
