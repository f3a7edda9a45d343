// Gives the application object the arguments that the program's entry would give it.
#include <memory>

#include <gtest/gtest.h>

#include "support/linux/applicationLinux.h"

namespace {

class HostArguments : public testing::Environment {
 public:
  void SetUp() override { xplAppLinux::setArguments({"test_host", "/s"}); }
};

[[maybe_unused]] const auto* const environment =
    testing::AddGlobalTestEnvironment(std::make_unique<HostArguments>().release());

}  // namespace
