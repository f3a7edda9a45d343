// Implements the window procedure, message by message.
#include "host/windowProcedure.h"

#include <exception>
#include <new>
#include <stdexcept>

#include "host/noctisScreensaver.h"
#include "support/clock.h"
#include "support/fileSystem.h"
#include "support/log.h"
#include "support/platform.h"

namespace windowProcedure {

std::unique_ptr<xplScreenSaverInterface> screensaverPtr;
std::uintptr_t timerId = 0;
bool paintingNow = false;
bool initializedOnce = false;
MakeScreenSaver makeScreenSaver = makeNoctisScreensaver;
Procedure defaultProcedure = DefScreenSaverProc;

namespace {

constexpr std::uintptr_t wantedTimerId = 1;
constexpr unsigned timerPeriod = 40;  // milliseconds
// Deliberate: every tick moves the sky by the timer's period, whatever time has really passed, so that a tick
// that comes late slows the sky down and does not make it jump. Do not measure the time here.
constexpr float animationStep = 0.04F;  // seconds
constexpr int framesPerSecond = 25;
constexpr unsigned pauseAfterTimer = 40;  // milliseconds

// Deliberate: the handle is used for nothing. The line is one of the marks by which logs are compared; it
// stays.
void logNotepadWindow() {
  logInfo().addf("notepad window handle: %i", static_cast<int>(xplFindNotepadWindow()));
}

void setTargetFrameRate() {
  if (auto* saver = dynamic_cast<xplScreenSaverAbstract*>(screensaverPtr.get())) {
    saver->targetFrameRate = framesPerSecond;
  }
}

// Initialises the object; what it throws is logged, and the saver carries on with what was made before.
void initializeGuarded(xplWindowHandle window, std::int32_t monitorId) {
  constexpr char context[] = "exception caught: screensaverPtr->initWithWindowHandle()";
  try {
    screensaverPtr->initWithWindowHandle(window, monitorId);
  } catch (const std::runtime_error& error) {
    logError().addf("Runtime error caught:\n%s\n%s", error.what(), context);
  } catch (const std::exception& error) {
    logError().addf("Exception caught:\n%s\n%s", error.what(), context);
  } catch (const std::exception* error) {
    if (error) {
      logError().addf("Exception caught:\n%s\n%s", error->what(), context);
    }
  } catch (...) {
    logError().addf("Exception caught:%s", context);
  }
}

void initializeOnce(xplWindowHandle window) {
  if (initializedOnce) {
    return;
  }
  logInfo().add("creating xplApp");
  const xplApp application;
  initializeGuarded(window, monitorIdFor(application.arguments()));
  initializedOnce = true;
}

LRESULT create(xplWindowHandle window) {
  logInfo().add("ScreenSaverProc() received WM_CREATE");
  logNotepadWindow();
  if (!screensaverPtr) {
    screensaverPtr = makeScreenSaver();
    if (screensaverPtr) {
      screensaverPtr->setContainerFolder(xplFileSystemMini::applicationFolder());
    }
  }
  if (screensaverPtr) {
    setTargetFrameRate();
    initializeOnce(window);
  }
  timerId = xplStartTimer(window, wantedTimerId, timerPeriod);
  return 0;
}

LRESULT tick(xplWindowHandle window, std::uintptr_t id) {
  if (id == timerId && !paintingNow && screensaverPtr) {
    screensaverPtr->animateOneFrame(animationStep);
    xplInvalidateClientArea(window);
  }
  return 0;
}

void paint(xplWindowHandle window) {
  paintingNow = true;
  if (screensaverPtr) {
    screensaverPtr->drawOneFrame();
  }
  {
    const xplPaintScope scope(window);
    if (screensaverPtr) {
      screensaverPtr->flushOneFrame();
    }
  }
  paintingNow = false;
}

LRESULT eraseBackground() {
  const logFunctionLife block("WM_ERASEBKGND");
  if (screensaverPtr) {
    screensaverPtr->eraseBackground();
  }
  return 1;  // erased: the platform must not paint over the frame
}

void close(xplWindowHandle window) {
  logInfo().add("ScreenSaverProc() received WM_CLOSE");
  if (timerId != 0) {
    xplStopTimer(window, timerId);
  }
  timerId = 0;
  xplClock::sleep(pauseAfterTimer);
}

// Deliberate: two blanks before the message's name. Whoever reads logs by machine looks for this line.
constexpr char destroyLine[] = "ScreenSaverProc() received  WM_DESTROY";

void destroy() {
  logInfo().add(destroyLine);
  if (screensaverPtr) {
    screensaverPtr->shutDown();
    screensaverPtr.reset();
  }
  logInfo().add("xplLog closing");
}

std::unique_ptr<xplScreenSaverInterface> makeWith(xplServices (*services)()) {
  try {
    return std::make_unique<noctisScreensaver>(services());
  } catch (const std::bad_alloc& error) {
    logError().addf("Exception caught:\n%s\n%s", error.what(), "exception caught: noctisScreensaver()");
    return nullptr;
  }
}

}  // namespace

std::unique_ptr<xplScreenSaverInterface> makeNoctisScreensaver() {
  return makeWith(xplServices::ofPlatform);
}

std::unique_ptr<xplScreenSaverInterface> makeQuietScreensaver() {
  return makeWith([] { return xplServices::ofPlatform().besideAnotherRun(); });
}

// Deliberate: the framework takes "/P", "-p" and "/s" in any case, but only "/p", written exactly so, is the
// preview here. What else starts in a preview pane runs as the full saver does, sound and all. Do not make
// the comparison kinder: whoever starts "/P" counts on it.
std::int32_t monitorIdFor(const std::vector<std::string>& arguments) {
  return arguments.size() > 1 && arguments[1] == "/p" ? -1 : 0;
}

}  // namespace windowProcedure

extern "C" LRESULT XPL_CALLBACK ScreenSaverProc(xplWindowHandle window, UINT message, WPARAM wParam,
                                                LPARAM lParam) {
  using namespace windowProcedure;
  switch (message) {
    case WM_CREATE:
      return create(window);
    case WM_TIMER:
      return tick(window, wParam);
    case WM_ERASEBKGND:
      return eraseBackground();
    case WM_PAINT:
      paint(window);
      break;
    case WM_DISPLAYCHANGE:
      if (screensaverPtr) {
        screensaverPtr->monitorsChanged();
      }
      break;
    case WM_CLOSE:
      close(window);
      break;
    case WM_DESTROY:
      destroy();
      break;
    default:
      break;
  }
  return defaultProcedure(window, message, wParam, lParam);
}
