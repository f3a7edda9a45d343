// The vendor's analytics library, loaded from the program's own folder.
#pragma once

#include <memory>
#include <string>

#include "services/analytics.h"
#include "services/platform.h"

// A function that the library lacks, and a call that fails, are pending errors; the other calls are made all
// the same.
class VendorAnalytics : public xpliAnalytics {
 public:
  // Null where the folder (a full path) holds no such library, or one that is not to be trusted or cannot be
  // loaded; these two are logged.
  static std::unique_ptr<VendorAnalytics> load(const std::string& folder);

  explicit VendorAnalytics(std::unique_ptr<xpliSharedLibrary> library) : m_library(std::move(library)) {}

  int setFilePath(const std::string& folder) override;
  int createConfig(const std::string& address, const std::string& productId,
                   const std::string& productVersion, const std::string& buildStamp,
                   bool collectsMore) override;
  int start() override;
  int stop() override;
  std::string takeErrors() override;

 private:
  template <class Function, class... Arguments>
  int call(const char* name, Arguments... arguments);
  void note(const std::string& error);
  int noteFailure(const char* name, int result);

  std::unique_ptr<xpliSharedLibrary> m_library;
  std::string m_errors;
};
