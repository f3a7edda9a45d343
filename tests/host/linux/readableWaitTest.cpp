// Tests the wait for a display server: what ends it, and with which answer.
#include <array>
#include <csignal>
#include <cstdlib>
#include <thread>

#include <gtest/gtest.h>
#include <unistd.h>

#include "host/linux/readableWait.h"

namespace {

class ReadableWait : public testing::Test {
 protected:
  ReadableWait() {
    std::array<int, 2> ends{};
    EXPECT_EQ(::pipe(ends.data()), 0);
    reader = FileDescriptor(ends[0]);
    writer = FileDescriptor(ends[1]);
  }
  void send() { EXPECT_EQ(::write(writer.get(), "x", 1), 1); }

  FileDescriptor reader;
  FileDescriptor writer;
};

TEST_F(ReadableWait, EndsWhenSomethingArrives) {
  std::thread display([this] { send(); });
  EXPECT_TRUE(waitUntilReadable(reader.get(), nullptr));
  display.join();
}

TEST_F(ReadableWait, EndsWhenTheOtherSideHasGone) {
  writer = FileDescriptor();
  EXPECT_TRUE(waitUntilReadable(reader.get(), nullptr));
}

// In processes of their own, since from then on signals no longer end them.
TEST_F(ReadableWait, EndsWithoutAnAnswerWhereASignalArrives) {
  const auto run = [this] {
    StopSignals signals;
    std::thread sender([] { ::kill(::getpid(), SIGTERM); });
    const bool isReadable = waitUntilReadable(reader.get(), &signals);
    sender.join();
    std::_Exit(!isReadable && signals.arrived() ? 0 : 1);
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(ReadableWait, DoesNotBeginAfterASignalEvenWhereThereIsSomethingToRead) {
  const auto run = [this] {
    StopSignals signals;
    ::raise(SIGTERM);
    send();
    std::_Exit(waitUntilReadable(reader.get(), &signals) ? 1 : 0);
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

}  // namespace
