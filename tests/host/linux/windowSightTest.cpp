// Tests what is made of the display's words on a window's being seen.
#include <gtest/gtest.h>

#include "host/linux/x11/windowSight.h"

namespace {

constexpr xcb_window_t ours = 7;
constexpr xcb_window_t another = 8;

// The library hands every event out as one of these, whatever it is.
union Event {
  xcb_generic_event_t generic;
  xcb_visibility_notify_event_t visibility;
  xcb_map_notify_event_t map;
  xcb_unmap_notify_event_t unmap;
};

Event visibility(std::uint8_t state, xcb_window_t window = ours) {
  Event event{};
  event.visibility.response_type = XCB_VISIBILITY_NOTIFY;
  event.visibility.window = window;
  event.visibility.state = state;
  return event;
}

Event shown(xcb_window_t window = ours) {
  Event event{};
  event.map.response_type = XCB_MAP_NOTIFY;
  event.map.window = window;
  return event;
}

Event hidden(xcb_window_t window = ours) {
  Event event{};
  event.unmap.response_type = XCB_UNMAP_NOTIFY;
  event.unmap.window = window;
  return event;
}

class WindowSightTest : public testing::Test {
 protected:
  bool hear(const Event& event) { return sight.hear(event.generic); }
  WindowSight sight{ours};
};

TEST_F(WindowSightTest, AWindowOfWhichNothingIsKnownIsSeen) {
  EXPECT_TRUE(sight.isSeen());
}

TEST_F(WindowSightTest, AWindowThatIsWhollyCoveredIsNotSeen) {
  EXPECT_TRUE(hear(visibility(XCB_VISIBILITY_FULLY_OBSCURED)));
  EXPECT_FALSE(sight.isSeen());
}

TEST_F(WindowSightTest, AWindowOfWhichAPartShowsIsSeen) {
  hear(visibility(XCB_VISIBILITY_FULLY_OBSCURED));
  EXPECT_TRUE(hear(visibility(XCB_VISIBILITY_PARTIALLY_OBSCURED)));
  EXPECT_TRUE(sight.isSeen());
  hear(visibility(XCB_VISIBILITY_FULLY_OBSCURED));
  EXPECT_TRUE(hear(visibility(XCB_VISIBILITY_UNOBSCURED)));
  EXPECT_TRUE(sight.isSeen());
}

TEST_F(WindowSightTest, AWindowThatIsPutAwayIsNotSeenUntilItIsBack) {
  EXPECT_TRUE(hear(hidden()));
  EXPECT_FALSE(sight.isSeen());
  EXPECT_TRUE(hear(shown()));
  EXPECT_TRUE(sight.isSeen());
}

TEST_F(WindowSightTest, WhatCoveredAWindowThatWasPutAwayIsForgotten) {
  hear(visibility(XCB_VISIBILITY_FULLY_OBSCURED));
  hear(hidden());
  hear(shown());
  EXPECT_TRUE(sight.isSeen());
}

TEST_F(WindowSightTest, OtherWindowsAreNotItsBusiness) {
  EXPECT_FALSE(hear(visibility(XCB_VISIBILITY_FULLY_OBSCURED, another)));
  EXPECT_FALSE(hear(hidden(another)));
  EXPECT_TRUE(sight.isSeen());
  hear(hidden());
  EXPECT_FALSE(hear(shown(another)));
  EXPECT_FALSE(sight.isSeen());
}

TEST_F(WindowSightTest, OtherEventsAreNotItsBusiness) {
  Event event{};
  event.generic.response_type = XCB_EXPOSE;
  EXPECT_FALSE(hear(event));
}

TEST_F(WindowSightTest, WhatAnotherProgramSaysIsNotBelieved) {
  Event event = visibility(XCB_VISIBILITY_FULLY_OBSCURED);
  event.generic.response_type |= 0x80;
  EXPECT_FALSE(hear(event));
  EXPECT_TRUE(sight.isSeen());
}

}  // namespace
