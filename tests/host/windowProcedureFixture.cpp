// Implements the fixture around the window procedure.
#include "host/windowProcedureFixture.h"

HostRecord WindowProcedureTest::record;
std::vector<WindowProcedureTest::Passed> WindowProcedureTest::passed;

void WindowProcedureTest::reset() {
  windowProcedure::screensaverPtr.reset();
  windowProcedure::timerId = 0;
  windowProcedure::paintingNow = false;
  windowProcedure::initializedOnce = false;
  windowProcedure::makeScreenSaver = windowProcedure::makeNoctisScreensaver;
  windowProcedure::defaultProcedure = DefScreenSaverProc;
  record = HostRecord();
  passed.clear();
}

WindowProcedureTest::WindowProcedureTest() {
  reset();
  windowProcedure::makeScreenSaver = []() -> std::unique_ptr<xplScreenSaverInterface> {
    return std::make_unique<RecordingSaver>(record);
  };
  windowProcedure::defaultProcedure = [](xplWindowHandle handle, UINT message, WPARAM wParam, LPARAM lParam) {
    record.calls.emplace_back("default");
    passed.push_back({handle, message, wParam, lParam});
    return defaultAnswer;
  };
  newEntries();
}

WindowProcedureTest::~WindowProcedureTest() {
  if (windowProcedure::timerId != 0) {
    xplStopTimer(window.handle(), windowProcedure::timerId);
  }
  reset();
}

LRESULT WindowProcedureTest::send(UINT message, WPARAM wParam, LPARAM lParam) {
  return ScreenSaverProc(window.handle(), message, wParam, lParam);
}

std::vector<std::string> WindowProcedureTest::newEntries() {
  const auto all = logEntries();
  const std::vector<std::string> entries(all.begin() + static_cast<std::ptrdiff_t>(m_seenEntries), all.end());
  m_seenEntries = all.size();
  return entries;
}

RecordingSaver* WindowProcedureTest::saver() {
  auto* found = dynamic_cast<RecordingSaver*>(windowProcedure::screensaverPtr.get());
  EXPECT_NE(found, nullptr);
  return found;
}
