// Loading a library on Windows, and wide texts.
#include <string>

#include "services/platform.h"
#include "support/windows/shellHeaders.h"

namespace {

class SharedLibrary : public xpliSharedLibrary {
 public:
  explicit SharedLibrary(HMODULE handle) : m_handle(handle) {}
  void* find(const char* function) const override {
    return reinterpret_cast<void*>(GetProcAddress(m_handle, function));
  }

 private:
  HMODULE m_handle;  // never freed
};

}  // namespace

std::unique_ptr<xpliSharedLibrary> xplLoadLibrary(const std::string& path, std::string& reason) {
  const HMODULE handle =
      LoadLibraryExA(path.c_str(), nullptr, LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (handle == nullptr) {
    reason = "error " + std::to_string(GetLastError());
    return nullptr;
  }
  return std::make_unique<SharedLibrary>(handle);
}

const char* xplAnalyticsLibraryName() {
  return "Trackerbird.dll";
}

std::wstring xplWiden(const std::string& text) {
  const int size = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length > 0 ? length : 0), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), length);
  return wide;
}
