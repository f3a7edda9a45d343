// Starts a program as a user who is no administrator, waits for its end and hands on its exit code.
// Usage: without_rights PROGRAM [ARGUMENT...]
#include <array>
#include <cstdio>
#include <string>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace {

int fail(const char* call) {
  std::fprintf(stderr, "%s: error %lu\n", call, GetLastError());
  return 99;
}

// The program in quotes, its options as they are: installers do not know an option in quotes.
std::string commandLine(int count, char** words) {
  std::string line = '"' + std::string(count > 1 ? words[1] : "") + '"';
  for (int i = 2; i < count; ++i) {
    line += ' ' + std::string(words[i]);
  }
  return line;
}

}  // namespace

int main(int argc, char** argv) {
  HANDLE token = nullptr;
  if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ALL_ACCESS, &token)) {
    return fail("OpenProcessToken");
  }
  std::array<char, SECURITY_MAX_SID_SIZE> administrators{};
  DWORD size = administrators.size();
  if (!CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, administrators.data(), &size)) {
    return fail("CreateWellKnownSid");
  }
  SID_AND_ATTRIBUTES disabled{administrators.data(), 0};
  HANDLE restricted = nullptr;
  if (!CreateRestrictedToken(token, 0, 1, &disabled, 0, nullptr, 0, nullptr, &restricted)) {
    return fail("CreateRestrictedToken");
  }
  std::string line = commandLine(argc, argv);
  STARTUPINFOA startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process{};
  if (!CreateProcessAsUserA(restricted, nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                            &startup, &process)) {
    return fail("CreateProcessAsUser");
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(process.hProcess, &code);
  std::printf("exit code %lu\n", code);
  return static_cast<int>(code);
}
