// Tests WM_CREATE: the object, its one initialisation, what that throws, and the timer.
#include <new>
#include <stdexcept>

#include <gmock/gmock.h>

#include "host/windowProcedureFixture.h"
#include "support/fileSystem.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

constexpr char context[] = "exception caught: screensaverPtr->initWithWindowHandle()";

class WindowProcedureCreate : public WindowProcedureTest {
 protected:
  // The error entries that WM_CREATE leaves when the initialisation does this.
  int errorsAfter(const std::function<void()>& step, const std::string& expected) {
    record.duringInit = step;
    EXPECT_EQ(send(WM_CREATE), 0);
    return countEntries(expected, "ERROR");
  }
  int countErrors() {
    const std::string text = logText();
    int count = 0;
    for (auto at = text.find("ERROR>\t"); at != std::string::npos; at = text.find("ERROR>\t", at + 1)) {
      ++count;
    }
    return count;
  }
};

TEST_F(WindowProcedureCreate, LogsItsStepsInOrder) {
  send(WM_CREATE);
  const auto entries = newEntries();
  ASSERT_GE(entries.size(), 7U);
  EXPECT_EQ(entries[0], "ScreenSaverProc() received WM_CREATE");
  EXPECT_THAT(entries[1], StartsWith("notepad window handle: "));
  EXPECT_EQ(entries[2], "creating: xplScreenSaverAbstract");
  EXPECT_EQ(entries[3], "Program: Lunaria screensaver 5.4.1");
  EXPECT_EQ(entries[4], "creating xplApp");
  EXPECT_THAT(entries[5], StartsWith("Application command line: "));
  EXPECT_THAT(entries[6], StartsWith("arg[0]:"));
}

TEST_F(WindowProcedureCreate, KeptNotepadLineShowsTheHandleAndNothingElseDependsOnIt) {
  const auto found = static_cast<int>(xplFindNotepadWindow());
  send(WM_CREATE);
  EXPECT_EQ(countEntries("notepad window handle: " + std::to_string(found), "Info"), 1);
}

TEST_F(WindowProcedureCreate, MakesTheObjectAndInitialisesItOnTheWindow) {
  EXPECT_EQ(send(WM_CREATE), 0);
  EXPECT_THAT(record.calls, ElementsAre("construct", "init"));
  EXPECT_THAT(record.windows, ElementsAre(window.handle()));
  EXPECT_THAT(record.monitorIds, ElementsAre(0));
  EXPECT_TRUE(windowProcedure::initializedOnce);
  EXPECT_THAT(passed, IsEmpty());
}

TEST_F(WindowProcedureCreate, TellsTheObjectItsFolderBeforeItInitialises) {
  send(WM_CREATE);
  EXPECT_EQ(record.containerFolder, xplFileSystemMini::applicationFolder());
  EXPECT_FALSE(record.containerFolder.empty());
}

TEST_F(WindowProcedureCreate, StartsTheTimer) {
  EXPECT_EQ(windowProcedure::timerId, 0U);
  send(WM_CREATE);
  EXPECT_NE(windowProcedure::timerId, 0U);
}

TEST_F(WindowProcedureCreate, SetsTheFrameRateEveryTime) {
  send(WM_CREATE);
  ASSERT_NE(saver(), nullptr);
  EXPECT_EQ(saver()->targetFrameRate, 25);
  saver()->targetFrameRate = 60;
  send(WM_CREATE);
  EXPECT_EQ(saver()->targetFrameRate, 25);
}

TEST_F(WindowProcedureCreate, ASecondOneStartsATimerAndMakesNothing) {
  send(WM_CREATE);
  send(WM_CLOSE);
  EXPECT_EQ(windowProcedure::timerId, 0U);
  record.calls.clear();
  newEntries();
  EXPECT_EQ(send(WM_CREATE), 0);
  EXPECT_THAT(record.calls, IsEmpty());
  EXPECT_NE(windowProcedure::timerId, 0U);
  EXPECT_THAT(newEntries(),
              ElementsAre("ScreenSaverProc() received WM_CREATE", StartsWith("notepad window handle: ")));
}

TEST_F(WindowProcedureCreate, AfterDestroyANewObjectIsMadeAndNotInitialised) {
  send(WM_CREATE);
  send(WM_DESTROY);
  record.calls.clear();
  send(WM_CREATE);
  EXPECT_THAT(record.calls, ElementsAre("construct"));
  EXPECT_NE(windowProcedure::screensaverPtr, nullptr);
}

TEST_F(WindowProcedureCreate, MakesAWholeSkyForAQuietRunAndNoReport) {
  windowProcedure::makeScreenSaver = windowProcedure::makeQuietScreensaver;
  send(WM_CREATE);
  EXPECT_EQ(countEntries("Creating TnoctisWorld with monitorId =0"), 1);
  EXPECT_EQ(countEntries("Entering: creating telemetry thread"), 0);
}

TEST_F(WindowProcedureCreate, WithoutAnObjectOnlyTheTimerStarts) {
  windowProcedure::makeScreenSaver = [] { return std::unique_ptr<xplScreenSaverInterface>(); };
  EXPECT_EQ(send(WM_CREATE), 0);
  EXPECT_NE(windowProcedure::timerId, 0U);
  EXPECT_FALSE(windowProcedure::initializedOnce);
  EXPECT_EQ(countEntries("creating xplApp"), 0);
}

TEST_F(WindowProcedureCreate, WithoutAnObjectEveryMessageIsBorne) {
  windowProcedure::makeScreenSaver = [] { return std::unique_ptr<xplScreenSaverInterface>(); };
  send(WM_CREATE);
  EXPECT_EQ(send(WM_TIMER, windowProcedure::timerId), 0);
  EXPECT_EQ(send(WM_PAINT), defaultAnswer);
  EXPECT_EQ(send(WM_ERASEBKGND), 1);
  EXPECT_EQ(send(WM_CLOSE), defaultAnswer);
  EXPECT_EQ(send(WM_DESTROY), defaultAnswer);
  EXPECT_THAT(record.calls, ElementsAre("default", "default", "default"));
}

TEST_F(WindowProcedureCreate, ARuntimeErrorIsLoggedWithItsText) {
  const auto step = [] { throw std::runtime_error("no sky"); };
  EXPECT_EQ(errorsAfter(step, std::string("Runtime error caught:\nno sky\n") + context), 1);
  EXPECT_EQ(countErrors(), 1);
}

TEST_F(WindowProcedureCreate, AnErrorDerivedFromARuntimeErrorCountsAsOne) {
  const auto step = [] { throw std::range_error("too far"); };
  EXPECT_EQ(errorsAfter(step, std::string("Runtime error caught:\ntoo far\n") + context), 1);
}

TEST_F(WindowProcedureCreate, AnotherExceptionIsLoggedWithItsText) {
  const auto step = [] { throw std::invalid_argument("no window"); };
  EXPECT_EQ(errorsAfter(step, std::string("Exception caught:\nno window\n") + context), 1);
  EXPECT_EQ(countErrors(), 1);
}

TEST_F(WindowProcedureCreate, APointerToAnExceptionIsLoggedWithItsText) {
  static std::logic_error thrown("by pointer");
  const auto step = [] { throw &thrown; };
  EXPECT_EQ(errorsAfter(step, std::string("Exception caught:\nby pointer\n") + context), 1);
  EXPECT_EQ(countErrors(), 1);
}

TEST_F(WindowProcedureCreate, ANullPointerToAnExceptionLogsNothing) {
  record.duringInit = [] { throw static_cast<std::exception*>(nullptr); };
  EXPECT_EQ(send(WM_CREATE), 0);
  EXPECT_EQ(countErrors(), 0);
  EXPECT_TRUE(windowProcedure::initializedOnce);
}

TEST_F(WindowProcedureCreate, AnythingElseThrownIsLoggedWithoutText) {
  const auto step = [] { throw 42; };
  EXPECT_EQ(errorsAfter(step, std::string("Exception caught:") + context), 1);
  EXPECT_EQ(countErrors(), 1);
}

TEST_F(WindowProcedureCreate, AfterAnExceptionTheSaverCarriesOn) {
  record.duringInit = [] { throw std::runtime_error("no sky"); };
  send(WM_CREATE);
  EXPECT_TRUE(windowProcedure::initializedOnce);
  EXPECT_NE(windowProcedure::timerId, 0U);
  record.calls.clear();
  send(WM_TIMER, windowProcedure::timerId);
  send(WM_PAINT);
  EXPECT_THAT(record.calls, ElementsAre("animate", "draw", "flush", "default"));
  record.calls.clear();
  send(WM_CREATE);
  EXPECT_THAT(record.calls, IsEmpty());
}

TEST(MonitorId, IsMinusOneForThePreviewAlone) {
  EXPECT_EQ(windowProcedure::monitorIdFor({"Lunaria.scr", "/p", "1234"}), -1);
  EXPECT_EQ(windowProcedure::monitorIdFor({"Lunaria.scr", "/p"}), -1);
  EXPECT_EQ(windowProcedure::monitorIdFor({"Lunaria.scr", "/s"}), 0);
  EXPECT_EQ(windowProcedure::monitorIdFor({"Lunaria.scr"}), 0);
  EXPECT_EQ(windowProcedure::monitorIdFor({}), 0);
}

TEST(MonitorId, KeptOnlyTheExactFirstArgumentIsThePreview) {
  EXPECT_EQ(windowProcedure::monitorIdFor({"Lunaria.scr", "/P", "1234"}), 0);
  EXPECT_EQ(windowProcedure::monitorIdFor({"Lunaria.scr", "-p", "1234"}), 0);
  EXPECT_EQ(windowProcedure::monitorIdFor({"Lunaria.scr", "/p:1234"}), 0);
  EXPECT_EQ(windowProcedure::monitorIdFor({"Lunaria.scr", " /p"}), 0);
  EXPECT_EQ(windowProcedure::monitorIdFor({"Lunaria.scr", "1234", "/p"}), 0);
  EXPECT_EQ(windowProcedure::monitorIdFor({"/p", "/s"}), 0);
}

}  // namespace
