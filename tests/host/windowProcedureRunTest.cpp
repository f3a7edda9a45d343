// Tests the messages of a run: ticks, paints, erasing, closing, destroying, and those that are not handled.
#include <gmock/gmock.h>

#include "host/windowProcedureFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class WindowProcedureRun : public WindowProcedureTest {
 protected:
  // Creates, and forgets what that did.
  WindowProcedureRun() {
    send(WM_CREATE);
    record.calls.clear();
    newEntries();
  }
};

TEST_F(WindowProcedureRun, ATickAnimatesByItsFixedStep) {
  EXPECT_EQ(send(WM_TIMER, windowProcedure::timerId), 0);
  clock.advance(10'000'000);
  EXPECT_EQ(send(WM_TIMER, windowProcedure::timerId), 0);
  EXPECT_THAT(record.steps, ElementsAre(0.04F, 0.04F));
  EXPECT_THAT(passed, IsEmpty());
}

TEST_F(WindowProcedureRun, AForeignTimerDoesNothing) {
  EXPECT_EQ(send(WM_TIMER, windowProcedure::timerId + 1), 0);
  EXPECT_THAT(record.calls, IsEmpty());
}

TEST_F(WindowProcedureRun, ATickDuringAPaintIsSkipped) {
  record.duringDraw = [this] { EXPECT_EQ(send(WM_TIMER, windowProcedure::timerId), 0); };
  record.duringFlush = record.duringDraw;
  send(WM_PAINT);
  EXPECT_THAT(record.steps, IsEmpty());
  send(WM_TIMER, windowProcedure::timerId);
  EXPECT_THAT(record.steps, ElementsAre(0.04F));
}

TEST_F(WindowProcedureRun, APaintDrawsThenFlushesThenPassesOn) {
  EXPECT_EQ(send(WM_PAINT, 7, 9), defaultAnswer);
  EXPECT_THAT(record.calls, ElementsAre("draw", "flush", "default"));
  EXPECT_THAT(passed, ElementsAre(Passed{window.handle(), WM_PAINT, 7, 9}));
}

TEST_F(WindowProcedureRun, ThePaintFlagIsSetForDrawAndFlushOnly) {
  bool drawing = false;
  bool flushing = false;
  record.duringDraw = [&] { drawing = windowProcedure::paintingNow; };
  record.duringFlush = [&] { flushing = windowProcedure::paintingNow; };
  send(WM_PAINT);
  EXPECT_TRUE(drawing);
  EXPECT_TRUE(flushing);
  EXPECT_FALSE(windowProcedure::paintingNow);
}

TEST_F(WindowProcedureRun, ErasingIsAnsweredAndNotPassedOn) {
  EXPECT_EQ(send(WM_ERASEBKGND), 1);
  EXPECT_THAT(record.calls, ElementsAre("erase"));
  EXPECT_THAT(newEntries(), ElementsAre("Entering: WM_ERASEBKGND", "Exiting: WM_ERASEBKGND"));
}

TEST_F(WindowProcedureRun, ClosingStopsTheTimerWaitsAndPassesOn) {
  const auto before = clock.now();
  EXPECT_EQ(send(WM_CLOSE, 1, 2), defaultAnswer);
  EXPECT_EQ(windowProcedure::timerId, 0U);
  EXPECT_EQ(clock.now().seconds, before.seconds);
  EXPECT_EQ(clock.now().microseconds - before.microseconds, 40'000);
  EXPECT_THAT(passed, ElementsAre(Passed{window.handle(), WM_CLOSE, 1, 2}));
  EXPECT_THAT(record.calls, ElementsAre("default"));
  EXPECT_THAT(newEntries(), ElementsAre("ScreenSaverProc() received WM_CLOSE"));
}

TEST_F(WindowProcedureRun, ClosingTwiceIsBorne) {
  send(WM_CLOSE);
  EXPECT_EQ(send(WM_CLOSE), defaultAnswer);
  EXPECT_EQ(windowProcedure::timerId, 0U);
}

TEST_F(WindowProcedureRun, KeptDestroyingLogsTwoBlanksBeforeTheMessage) {
  send(WM_DESTROY);
  EXPECT_EQ(countEntries("ScreenSaverProc() received  WM_DESTROY", "Info"), 1);
  EXPECT_EQ(countEntries("ScreenSaverProc() received WM_DESTROY"), 0);
}

TEST_F(WindowProcedureRun, DestroyingShutsDownDeletesAndPassesOn) {
  EXPECT_EQ(send(WM_DESTROY, 3, 4), defaultAnswer);
  EXPECT_THAT(record.calls, ElementsAre("shutDown", "delete", "default"));
  EXPECT_EQ(windowProcedure::screensaverPtr, nullptr);
  EXPECT_THAT(passed, ElementsAre(Passed{window.handle(), WM_DESTROY, 3, 4}));
  EXPECT_THAT(newEntries(), ElementsAre("ScreenSaverProc() received  WM_DESTROY",
                                        "destroying: xplScreenSaverAbstract", "xplLog closing"));
}

TEST_F(WindowProcedureRun, AfterDestroyTicksAndPaintsReachNobody) {
  send(WM_DESTROY);
  record.calls.clear();
  EXPECT_EQ(send(WM_TIMER, windowProcedure::timerId), 0);
  EXPECT_EQ(send(WM_PAINT), defaultAnswer);
  EXPECT_THAT(record.calls, ElementsAre("default"));
}

TEST_F(WindowProcedureRun, MonitorsThatChangeAreToldToTheSaverAndPassedOn) {
  EXPECT_EQ(send(WM_DISPLAYCHANGE, 32, 0x00500064), defaultAnswer);
  EXPECT_THAT(record.calls, ElementsAre("monitors", "default"));
  EXPECT_THAT(passed, ElementsAre(Passed{window.handle(), WM_DISPLAYCHANGE, 32, 0x00500064}));
}

TEST_F(WindowProcedureRun, UnhandledMessagesArePassedOnAsTheyAre) {
  EXPECT_EQ(send(WM_KEYDOWN, 27, 65537), defaultAnswer);
  EXPECT_EQ(send(WM_MOUSEMOVE, 0, 0x00500064), defaultAnswer);
  EXPECT_THAT(passed, ElementsAre(Passed{window.handle(), WM_KEYDOWN, 27, 65537},
                                  Passed{window.handle(), WM_MOUSEMOVE, 0, 0x00500064}));
  EXPECT_THAT(record.calls, ElementsAre("default", "default"));
}

TEST_F(WindowProcedureTest, DestroyBeforeAnyCreateLogsBothLinesAndDeletesNothing) {
  EXPECT_EQ(send(WM_DESTROY), defaultAnswer);
  EXPECT_THAT(newEntries(), ElementsAre("ScreenSaverProc() received  WM_DESTROY", "xplLog closing"));
  EXPECT_THAT(record.calls, ElementsAre("default"));
}

TEST_F(WindowProcedureTest, AllOtherMessagesBeforeAnyCreateAreBorne) {
  EXPECT_EQ(send(WM_TIMER, 1), 0);
  EXPECT_EQ(send(WM_PAINT), defaultAnswer);
  EXPECT_EQ(send(WM_DISPLAYCHANGE), defaultAnswer);
  EXPECT_EQ(send(WM_ERASEBKGND), 1);
  EXPECT_EQ(send(WM_CLOSE), defaultAnswer);
}

}  // namespace
