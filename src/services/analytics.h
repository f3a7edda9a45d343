// The four operations of an analytics library, as the usage report calls them.
#pragma once

#include <string>

// All calls come from one thread, in the order of this list, each at most once, but for the last. Texts are
// narrow strings. Results are the library's own: 0 and above for success.
class xpliAnalytics {
 public:
  static constexpr int invalidPath = -10;
  static constexpr int accessDenied = -11;

  virtual ~xpliAnalytics() = default;

  // Where the library may keep its files.
  virtual int setFilePath(const std::string& folder) = 0;
  // Whom the report goes to and what it is about. `buildStamp` is the moment of the build.
  virtual int createConfig(const std::string& address, const std::string& productId,
                           const std::string& productVersion, const std::string& buildStamp,
                           bool collectsMore) = 0;
  virtual int start() = 0;
  virtual int stop() = 0;
  // What went wrong in the calls so far beyond what their results say; empty for nothing. Forgets it.
  virtual std::string takeErrors() = 0;
};
