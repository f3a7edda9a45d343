// What else may keep the user's quotes from being read on Windows.
#include <windows.h>

#include "quotes/quotesFixture.h"

namespace {

class UserQuotesOnWindows : public Quotes {};

TEST_F(UserQuotesOnWindows, AFileThatAnotherProgramKeepsForItselfAddsNothingAndStays) {
  writeFile(userFile(), "kept back\n");
  const HANDLE holder = CreateFileA(userFile().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, holder);
  EXPECT_TRUE(loadedUserQuotes().empty());
  CloseHandle(holder);
  EXPECT_EQ(std::vector<std::string>{"kept back"}, loadedUserQuotes());
}

}  // namespace
