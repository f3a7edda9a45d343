// Lunaria.exe, behind the entries of the Start menu: starts the saver of the system folder with the option it
// was given.
//
// An entry cannot name Lunaria.scr itself: the shell opens a file of that kind with "/S" and drops the
// entry's own options, so that the settings would never come.
#include <string>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace {

constexpr wchar_t saverName[] = L"\\Lunaria.scr";

// Without an end of its own; empty where the system does not tell.
std::wstring systemFolder() {
  std::wstring folder(GetSystemDirectoryW(nullptr, 0), L'\0');
  folder.resize(GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size())));
  return folder;
}

// Starts the program; false where that fails, GetLastError() says why.
bool start(const std::wstring& program, const std::wstring& options) {
  std::wstring line = L'"' + program + L"\" " + options;
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &process)) {
    return false;
  }
  AllowSetForegroundWindow(process.dwProcessId);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return true;
}

void tellThatItIsMissing(const std::wstring& program) {
  const std::wstring text =
      program + L"\ncannot be started.\n\nPlease install Lunaria again; your settings and quotations stay.";
  MessageBoxW(nullptr, text.c_str(), L"Lunaria", MB_OK | MB_ICONERROR);
}

}  // namespace

// options: handed on as they are; none stands for the settings.
int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR options, int) {
  const std::wstring program = systemFolder() + saverName;
  if (!start(program, *options ? options : L"/c")) {
    tellThatItIsMissing(program);
    return 1;
  }
  return 0;
}
