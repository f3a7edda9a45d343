// Tests the application object: what it keeps and logs of the command line.
#include "harness/privateFolders.h"
#include "support/application.h"

namespace {

class Application : public xplAppBase {
 public:
  Application(std::string commandLine, std::vector<std::string> arguments)
      : xplAppBase(std::move(commandLine), std::move(arguments)) {}
};

using ApplicationBase = PrivateFolders;

}  // namespace

TEST_F(ApplicationBase, LogsTheCommandLineAndThenEachArgument) {
  const Application application("Lunaria.scr /p 1234", {"Lunaria.scr", "/p", "1234"});
  const auto entries = logEntries();
  ASSERT_GE(entries.size(), 4U);
  const std::vector<std::string> last(entries.end() - 4, entries.end());
  EXPECT_EQ(last, (std::vector<std::string>{"Application command line: Lunaria.scr /p 1234",
                                            "arg[0]:Lunaria.scr", "arg[1]:/p", "arg[2]:1234"}));
  EXPECT_EQ(countEntries("Application command line: Lunaria.scr /p 1234", "Info"), 1);
  EXPECT_EQ(countEntries("arg[2]:1234", "Info"), 1);
}

TEST_F(ApplicationBase, KeepsBoth) {
  const Application application("a b", {"a", "b"});
  EXPECT_EQ(application.commandLine(), "a b");
  EXPECT_EQ(application.arguments(), (std::vector<std::string>{"a", "b"}));
}

TEST_F(ApplicationBase, ArgumentsAreNoFormat) {
  const Application application("%s%n", {"%s%n", ""});
  EXPECT_EQ(countEntries("Application command line: %s%n"), 1);
  EXPECT_EQ(countEntries("arg[0]:%s%n"), 1);
  EXPECT_EQ(countEntries("arg[1]:"), 1);
}
