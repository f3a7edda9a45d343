// Implements the calls into the vendor's analytics library.
#include "services/vendorAnalytics.h"

#include <cstdint>
#include <utility>

#include "support/fileSystem.h"
#include "support/log.h"

namespace {

constexpr int noSuchFunction = -1;

// The library's functions. Flags and the session argument are passed in whole machine words, which read as
// zero whatever narrower type the library gave them.
using Word = std::intptr_t;
using SetFilePath = int(const wchar_t* folder);
using CreateConfig = int(const wchar_t* address, const wchar_t* productId, const wchar_t* productVersion,
                         const wchar_t* buildStamp, Word collectsMore);
using StartOrStop = int(Word session);

}  // namespace

std::unique_ptr<VendorAnalytics> VendorAnalytics::load(const std::string& folder) {
  const std::string path = xplFileSystemMini::joinPath(folder, xplAnalyticsLibraryName());
  if (folder.empty() || !xplFileSystemMini::fileExists(path)) {
    return nullptr;
  }
  std::string reason;
  if (!xplOnlyUserCanChange(path, reason)) {
    logWarning().addf("%s is not loaded: %s", path.c_str(), reason.c_str());
    return nullptr;
  }
  auto library = xplLoadLibrary(path, reason);
  if (!library) {
    logWarning().addf("%s cannot be loaded: %s", path.c_str(), reason.c_str());
    return nullptr;
  }
  return std::make_unique<VendorAnalytics>(std::move(library));
}

template <class Function, class... Arguments>
int VendorAnalytics::call(const char* name, Arguments... arguments) {
  const auto function = reinterpret_cast<Function*>(m_library->find(name));
  if (function == nullptr) {
    note(std::string("the library has no ") + name);
    return noSuchFunction;
  }
  return function(arguments...);
}

void VendorAnalytics::note(const std::string& error) {
  m_errors += (m_errors.empty() ? "" : "; ") + error;
}

int VendorAnalytics::noteFailure(const char* name, int result) {
  if (result < 0 && m_library->find(name) != nullptr) {
    note(std::string(name) + " failed with " + std::to_string(result));
  }
  return result;
}

// Its failures are reported by their results alone.
int VendorAnalytics::setFilePath(const std::string& folder) {
  return call<SetFilePath>("tbSetFilePath", xplWiden(folder).c_str());
}

int VendorAnalytics::createConfig(const std::string& address, const std::string& productId,
                                  const std::string& productVersion, const std::string& buildStamp,
                                  bool collectsMore) {
  return noteFailure(
      "tbCreateConfig",
      call<CreateConfig>("tbCreateConfig", xplWiden(address).c_str(), xplWiden(productId).c_str(),
                         xplWiden(productVersion).c_str(), xplWiden(buildStamp).c_str(), Word{collectsMore}));
}

int VendorAnalytics::start() {
  return noteFailure("tbStart", call<StartOrStop>("tbStart", Word{0}));
}

int VendorAnalytics::stop() {
  return noteFailure("tbStop", call<StartOrStop>("tbStop", Word{0}));
}

std::string VendorAnalytics::takeErrors() {
  return std::exchange(m_errors, std::string());
}
