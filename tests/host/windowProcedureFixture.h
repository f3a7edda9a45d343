// A fixture that drives ScreenSaverProc on a real window, with a recording saver and a recording default
// procedure.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "harness/privateFolders.h"
#include "host/hostEnvironment.h"
#include "host/recordingSaver.h"
#include "host/windowProcedure.h"
#include "windowharness/testWindow.h"

// The procedure's process-wide state is as at the program's start, before and after each test.
class WindowProcedureTest : public PrivateFolders {
 protected:
  // A message that reached the default procedure.
  struct Passed {
    xplWindowHandle window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool operator==(const Passed&) const = default;
  };
  // What the default procedure answers.
  static constexpr LRESULT defaultAnswer = 4711;

  WindowProcedureTest();
  ~WindowProcedureTest() override;

  // Sends a message to the procedure.
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
  // The texts of the log since the last call of it, or since the fixture was made.
  std::vector<std::string> newEntries();
  // The recorder that the procedure holds now; fails the test where there is none.
  RecordingSaver* saver();

  TestWindow window{100, 80};
  HostEnvironment environment{window.handle()};
  static HostRecord record;
  static std::vector<Passed> passed;

 private:
  static void reset();

  std::size_t m_seenEntries = 0;
};
