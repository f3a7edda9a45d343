// The settings program's entry on Linux.
#include <QApplication>
#include <QtGlobal>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "host/programVersion.h"
#include "host/sheet/linux/desktopColours.h"
#include "host/sheet/linux/settingsDialog.h"
#include "host/sheet/soundPreview.h"
#include "services/platform.h"
#include "support/log.h"

namespace {

constexpr char programFile[] = "lunaria-configure";

constexpr char usage[] = R"(Usage: lunaria-configure
Shows the settings of the screen saver Lunaria, and writes them when OK is pressed.

  --help     show this text
  --version  show the version

WAYLAND_DISPLAY or DISPLAY names the display.
)";

// The toolkit's words go into the log. One that ends the program is told to whoever started it, who would
// otherwise find a core file.
void takeToolkitMessage(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtFatalMsg) {
    logWarning().add(text.toStdString());
    return;
  }
  logError().add(text.toStdString());
  std::cerr << programFile
            << ": cannot show the settings: check that DISPLAY names a running X server that lets you in, or "
               "on Wayland install qt6-wayland ("
            << text.simplified().toStdString() << ")" << std::endl;
  std::_Exit(EXIT_FAILURE);
}

int showSettings(int& argc, char** argv) {
  const xplLog log("Lunaria-configure", false, false);
  qInstallMessageHandler(takeToolkitMessage);
  const QApplication application(argc, argv);
  QApplication::setApplicationDisplayName("");
  QApplication::setDesktopFileName(programFile);
  followDesktopColours();
  cSoundPlayer player(xplMakeSoundOutput());
  SettingsSheet sheet(xplUserSettings(), soundPreview(player));
  showSettingsDialog(sheet);
  return EXIT_SUCCESS;
}

int start(int argc, char** argv) {
  const std::string option = argc > 1 ? argv[1] : "";
  if (option.empty() && argc <= 1) {
    return showSettings(argc, argv);
  }
  if (option == "--help" || option == "-help") {
    std::cout << usage;
    return EXIT_SUCCESS;
  }
  if (option == "--version" || option == "-version") {
    std::cout << programFile << " " << programVersion << "\n";
    return EXIT_SUCCESS;
  }
  std::cerr << programFile << ": unknown option '" << option << "'\n" << usage;
  return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return start(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << programFile << ": " << error.what() << "\n";
    return EXIT_FAILURE;
  }
}
