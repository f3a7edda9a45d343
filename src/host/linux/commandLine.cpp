// Reads the command line.
#include "host/linux/commandLine.h"

#include <algorithm>
#include <string_view>

#include "host/linux/optionValues.h"
#include "host/linux/plainModes.h"

namespace {

using Mode = HostRequest::Mode;

// Reads one command line from left to right.
class Reader {
 public:
  Reader(const std::vector<std::string>& arguments, const std::optional<std::string>& screenSaverWindow)
      : m_arguments(arguments), m_screenSaverWindow(screenSaverWindow) {}

  CommandLine read() {
    while (!m_error && m_next < m_arguments.size()) {
      readOption(m_arguments[m_next++]);
    }
    takeWindowOfEnvironment();
    if (m_answer) {
      return HostRequest{.mode = *m_answer, .window = {}};
    }
    checkDisplay();
    if (m_error) {
      return *m_error;
    }
    m_request.display = m_display;
    m_request.hasStatistics = m_hasStatistics;
    return m_request;
  }

 private:
  void readOption(const std::string& argument) {
    if (argument == "/s") {
      setMode(Mode::fullRun);
    } else if (argument == "/c") {
      setMode(Mode::configuration);
    } else if (argument == "/p") {
      readWindow(argument, std::nullopt);
    } else if (argument.starts_with("-")) {
      readLongOption(argument);
    } else {
      fail("unknown argument '" + argument + "'");
    }
  }

  void readLongOption(const std::string& argument) {
    const std::size_t dashes = argument.starts_with("--") ? 2 : 1;
    const std::size_t equals = argument.find('=');
    const std::string name = argument.substr(dashes, equals == std::string::npos ? equals : equals - dashes);
    std::optional<std::string> value;
    if (equals != std::string::npos) {
      value = argument.substr(equals + 1);
    }
    if (name == "preview" || name == "window-id") {
      readWindow(argument.substr(0, equals), value);
    } else if (name == "window") {
      readSize(value);
    } else if (value || !readPlainOption(name)) {
      fail("unknown option '" + argument + "'");
    }
  }

  bool readPlainOption(std::string_view name) {
    if (name == "root") {
      readRoot();
      return true;
    }
    if (name == "x11" || name == "wayland") {
      m_display = name == "x11" ? HostRequest::Display::x11 : HostRequest::Display::wayland;
      return true;
    }
    if (name == "stats") {
      m_hasStatistics = true;
      return true;
    }
    const auto* plain = std::find_if(plainModes.begin(), plainModes.end(),
                                     [&](const PlainMode& candidate) { return candidate.name == name; });
    if (plain == plainModes.end()) {
      return false;
    }
    if (isAnswer(plain->mode)) {
      m_answer = plain->mode;
    } else {
      setMode(plain->mode);
    }
    return true;
  }

  void readWindow(const std::string& option, std::optional<std::string> value) {
    if (!value && m_next < m_arguments.size()) {
      value = m_arguments[m_next++];
    }
    if (!value) {
      fail("option " + option + " needs a window id after it");
      return;
    }
    const auto id = windowIdOf(*value);
    if (!id) {
      failPlainly("'" + *value + "' is not a window id: give a decimal number, or a hexadecimal one with 0x");
      return;
    }
    m_request.mode = Mode::preview;
    m_request.window = id;
  }

  void readRoot() {
    if (m_request.mode != Mode::preview) {
      setMode(Mode::foreignRun);
    }
  }

  // Only now is it known whether the environment's window counts.
  void takeWindowOfEnvironment() {
    if (m_request.mode != Mode::foreignRun || !m_screenSaverWindow) {
      return;
    }
    m_request.window = windowIdOf(*m_screenSaverWindow);
    if (!m_request.window) {
      failPlainly("XSCREENSAVER_WINDOW is '" + *m_screenSaverWindow +
                  "', which is not a window id: unset it, or set it to a number");
    }
  }

  void checkDisplay() {
    const bool isInForeignWindow = m_request.mode == Mode::foreignRun || m_request.mode == Mode::preview;
    if (isInForeignWindow && m_display == HostRequest::Display::wayland) {
      failPlainly("the windows of other programs are X11's: leave out --wayland, or the window");
    }
  }

  void readSize(std::optional<std::string> value) {
    setMode(Mode::ordinaryWindow);
    if (!value && m_next < m_arguments.size() && startsWithDigit(m_arguments[m_next])) {
      value = m_arguments[m_next++];
    }
    if (!value) {
      return;
    }
    const auto size = windowSizeOf(*value);
    if (!size) {
      failPlainly("'" + *value + "' is not a window size: give WIDTHxHEIGHT in pixels, each from 1 to " +
                  std::to_string(largestSide));
      return;
    }
    m_request.width = size->width;
    m_request.height = size->height;
  }

  static bool startsWithDigit(const std::string& text) {
    return !text.empty() && text[0] >= '0' && text[0] <= '9';
  }

  // What belongs to the mode before it is forgotten.
  void setMode(Mode mode) {
    m_request = {};
    m_request.mode = mode;
  }
  void fail(const std::string& text) { setError({text, true}); }
  void failPlainly(const std::string& text) { setError({text, false}); }
  // The first error is the one to mend first.
  void setError(const CommandLineError& error) {
    if (!m_error) {
      m_error = error;
    }
  }

  const std::vector<std::string>& m_arguments;
  const std::optional<std::string>& m_screenSaverWindow;
  std::size_t m_next = 0;
  HostRequest m_request;
  HostRequest::Display m_display = HostRequest::Display::automatic;
  bool m_hasStatistics = false;  // whatever the mode
  std::optional<Mode> m_answer;  // help or version, once asked for
  std::optional<CommandLineError> m_error;
};

}  // namespace

CommandLine parseCommandLine(const std::vector<std::string>& arguments,
                             const std::optional<std::string>& screenSaverWindow) {
  return Reader(arguments, screenSaverWindow).read();
}
