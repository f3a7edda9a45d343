// What the services ask of Windows, call by call.
#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "services/recordingServices.h"
#include "services/soundPlayer.h"
#include "services/windows/keepAwakeWin.h"
#include "services/windows/soundOutputWin.h"

// It builds on the above.
#include <mmsystem.h>

using testing::ElementsAre;

namespace {

Calls& heard() {
  static Calls calls;
  return calls;
}

BOOL WINAPI hearSound(LPCSTR name, HMODULE module, DWORD flags) {
  const bool isOwn = module == GetModuleHandleA(nullptr);
  heard().push_back(std::to_string(reinterpret_cast<std::uintptr_t>(name)) + (isOwn ? " own " : " none ") +
                    std::to_string(flags));
  return FALSE;  // which nobody looks at
}

EXECUTION_STATE nextAnswer = 0;
EXECUTION_STATE WINAPI hearState(EXECUTION_STATE state) {
  heard().push_back(std::to_string(state));
  return nextAnswer;
}

class ServicesOfWindows : public PrivateFolders {
 protected:
  ServicesOfWindows() { heard().clear(); }
};

TEST_F(ServicesOfWindows, StoppingIsPlayingNothing) {
  SoundOutputWin(hearSound).stop();
  EXPECT_THAT(heard(), ElementsAre("0 none 1"));
}

TEST_F(ServicesOfWindows, PlaysAResourceOfItsOwnOnce) {
  SoundOutputWin(hearSound).play(116, false);
  EXPECT_THAT(heard(), ElementsAre("116 own " + std::to_string(0x40005)));
}

TEST_F(ServicesOfWindows, PlaysAResourceOfItsOwnOverAndOver) {
  SoundOutputWin(hearSound).play(4, true);
  EXPECT_THAT(heard(), ElementsAre("4 own " + std::to_string(0x4000D)));
}

TEST_F(ServicesOfWindows, TheHourIsThreeCalls) {
  cSoundPlayer player(std::make_unique<SoundOutputWin>(hearSound));
  player.playCuckoo();
  EXPECT_THAT(heard(), ElementsAre("0 none 1", "0 none 1", "111 own " + std::to_string(0x40005)));
}

TEST_F(ServicesOfWindows, TheProgramCarriesEverySoundUnderItsType) {
  for (const int id : {116, 115, 4, 117, 109, 112, 111, 114}) {
    EXPECT_NE(FindResourceA(nullptr, MAKEINTRESOURCEA(id), "WAVE"), nullptr) << id;
  }
}

TEST_F(ServicesOfWindows, WithoutASoundCardPlayingComesBack) {
  SoundOutputWin output(PlaySoundA);
  output.play(111, false);
  output.play(116, true);
  output.stop();
  EXPECT_EQ(countEntriesWith("silent"), 0);
}

TEST_F(ServicesOfWindows, KeptStayingAwakeIsAskedForOnceAndNotForGood) {
  KeepAwakeWin keepAwake(hearState);
  nextAnswer = 1;
  EXPECT_TRUE(keepAwake.request());
  keepAwake.release();
  EXPECT_THAT(heard(), ElementsAre("67"));
  EXPECT_FALSE(keepAwake.wasRefused());
}

TEST_F(ServicesOfWindows, ARequestThatIsAnsweredWithNothingIsRefused) {
  KeepAwakeWin keepAwake(hearState);
  nextAnswer = 0;
  EXPECT_FALSE(keepAwake.request());
}

}  // namespace
