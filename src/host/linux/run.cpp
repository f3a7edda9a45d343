// Implements the runs of the program.
#include "host/linux/run.h"

#include <exception>
#include <iostream>
#include <optional>
#include <string>

#include "host/linux/hostFailure.h"
#include "host/linux/measuredRun.h"
#include "host/linux/messagePump.h"
#include "host/linux/onlyFullRun.h"
#include "host/windowProcedure.h"
#include "support/linux/applicationLinux.h"
#include "support/log.h"

namespace {

void runMessages(SaverStage& stage, StopSignals& signals, MessagePump& pump) {
  try {
    pump.send(WM_CREATE);
    const auto link = stage.show(pump, signals);
    // Where the pointer stands now: it ends the run when it leaves this place.
    if (const auto start = stage.pointer()) {
      pump.post(WM_MOUSEMOVE, 0, static_cast<LPARAM>((start->x & 0xFFFF) | (start->y & 0xFFFF) << 16));
    }
    pump.run(*link);
  } catch (const std::exception& error) {
    pump.windowIsGone(std::string("the saver broke off: ") + error.what());
  }
}

// False, and told, where the user has a full run on this display already: the upper one would end first, and
// the sounds of both be heard meanwhile.
bool hasPlace(const std::optional<OnlyFullRun>& onlyOne, const std::string& display) {
  if (!onlyOne || onlyOne->isOurs()) {
    return true;
  }
  const std::string note = "Lunaria already runs on display " + display;
  logInfo().add(note);
  std::cerr << note << "\n";
  return false;
}

// Logged when the run is over, also where it failed.
struct ClosingLine {
  ClosingLine() = default;
  ~ClosingLine() { logInfo().add("xplLog closing"); }
  ClosingLine(const ClosingLine&) = delete;
  ClosingLine& operator=(const ClosingLine&) = delete;
};

}  // namespace

void runSaver(SaverDisplay& display, StopSignals& signals, const std::string& program,
              const HostRequest& request) {
  const auto stage = display.open(request, signals);
  if (stage == nullptr) {
    return;
  }
  std::optional<OnlyFullRun> onlyOne;
  if (stage->kind() == WindowKind::fullRun) {
    onlyOne.emplace(display.name());
  }
  if (!hasPlace(onlyOne, display.name())) {
    return;
  }
  HostRequest known = request;
  known.mode = stage->mode();
  xplAppLinux::setArguments(canonicalArguments(program, known));
  if (stage->isQuiet()) {
    windowProcedure::makeScreenSaver = windowProcedure::makeQuietScreensaver;
  }
  MessagePump pump(&stage->window(), stage->kind(), ScreenSaverProc);
  {
    const MeasuredRun measured(request.hasStatistics, pump);
    runMessages(*stage, signals, pump);
  }
  if (!pump.failure().empty()) {
    throw HostFailure(pump.failure());
  }
}

// The log's lines are those of the dialog that opens the sheet on Windows.
void runConfiguration() {
  logInfo().add("ScreenSaverConfigureDialog received WM_INITDIALOG");
  const ClosingLine closing;
  if (const auto saver = windowProcedure::makeScreenSaver(); saver && saver->hasConfigureSheet()) {
    saver->showConfigureSheet(nullptr);
  }
}
