// The inhibitor over a real bus: when it is held, when it is given back, and buses that refuse or never
// answer.
#include <chrono>
#include <cstring>
#include <thread>

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "harness/privateFolders.h"
#include "services/linux/keepAwakeLinux.h"
#include "services/linux/mockLogind.h"
#include "services/preventComputerSleep.h"
#include "support/fileSystem.h"
#include "support/settings.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr char inhibitor[] = "idle:sleep|Lunaria|The screen saver keeps the computer awake|block";

class KeepAwakeOfLinux : public PrivateFolders {
 protected:
  // What the request answers, which must not keep a frame waiting.
  static bool requestInTime(xpliKeepAwake& keepAwake) {
    const auto start = Clock::now();
    const bool answer = keepAwake.request();
    EXPECT_LT(Clock::now() - start, milliseconds(100));
    return answer;
  }
  // Asks, frame after frame, until the late answer is there. False where it does not come.
  static bool isRefusedInTheEnd(xpliKeepAwake& keepAwake, milliseconds longest) {
    for (const auto end = Clock::now() + longest; Clock::now() < end;
         std::this_thread::sleep_for(milliseconds(40))) {
      const auto start = Clock::now();
      const bool isRefused = keepAwake.wasRefused();
      EXPECT_LT(Clock::now() - start, milliseconds(50));
      if (isRefused) {
        return true;
      }
    }
    return false;
  }
  int failures() const { return countEntriesWith("sleep cannot be prevented: "); }
};

TEST_F(KeepAwakeOfLinux, HoldsAnInhibitorFromTheRequestToTheRelease) {
  MockLogind logind("grant");
  KeepAwakeLinux keepAwake;
  EXPECT_THAT(logind.inhibitors(), IsEmpty());
  EXPECT_TRUE(keepAwake.request());
  EXPECT_FALSE(keepAwake.wasRefused());
  EXPECT_THAT(logind.inhibitors(), ElementsAre(inhibitor));
  keepAwake.release();
  EXPECT_TRUE(logind.isFree());
  EXPECT_EQ(failures(), 0);
}

TEST_F(KeepAwakeOfLinux, ItsEndGivesTheInhibitorBack) {
  MockLogind logind("grant");
  { EXPECT_TRUE(KeepAwakeLinux().request()); }
  EXPECT_TRUE(logind.isFree());
}

TEST_F(KeepAwakeOfLinux, AskingAgainHoldsOneInhibitor) {
  MockLogind logind("grant");
  KeepAwakeLinux keepAwake;
  EXPECT_TRUE(keepAwake.request());
  EXPECT_TRUE(keepAwake.request());
  EXPECT_TRUE(logind.holdsOne());
  EXPECT_THAT(logind.inhibitors(), ElementsAre(inhibitor));
}

TEST_F(KeepAwakeOfLinux, TheSaverHoldsItUntilTheTimeIsOver) {
  MockLogind logind("grant");
  xplUserSettings().set("preventComputerSleep", 1);
  xplUserSettings().set("preventComputerSleepUntilUTCtime_inMinutes", clock.now().seconds / 60 + 10);
  cPreventComputerSleep preventer(std::make_unique<KeepAwakeLinux>());
  EXPECT_THAT(logind.inhibitors(), ElementsAre(inhibitor));
  clock.advance(std::int64_t{11} * 60 * 1'000'000);
  for (int frame = 0; frame < 1500; ++frame) {
    preventer.tick();
  }
  EXPECT_THAT(logind.inhibitors(), ElementsAre(inhibitor));
  preventer.tick();
  EXPECT_TRUE(logind.isFree());
}

TEST_F(KeepAwakeOfLinux, ARefusalIsLogged) {
  const MockLogind logind("refuse");
  KeepAwakeLinux keepAwake;
  const bool isAsked = keepAwake.request();
  EXPECT_TRUE(!isAsked || isRefusedInTheEnd(keepAwake, milliseconds(5'000)));
  EXPECT_EQ(countEntries("sleep cannot be prevented: not for you", "Warning"), 1);
  EXPECT_FALSE(keepAwake.wasRefused()) << "it is told once";
}

TEST_F(KeepAwakeOfLinux, ABusWithoutLogindIsLogged) {
  const MockLogind bus("none");
  KeepAwakeLinux keepAwake;
  const bool isAsked = requestInTime(keepAwake);
  EXPECT_TRUE(!isAsked || isRefusedInTheEnd(keepAwake, milliseconds(5'000)));
  EXPECT_EQ(failures(), 1);
}

TEST_F(KeepAwakeOfLinux, AnAnswerThatComesLateIsNotWaitedFor) {
  const MockLogind logind("late");
  KeepAwakeLinux keepAwake(milliseconds(1'500));  // without an answer it would be refused by then
  EXPECT_TRUE(requestInTime(keepAwake));
  EXPECT_EQ(countEntriesWith("the answer is still to come"), 1);
  EXPECT_FALSE(isRefusedInTheEnd(keepAwake, milliseconds(2'000)));
  EXPECT_EQ(failures(), 0);
}

TEST_F(KeepAwakeOfLinux, ARequestMayBeGivenBackBeforeItsAnswer) {
  const MockLogind logind("late");
  KeepAwakeLinux keepAwake;
  EXPECT_TRUE(requestInTime(keepAwake));
  const auto start = Clock::now();
  keepAwake.release();
  EXPECT_LT(Clock::now() - start, milliseconds(50));
  EXPECT_FALSE(keepAwake.wasRefused());
}

TEST_F(KeepAwakeOfLinux, WithoutABusItFailsAtOnce) {
  TemporaryEnvironment environment;
  environment.set("DBUS_SYSTEM_BUS_ADDRESS",
                  "unix:path=" + xplFileSystemMini::joinPath(root(), "no bus here"));
  KeepAwakeLinux keepAwake;
  EXPECT_FALSE(requestInTime(keepAwake));
  EXPECT_EQ(failures(), 1);
}

TEST_F(KeepAwakeOfLinux, AnAddressThatIsNoneFailsAtOnce) {
  TemporaryEnvironment environment;
  environment.set("DBUS_SYSTEM_BUS_ADDRESS", "no address");
  KeepAwakeLinux keepAwake;
  EXPECT_FALSE(requestInTime(keepAwake));
  EXPECT_EQ(failures(), 1);
}

// A bus that takes connections and says nothing.
class SilentBus {
 public:
  explicit SilentBus(const std::string& path) : m_socket(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
    const bool isThere = bind(m_socket, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 &&
                         listen(m_socket, 4) == 0;
    EXPECT_TRUE(isThere) << std::strerror(errno);
    m_environment.set("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + path);
  }
  ~SilentBus() { close(m_socket); }
  SilentBus(const SilentBus&) = delete;
  SilentBus& operator=(const SilentBus&) = delete;

 private:
  int m_socket;
  TemporaryEnvironment m_environment;
};

TEST_F(KeepAwakeOfLinux, ABusThatNeverAnswersKeepsNobodyWaiting) {
  const SilentBus bus(xplFileSystemMini::joinPath(root(), "bus"));
  KeepAwakeLinux keepAwake;
  EXPECT_TRUE(requestInTime(keepAwake));
  EXPECT_EQ(countEntriesWith("the answer is still to come"), 1);
  EXPECT_FALSE(isRefusedInTheEnd(keepAwake, milliseconds(200)));
  const auto start = Clock::now();
  keepAwake.release();
  EXPECT_LT(Clock::now() - start, milliseconds(50));
}

TEST_F(KeepAwakeOfLinux, AnAnswerThatDoesNotComeCountsAsARefusalInTheEnd) {
  const SilentBus bus(xplFileSystemMini::joinPath(root(), "bus"));
  KeepAwakeLinux keepAwake(milliseconds(150));
  EXPECT_TRUE(requestInTime(keepAwake));
  EXPECT_TRUE(isRefusedInTheEnd(keepAwake, milliseconds(5'000)));
  EXPECT_EQ(countEntries("sleep cannot be prevented: no answer", "Warning"), 1);
  EXPECT_TRUE(requestInTime(keepAwake)) << "it can be asked anew";
}

}  // namespace
