// Tests what the framework reads from its command line.
#include <gtest/gtest.h>

#include "host/windows/framework/commandLine.h"

namespace {

using Mode = FrameworkCommand::Mode;

FrameworkCommand commandOf(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "Lunaria.scr");
  return frameworkCommandOf(arguments);
}

TEST(FrameworkCommandLine, SIsTheFullRunInEveryForm) {
  for (const char* option : {"/s", "/S", "-s", "-S"}) {
    EXPECT_EQ(commandOf({option}).mode, Mode::fullRun) << option;
  }
}

TEST(FrameworkCommandLine, PIsThePreviewWithItsWindow) {
  for (const char* option : {"/p", "/P", "-p", "-P"}) {
    const auto command = commandOf({option, "65750"});
    EXPECT_EQ(command.mode, Mode::preview) << option;
    EXPECT_EQ(command.window, 65750U) << option;
  }
  EXPECT_EQ(commandOf({"/p:65750"}).window, 65750U);
}

TEST(FrameworkCommandLine, APreviewWhoseWindowCannotBeReadHasNone) {
  for (const char* number : {"", "abc", "12x", "-5", "0x10", "99999999999999999999999"}) {
    const auto command = commandOf({"/p", number});
    EXPECT_EQ(command.mode, Mode::preview) << number;
    EXPECT_EQ(command.window, 0U) << number;
  }
  EXPECT_EQ(commandOf({"/p"}).window, 0U);
  EXPECT_EQ(commandOf({"/p:"}).window, 0U);
}

TEST(FrameworkCommandLine, CIsTheConfigurationOfTheNamedWindow) {
  const auto command = commandOf({"/c:1312"});
  EXPECT_EQ(command.mode, Mode::configuration);
  EXPECT_EQ(command.window, 1312U);
  EXPECT_FALSE(command.ownedByForeground);
  EXPECT_EQ(commandOf({"-C", "1312"}).window, 1312U);
}

TEST(FrameworkCommandLine, CWithoutAWindowBelongsToTheForeground) {
  const auto command = commandOf({"/c"});
  EXPECT_EQ(command.mode, Mode::configuration);
  EXPECT_TRUE(command.ownedByForeground);
  EXPECT_EQ(command.window, 0U);
}

TEST(FrameworkCommandLine, AIsTheChangeOfPasswords) {
  EXPECT_EQ(commandOf({"/a", "1312"}).mode, Mode::changePassword);
  EXPECT_EQ(commandOf({"/A"}).mode, Mode::changePassword);
}

TEST(FrameworkCommandLine, NothingAndTheUnknownAreTheConfigurationOfNobody) {
  for (const auto& arguments : std::vector<std::vector<std::string>>{
           {}, {"/x"}, {"s"}, {"/"}, {""}, {"/ss"}, {"--s"}, {"hello", "/s"}}) {
    const auto command = commandOf(arguments);
    EXPECT_EQ(command.mode, Mode::configuration);
    EXPECT_FALSE(command.ownedByForeground);
    EXPECT_EQ(command.window, 0U);
  }
  EXPECT_EQ(frameworkCommandOf({}).mode, Mode::configuration);
}

}  // namespace
