// Tests that the saver's timer rests while the display is off.
#include <array>
#include <cstring>
#include <utility>

#include <gtest/gtest.h>

#include "host/platform.h"
#include "host/windows/framework/displayState.h"
#include "host/windows/framework/saverWindow.h"
#include "host/windows/messageQueue.h"

namespace {

constexpr GUID displayState{0x6fe69556, 0x704a, 0x47a0, {0x8f, 0x24, 0xc2, 0x8d, 0x93, 0x6f, 0xda, 0x47}};
constexpr GUID powerSource{0x5d3e9a59, 0xe9d5, 0x4b00, {0xa6, 0xbd, 0xff, 0x34, 0xff, 0x51, 0x65, 0x48}};
constexpr DWORD off = 0;
constexpr DWORD on = 1;
constexpr DWORD dimmed = 2;

// What Windows hands over with the message.
class PowerSetting {
 public:
  PowerSetting(const GUID& guid, DWORD value, DWORD length = sizeof(DWORD)) {
    POWERBROADCAST_SETTING head{};
    head.PowerSetting = guid;
    head.DataLength = length;
    std::memcpy(m_bytes.data(), &head, sizeof(head));
    std::memcpy(m_bytes.data() + offsetof(POWERBROADCAST_SETTING, Data), &value, sizeof(value));
  }
  LPARAM parameter() const { return reinterpret_cast<LPARAM>(m_bytes.data()); }

 private:
  alignas(POWERBROADCAST_SETTING) std::array<char, sizeof(POWERBROADCAST_SETTING) + sizeof(DWORD)> m_bytes{};
};

class DisplayState : public testing::Test {
 protected:
  DisplayState() { id = xplStartTimer(full.handle(), 1, 40); }
  ~DisplayState() override {
    DefScreenSaverProc(full.handle(), WM_DESTROY, 0, 0);
    KillTimer(full.handle(), id);
    MSG message{};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    }
  }
  static void tell(HWND window, DWORD state) {
    const PowerSetting setting(displayState, state);
    DefScreenSaverProc(window, WM_POWERBROADCAST, PBT_POWERSETTINGCHANGE, setting.parameter());
  }
  // Ends the timer for good, if it runs.
  bool timerRan() const { return KillTimer(full.handle(), id) != FALSE; }

  PlainWindow full{DefWindowProcA};
  PlainWindow pane{DefWindowProcA};
  PlainWindow preview{DefWindowProcA, pane.handle()};
  std::uintptr_t id = 0;
};

TEST_F(DisplayState, NoTimerRunsWhileTheDisplayIsOff) {
  tell(full.handle(), off);
  EXPECT_FALSE(timerRan());
}

TEST_F(DisplayState, OnAgainTheTimerTicksUnderItsId) {
  tell(full.handle(), off);
  takePosted(full.handle(), WM_TIMER);
  tell(full.handle(), on);
  MSG message{};
  ASSERT_GT(GetMessageA(&message, full.handle(), WM_TIMER, WM_TIMER), 0);
  EXPECT_EQ(message.wParam, id);
}

// A tick moves the sky by a fixed step, so that as many ticks as usual are no jump.
TEST_F(DisplayState, OnAgainTheTicksOfTheTimeBetweenAreNotMadeUpFor) {
  id = xplStartTimer(full.handle(), 1, 500);
  tell(full.handle(), off);
  takePosted(full.handle(), WM_TIMER);
  Sleep(600);
  tell(full.handle(), on);
  EXPECT_EQ(takePosted(full.handle(), WM_TIMER), 0);
}

TEST_F(DisplayState, DimmedTheTimerTicks) {
  tell(full.handle(), dimmed);
  EXPECT_TRUE(timerRan());
}

TEST_F(DisplayState, FromOffToDimmedTheTimerTicksAgain) {
  tell(full.handle(), off);
  tell(full.handle(), dimmed);
  EXPECT_TRUE(timerRan());
}

TEST_F(DisplayState, OnWithoutOffChangesNothing) {
  tell(full.handle(), on);
  EXPECT_TRUE(timerRan());
}

TEST_F(DisplayState, ToldTwiceIsToldOnce) {
  tell(full.handle(), off);
  tell(full.handle(), off);
  tell(full.handle(), on);
  EXPECT_TRUE(timerRan());
}

TEST_F(DisplayState, ATimerThatIsStoppedMeanwhileStaysStopped) {
  tell(full.handle(), off);
  xplStopTimer(full.handle(), id);
  tell(full.handle(), on);
  EXPECT_FALSE(timerRan());
}

TEST_F(DisplayState, ATimerThatIsStartedMeanwhileWaitsForTheDisplay) {
  xplStopTimer(full.handle(), id);
  tell(full.handle(), off);
  id = xplStartTimer(full.handle(), 1, 40);
  ASSERT_NE(id, 0U);
  EXPECT_FALSE(KillTimer(full.handle(), id));
  tell(full.handle(), on);
  EXPECT_TRUE(timerRan());
}

TEST_F(DisplayState, TheNextWindowsTimerTicks) {
  tell(full.handle(), off);
  DefScreenSaverProc(full.handle(), WM_DESTROY, 0, 0);
  id = xplStartTimer(full.handle(), 1, 40);
  EXPECT_TRUE(timerRan());
}

TEST_F(DisplayState, ThePreviewFollowsNothing) {
  tell(preview.handle(), off);
  EXPECT_TRUE(timerRan());
}

TEST_F(DisplayState, OtherPowerMessagesChangeNothing) {
  const PowerSetting source(powerSource, off);
  DefScreenSaverProc(full.handle(), WM_POWERBROADCAST, PBT_POWERSETTINGCHANGE, source.parameter());
  const PowerSetting tooShort(displayState, off, 1);
  DefScreenSaverProc(full.handle(), WM_POWERBROADCAST, PBT_POWERSETTINGCHANGE, tooShort.parameter());
  DefScreenSaverProc(full.handle(), WM_POWERBROADCAST, PBT_POWERSETTINGCHANGE, 0);
  DefScreenSaverProc(full.handle(), WM_POWERBROADCAST, PBT_APMPOWERSTATUSCHANGE, 0);
  EXPECT_TRUE(timerRan());
}

TEST_F(DisplayState, FollowingEndsNothing) {
  tell(full.handle(), off);
  tell(full.handle(), on);
  EXPECT_EQ(takePosted(full.handle(), WM_CLOSE), 0);
}

TEST_F(DisplayState, ANotificationIsAskedForAndGivenBack) {
  DestroyWindow(pane.handle());
  const DisplayNotification ofAWindow(full.handle());
  const DisplayNotification ofNone(pane.handle());
  EXPECT_TRUE(timerRan());
}

}  // namespace
