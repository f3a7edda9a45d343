// Tests what is made of the display's words on its power.
#include <algorithm>
#include <array>
#include <cstring>

#include <gtest/gtest.h>

#include "graphics/linux/memoryWindow.h"
#include "host/linux/x11/displayPower.h"

namespace {

constexpr std::uint8_t opcode = 150;

// No display answers: all that is known is what the events say.
class DisplayPowerTest : public testing::Test {
 protected:
  static LRESULT procedure(xplWindowHandle, UINT, WPARAM, LPARAM) { return 0; }
  static bool hear(DisplayPower& power, std::uint8_t extension, std::uint8_t kind, std::uint8_t level,
                   std::uint8_t type = XCB_GE_GENERIC) {
    // As the protocol lays the event out, byte by byte.
    alignas(8) std::array<std::uint8_t, 36> bytes{};
    bytes[0] = type;
    bytes[1] = extension;
    bytes[8] = kind;
    bytes[16] = level;
    bytes[18] = 1;
    xcb_generic_event_t event;
    static_assert(sizeof event == sizeof bytes);
    std::memcpy(&event, bytes.data(), sizeof event);
    return power.hear(event);
  }

  X11Connection connection;
  MemoryWindow window{{0, 0, 8, 8}, {{0, 0, 8, 8}}};
  MessagePump pump{&window, WindowKind::fullRun, procedure};
  DisplayPower telling{connection, pump, X11Facts::PowerManagement{opcode, true}};
};

TEST_F(DisplayPowerTest, ADisplayIsOnAtFirst) {
  EXPECT_TRUE(telling.isOn());
}

TEST_F(DisplayPowerTest, EveryLevelButOnIsDark) {
  for (const std::uint8_t level : std::array<std::uint8_t, 3>{1, 2, 3}) {
    EXPECT_TRUE(hear(telling, opcode, 0, level));
    EXPECT_FALSE(telling.isOn()) << int{level};
    EXPECT_TRUE(hear(telling, opcode, 0, 0));
    EXPECT_TRUE(telling.isOn()) << int{level};
  }
}

TEST_F(DisplayPowerTest, EventsOfOthersAreNotItsBusiness) {
  EXPECT_FALSE(hear(telling, std::uint8_t{opcode + 1}, 0, 3));
  EXPECT_FALSE(hear(telling, opcode, 1, 3));
  EXPECT_FALSE(hear(telling, opcode, 0, 3, XCB_EXPOSE));
  EXPECT_FALSE(hear(telling, opcode, 0, 3, XCB_GE_GENERIC | 0x80));
  EXPECT_TRUE(telling.isOn());
}

TEST_F(DisplayPowerTest, ADisplayWithoutPowerManagementIsOn) {
  DisplayPower none(connection, pump, std::nullopt);
  EXPECT_FALSE(hear(none, 0, 0, 3));
  none.collect();
  EXPECT_TRUE(none.isOn());
}

}  // namespace
