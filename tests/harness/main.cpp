// The main of every test program.
#include <memory>

#include <gmock/gmock.h>

#include "harness/watchdog.h"

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  // The slowest test takes a minute, under Wine on a busy machine.
  testing::UnitTest::GetInstance()->listeners().Append(
      std::make_unique<Watchdog>(std::chrono::minutes(10)).release());  // the listeners own it from here on
  return RUN_ALL_TESTS();
}
