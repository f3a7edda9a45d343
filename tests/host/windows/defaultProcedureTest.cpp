// Tests the framework's own answers: input ends the full run, and ends nothing in the preview.
#include <gtest/gtest.h>

#include "host/windows/framework/saverWindow.h"
#include "host/windows/messageQueue.h"

namespace {

LPARAM at(int x, int y) {
  return MAKELPARAM(x, y);
}

class DefaultProcedure : public testing::Test {
 protected:
  ~DefaultProcedure() override {
    // What one test left must not reach the next: the first pointer position, a quit message.
    DefScreenSaverProc(full.handle(), WM_DESTROY, 0, 0);
    MSG message{};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    }
  }
  // Whether the message asked for the end of the run.
  static bool ends(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    takePosted(window, WM_CLOSE);
    DefScreenSaverProc(window, message, wParam, lParam);
    return takePosted(window, WM_CLOSE) == 1;
  }

  PlainWindow full{DefWindowProcA};
  PlainWindow pane{DefWindowProcA};
  PlainWindow preview{DefWindowProcA, pane.handle()};
};

constexpr UINT inputs[] = {WM_KEYDOWN,     WM_SYSKEYDOWN,  WM_LBUTTONDOWN, WM_RBUTTONDOWN,
                           WM_MBUTTONDOWN, WM_XBUTTONDOWN, WM_MOUSEWHEEL,  WM_MOUSEHWHEEL};

TEST_F(DefaultProcedure, KeysButtonsAndTheWheelEndTheFullRun) {
  for (const UINT message : inputs) {
    EXPECT_TRUE(ends(full.handle(), message)) << message;
  }
}

TEST_F(DefaultProcedure, ReleasesEndNothing) {
  constexpr UINT releases[] = {WM_KEYUP, WM_SYSKEYUP, WM_LBUTTONUP, WM_RBUTTONUP, WM_MBUTTONUP};
  for (const UINT message : releases) {
    EXPECT_FALSE(ends(full.handle(), message)) << message;
  }
}

TEST_F(DefaultProcedure, InputEndsNothingInThePreview) {
  for (const UINT message : inputs) {
    EXPECT_FALSE(ends(preview.handle(), message)) << message;
  }
  EXPECT_FALSE(ends(preview.handle(), WM_MOUSEMOVE, 0, at(1, 1)));
  EXPECT_FALSE(ends(preview.handle(), WM_MOUSEMOVE, 0, at(90, 70)));
  EXPECT_FALSE(ends(preview.handle(), WM_ACTIVATE, WA_INACTIVE));
  EXPECT_FALSE(ends(preview.handle(), WM_ACTIVATEAPP, FALSE));
  EXPECT_FALSE(ends(preview.handle(), WM_DISPLAYCHANGE));
}

TEST_F(DefaultProcedure, TheFirstPointerPositionEndsNothing) {
  EXPECT_FALSE(ends(full.handle(), WM_MOUSEMOVE, 0, at(500, 400)));
  EXPECT_FALSE(ends(full.handle(), WM_MOUSEMOVE, 0, at(500, 400)));
}

TEST_F(DefaultProcedure, ATremblingPointerEndsNothing) {
  ends(full.handle(), WM_MOUSEMOVE, 0, at(500, 400));
  EXPECT_FALSE(ends(full.handle(), WM_MOUSEMOVE, 0, at(504, 396)));
  EXPECT_FALSE(ends(full.handle(), WM_MOUSEMOVE, 0, at(496, 404)));
}

TEST_F(DefaultProcedure, AMovedPointerEndsTheFullRun) {
  ends(full.handle(), WM_MOUSEMOVE, 0, at(500, 400));
  EXPECT_TRUE(ends(full.handle(), WM_MOUSEMOVE, 0, at(505, 400)));
  EXPECT_TRUE(ends(full.handle(), WM_MOUSEMOVE, 0, at(500, 395)));
}

TEST_F(DefaultProcedure, SmallStepsFromTheFirstPositionAddUp) {
  ends(full.handle(), WM_MOUSEMOVE, 0, at(500, 400));
  EXPECT_FALSE(ends(full.handle(), WM_MOUSEMOVE, 0, at(503, 400)));
  EXPECT_TRUE(ends(full.handle(), WM_MOUSEMOVE, 0, at(506, 400)));
}

TEST_F(DefaultProcedure, PositionsLeftOfTheMainMonitorAreNegative) {
  ends(full.handle(), WM_MOUSEMOVE, 0, at(-2, -2));
  EXPECT_FALSE(ends(full.handle(), WM_MOUSEMOVE, 0, at(1, 1)));
}

TEST_F(DefaultProcedure, ANewRunForgetsThePointer) {
  ends(full.handle(), WM_MOUSEMOVE, 0, at(500, 400));
  DefScreenSaverProc(full.handle(), WM_DESTROY, 0, 0);
  EXPECT_FALSE(ends(full.handle(), WM_MOUSEMOVE, 0, at(10, 10)));
}

TEST_F(DefaultProcedure, LosingTheScreenEndsTheFullRun) {
  EXPECT_TRUE(ends(full.handle(), WM_ACTIVATE, WA_INACTIVE));
  EXPECT_TRUE(ends(full.handle(), WM_ACTIVATEAPP, FALSE));
  EXPECT_TRUE(ends(full.handle(), WM_DISPLAYCHANGE));
  EXPECT_TRUE(ends(full.handle(), WM_POWERBROADCAST, PBT_APMRESUMESUSPEND));
}

TEST_F(DefaultProcedure, GainingTheScreenEndsNothing) {
  EXPECT_FALSE(ends(full.handle(), WM_ACTIVATEAPP, TRUE));
  EXPECT_FALSE(ends(full.handle(), WM_POWERBROADCAST, PBT_APMSUSPEND));
  EXPECT_FALSE(ends(full.handle(), WM_POWERBROADCAST, PBT_APMPOWERSTATUSCHANGE));
}

TEST_F(DefaultProcedure, TheFullRunHidesThePointer) {
  SetCursor(LoadCursorA(nullptr, IDC_ARROW));
  EXPECT_EQ(DefScreenSaverProc(full.handle(), WM_SETCURSOR, 0, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)), TRUE);
  EXPECT_EQ(GetCursor(), nullptr);
}

TEST_F(DefaultProcedure, NoSecondSaverStartsOverTheFirst) {
  EXPECT_EQ(DefScreenSaverProc(full.handle(), WM_SYSCOMMAND, SC_SCREENSAVE, 0), 0);
  EXPECT_EQ(DefScreenSaverProc(full.handle(), WM_SYSCOMMAND, SC_SCREENSAVE | 3, 0), 0);
  EXPECT_TRUE(IsWindow(full.handle()));
}

TEST_F(DefaultProcedure, TheSystemCommandToCloseClosesTheWindow) {
  DefScreenSaverProc(full.handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
  EXPECT_FALSE(IsWindow(full.handle()));
}

TEST_F(DefaultProcedure, ClosingDestroysTheWindow) {
  DefScreenSaverProc(full.handle(), WM_CLOSE, 0, 0);
  EXPECT_FALSE(IsWindow(full.handle()));
}

TEST_F(DefaultProcedure, DestroyingEndsTheMessageLoop) {
  EXPECT_EQ(DefScreenSaverProc(full.handle(), WM_DESTROY, 0, 0), 0);
  MSG message{};
  ASSERT_TRUE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 0U);
}

TEST_F(DefaultProcedure, TheEndOfTheSessionClosesAtOnce) {
  DefScreenSaverProc(full.handle(), WM_ENDSESSION, TRUE, 0);
  EXPECT_FALSE(IsWindow(full.handle()));
  DefScreenSaverProc(preview.handle(), WM_ENDSESSION, TRUE, 0);
  EXPECT_FALSE(IsWindow(preview.handle()));
}

TEST_F(DefaultProcedure, ACancelledEndOfTheSessionClosesNothing) {
  DefScreenSaverProc(full.handle(), WM_ENDSESSION, FALSE, 0);
  EXPECT_TRUE(IsWindow(full.handle()));
  EXPECT_EQ(takePosted(full.handle(), WM_CLOSE), 0);
}

TEST_F(DefaultProcedure, WhatItDoesNotKnowGoesToTheSystem) {
  SetWindowTextA(full.handle(), "");
  const char text[] = "sky";
  EXPECT_EQ(DefScreenSaverProc(full.handle(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)), TRUE);
  EXPECT_EQ(DefScreenSaverProc(full.handle(), WM_GETTEXTLENGTH, 0, 0), 3);
}

}  // namespace
