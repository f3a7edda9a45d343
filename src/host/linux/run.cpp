// Implements the runs of the program.
#include "host/linux/run.h"

#include <exception>
#include <string>

#include "host/linux/hostFailure.h"
#include "host/linux/makeX11Window.h"
#include "host/linux/messagePump.h"
#include "host/linux/x11Link.h"
#include "host/windowProcedure.h"
#include "support/log.h"

namespace {

void checkDisplay(const X11Connection& connection) {
  if (connection.isUsable()) {
    return;
  }
  throw HostFailure(connection.displayName().empty()
                        ? std::string("no display: set DISPLAY to that of your session, such as :0")
                        : "cannot open display " + connection.displayName() +
                              ": check that DISPLAY names a running X server that lets you in");
}

void runMessages(X11Connection& connection, StopSignals& signals, X11Window& window, MessagePump& pump,
                 const X11Facts& facts) {
  try {
    pump.send(WM_CREATE);
    X11Link link(connection, signals, window, pump, facts);
    // Where the pointer stands now: it ends the run when it leaves this place.
    pump.post(WM_MOUSEMOVE, 0,
              static_cast<LPARAM>((facts.pointerX & 0xFFFF) | (facts.pointerY & 0xFFFF) << 16));
    pump.run(link);
  } catch (const std::exception& error) {
    pump.windowIsGone(std::string("the saver broke off: ") + error.what());
  }
}

// Logged when the run is over, also where it failed.
struct ClosingLine {
  ClosingLine() = default;
  ~ClosingLine() { logInfo().add("xplLog closing"); }
  ClosingLine(const ClosingLine&) = delete;
  ClosingLine& operator=(const ClosingLine&) = delete;
};

}  // namespace

void runSaver(X11Connection& connection, StopSignals& signals, const HostRequest& request) {
  checkDisplay(connection);
  connection.endWaitsOn(signals);
  const X11Facts facts = X11Facts::collect(connection, foreignWindowOf(connection, request));
  if (signals.arrived()) {
    return;
  }
  checkDisplay(connection);
  const auto window = makeX11Window(connection, facts, request);
  MessagePump pump(window.get(), window->kind(), ScreenSaverProc);
  runMessages(connection, signals, *window, pump, facts);
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
