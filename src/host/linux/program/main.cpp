// The program's entry on Linux: reads the command line and starts what it asks for.
#include <cstdlib>
#include <exception>
#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "host/linux/commandLine.h"
#include "host/linux/displayChoice.h"
#include "host/linux/doctor/doctor.h"
#include "host/linux/hostFailure.h"
#include "host/linux/run.h"
#include "host/linux/xscreensaver/xscreensaver.h"
#include "support/fileSystem.h"
#include "support/linux/applicationLinux.h"
#include "support/log.h"

namespace {

constexpr char programFile[] = "lunaria";

std::optional<std::string> environmentValue(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

int refuse(const CommandLineError& error) {
  std::cerr << programFile << ": " << error.text << "\n" << (error.needsUsage ? usageText() : "");
  return EXIT_FAILURE;
}

// The exit code of a run.
int orTellWhyNot(const std::function<void()>& run) {
  try {
    run();
    return EXIT_SUCCESS;
  } catch (const HostFailure& failure) {
    // A display or a window that goes is nothing wrong with the saver: no error, which would copy the log.
    logWarning().add(failure.what());
    std::cerr << programFile << ": " << failure.what() << "\n";
    return EXIT_FAILURE;
  }
}

// The log lives from here on: everything that follows finds it.
int startSaver(const std::string& program, const HostRequest& request) {
  const ConnectedDisplay connected = connectDisplay(request, DisplayEnvironment::ofProcess());
  StopSignals signals;
  const xplLog log("Lunaria", true, true);
  if (!connected.note.empty()) {
    logWarning().add(connected.note);
  }
  return orTellWhyNot([&] { runSaver(*connected.display, signals, program, request); });
}

int startConfiguration(const std::string& program, const HostRequest& request) {
  xplAppLinux::setArguments(canonicalArguments(program, request));
  const xplLog log("Lunaria", true, true);
  return orTellWhyNot(runConfiguration);
}

// Without a log: that of the last run stays as it is.
int change(const std::function<std::string()>& work) {
  std::cout << work();
  return EXIT_SUCCESS;
}

// Without a log, as above.
int tellDiagnosis() {
  const Diagnosis diagnosis = diagnose();
  std::cout << diagnosis.report;
  return diagnosis.isWell ? EXIT_SUCCESS : EXIT_FAILURE;
}

int start(const std::string& program, const HostRequest& request) {
  switch (request.mode) {
    case HostRequest::Mode::help:
      std::cout << usageText();
      return EXIT_SUCCESS;
    case HostRequest::Mode::version:
      std::cout << versionText();
      return EXIT_SUCCESS;
    case HostRequest::Mode::doctor:
      return tellDiagnosis();
    case HostRequest::Mode::configuration:
      return startConfiguration(program, request);
    case HostRequest::Mode::installXScreenSaver:
      return change([] { return installInXScreenSaver(xplFileSystemMini::applicationFullPath()); });
    case HostRequest::Mode::uninstallXScreenSaver:
      return change(uninstallFromXScreenSaver);
    default:
      return startSaver(program, request);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> words(argv, argv + argc);
  const std::vector<std::string> arguments(words.begin() + (words.empty() ? 0 : 1), words.end());
  try {
    const CommandLine line = parseCommandLine(arguments, environmentValue("XSCREENSAVER_WINDOW"));
    if (const auto* error = std::get_if<CommandLineError>(&line)) {
      return refuse(*error);
    }
    return start(words.empty() ? programFile : words.front(), std::get<HostRequest>(line));
  } catch (const std::exception& error) {
    std::cerr << programFile << ": " << error.what() << "\n";
    return EXIT_FAILURE;
  }
}
