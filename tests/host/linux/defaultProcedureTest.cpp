// Tests what the framework does with the messages that the saver leaves to it.
#include <algorithm>

#include <gtest/gtest.h>

#include "graphics/linux/memoryWindow.h"
#include "host/linux/keys.h"
#include "host/linux/messagePump.h"

namespace {

class NoDisplay : public DisplayLink {
 public:
  int descriptor() const override { return -1; }
  void collect() override {}
  bool mayPaint() override { return false; }
  void flush() override {}
};

// Stand behind the input under test; what the input posted comes between them.
constexpr UINT firstMark = 0x0401;
constexpr UINT lastMark = 0x0402;

class DefaultProcedureTest : public testing::Test {
 protected:
  DefaultProcedureTest() { messages.clear(); }

  static LRESULT procedure(xplWindowHandle handle, UINT message, WPARAM wParam, LPARAM lParam) {
    messages.push_back(message);
    if (message == firstMark) {
      MessagePump::current()->post(lastMark);
    } else if (message == lastMark) {
      MessagePump::current()->quit();
    }
    return DefScreenSaverProc(handle, message, wParam, lParam);
  }

  struct Input {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
  };
  // Runs these messages; true when they close the window.
  bool endsAfter(WindowKind kind, const std::vector<Input>& inputs) {
    messages.clear();
    MessagePump pump(&window, kind, procedure);
    for (const auto& input : inputs) {
      pump.post(input.message, input.wParam, input.lParam);
    }
    pump.post(firstMark);
    NoDisplay display;
    pump.run(display);
    return std::count(messages.begin(), messages.end(), WM_CLOSE) > 0;
  }
  bool ends(WindowKind kind, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return endsAfter(kind, {{message, wParam, lParam}});
  }

  static std::vector<UINT> messages;
  MemoryWindow window{{0, 0, 8, 8}, {}};
};

std::vector<UINT> DefaultProcedureTest::messages;

LPARAM at(int x, int y) {
  return static_cast<LPARAM>((x & 0xFFFF) | (y & 0xFFFF) << 16);
}

TEST_F(DefaultProcedureTest, KeysButtonsAndTheWheelEndTheFullRun) {
  EXPECT_TRUE(ends(WindowKind::fullRun, WM_KEYDOWN));
  EXPECT_TRUE(ends(WindowKind::fullRun, WM_KEYDOWN, keyEscape));
  EXPECT_TRUE(ends(WindowKind::fullRun, WM_LBUTTONDOWN));
  EXPECT_TRUE(ends(WindowKind::fullRun, WM_MOUSEWHEEL));
}

TEST_F(DefaultProcedureTest, TheFirstPlaceOfThePointerEndsNothing) {
  EXPECT_FALSE(ends(WindowKind::fullRun, WM_MOUSEMOVE, 0, at(700, 500)));
}

TEST_F(DefaultProcedureTest, APointerThatStraysFourPixelsEndsNothing) {
  EXPECT_FALSE(endsAfter(
      WindowKind::fullRun,
      {{WM_MOUSEMOVE, 0, at(700, 500)}, {WM_MOUSEMOVE, 0, at(704, 496)}, {WM_MOUSEMOVE, 0, at(696, 504)}}));
}

TEST_F(DefaultProcedureTest, APointerThatLeavesItsPlaceEndsTheFullRun) {
  for (const LPARAM place : {at(705, 500), at(695, 500), at(700, 505), at(700, 495)}) {
    EXPECT_TRUE(endsAfter(WindowKind::fullRun, {{WM_MOUSEMOVE, 0, at(700, 500)}, {WM_MOUSEMOVE, 0, place}}));
  }
}

TEST_F(DefaultProcedureTest, APointerThatIsPutElsewhereEndsNothingUntilItLeavesThatPlace) {
  EXPECT_FALSE(endsAfter(WindowKind::fullRun, {{WM_MOUSEMOVE, 0, at(700, 500)},
                                               {WM_MOUSEMOVE, pointerWasPut, at(100, 90)},
                                               {WM_MOUSEMOVE, 0, at(104, 94)}}));
  EXPECT_TRUE(endsAfter(WindowKind::fullRun, {{WM_MOUSEMOVE, 0, at(700, 500)},
                                              {WM_MOUSEMOVE, pointerWasPut, at(100, 90)},
                                              {WM_MOUSEMOVE, 0, at(105, 90)}}));
}

TEST_F(DefaultProcedureTest, PlacesLeftOfAndFarRightOnTheScreenAreRead) {
  EXPECT_FALSE(endsAfter(WindowKind::fullRun, {{WM_MOUSEMOVE, 0, at(-3, -3)}, {WM_MOUSEMOVE, 0, at(1, 1)}}));
  EXPECT_FALSE(endsAfter(WindowKind::fullRun,
                         {{WM_MOUSEMOVE, 0, at(15359, 4319)}, {WM_MOUSEMOVE, 0, at(15355, 4315)}}));
}

TEST_F(DefaultProcedureTest, NoInputEndsTheRunInAForeignWindow) {
  EXPECT_FALSE(ends(WindowKind::foreign, WM_KEYDOWN, keyEscape));
  EXPECT_FALSE(ends(WindowKind::foreign, WM_LBUTTONDOWN));
  EXPECT_FALSE(ends(WindowKind::foreign, WM_MOUSEWHEEL));
  EXPECT_FALSE(endsAfter(WindowKind::foreign, {{WM_MOUSEMOVE, 0, at(0, 0)}, {WM_MOUSEMOVE, 0, at(500, 0)}}));
}

TEST_F(DefaultProcedureTest, OnlyEscapeAndQEndTheRunInAnOrdinaryWindow) {
  EXPECT_TRUE(ends(WindowKind::ordinary, WM_KEYDOWN, keyEscape));
  EXPECT_TRUE(ends(WindowKind::ordinary, WM_KEYDOWN, keyQ));
  EXPECT_FALSE(ends(WindowKind::ordinary, WM_KEYDOWN));
  EXPECT_FALSE(ends(WindowKind::ordinary, WM_LBUTTONDOWN));
  EXPECT_FALSE(endsAfter(WindowKind::ordinary, {{WM_MOUSEMOVE, 0, at(0, 0)}, {WM_MOUSEMOVE, 0, at(500, 0)}}));
}

TEST_F(DefaultProcedureTest, CloseIsFollowedByDestroyAndTheEnd) {
  for (const auto kind : {WindowKind::fullRun, WindowKind::foreign, WindowKind::ordinary}) {
    messages.clear();
    MessagePump pump(&window, kind, procedure);
    pump.post(WM_CLOSE);
    NoDisplay display;
    pump.run(display);
    EXPECT_EQ(messages, (std::vector<UINT>{WM_CLOSE, WM_DESTROY}));
  }
}

TEST_F(DefaultProcedureTest, ASecondCloseDestroysNothing) {
  MessagePump pump(&window, WindowKind::fullRun, procedure);
  pump.send(WM_CLOSE);
  pump.send(WM_CLOSE);
  EXPECT_EQ(messages, (std::vector<UINT>{WM_CLOSE, WM_DESTROY, WM_CLOSE}));
}

TEST_F(DefaultProcedureTest, WhatItDoesNotKnowIsAnsweredWithZero) {
  const MessagePump pump(&window, WindowKind::fullRun, procedure);
  EXPECT_EQ(DefScreenSaverProc(&window, 0x0400, 1, 2), 0);
  EXPECT_EQ(DefScreenSaverProc(&window, WM_PAINT, 0, 0), 0);
  EXPECT_EQ(DefScreenSaverProc(&window, WM_KEYDOWN, 0, 0), 0);
}

TEST_F(DefaultProcedureTest, WithoutAPumpNothingHappens) {
  EXPECT_EQ(DefScreenSaverProc(&window, WM_CLOSE, 0, 0), 0);
  EXPECT_EQ(DefScreenSaverProc(&window, WM_DESTROY, 0, 0), 0);
  EXPECT_EQ(DefScreenSaverProc(&window, WM_KEYDOWN, 0, 0), 0);
}

}  // namespace
