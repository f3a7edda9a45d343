// The application object on Windows.
#include "support/windows/applicationWin.h"

#include <string>
#include <vector>

#include "support/windows/shellHeaders.h"

namespace {

std::string narrow(const wchar_t* text) {
  const int size = WideCharToMultiByte(CP_ACP, 0, text, -1, nullptr, 0, nullptr, nullptr);
  if (size <= 1) {
    return "";
  }
  std::string result(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_ACP, 0, text, -1, result.data(), size, nullptr, nullptr);
  result.pop_back();  // the terminator
  return result;
}

std::vector<std::string> splitCommandLine() {
  std::vector<std::string> arguments;
  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 0; words != nullptr && i < count; ++i) {
    arguments.push_back(narrow(words[i]));
  }
  LocalFree(words);
  return arguments;
}

}  // namespace

xplAppWin::xplAppWin() : xplAppBase(GetCommandLineA(), splitCommandLine()) {}
