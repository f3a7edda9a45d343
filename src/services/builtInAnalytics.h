// Stands in where there is no analytics library: notes the session in a file of the user's, and sends
// nothing.
#pragma once

#include <cstdint>
#include <string>

#include "services/analytics.h"

// The file holds one line a session: when it started and stopped (UTC), the version and the build stamp.
class BuiltInAnalytics : public xpliAnalytics {
 public:
  static constexpr char fileName[] = "usage.txt";
  // The file never grows beyond this many bytes: its older half goes where it would.
  static constexpr std::size_t maxFileSize = 65536;

  int setFilePath(const std::string& folder) override;
  int createConfig(const std::string& address, const std::string& productId,
                   const std::string& productVersion, const std::string& buildStamp,
                   bool collectsMore) override;
  int start() override;
  // Writes the line.
  int stop() override;
  std::string takeErrors() override;

 private:
  std::string m_path;  // of the file; empty where there is no folder for it
  std::string m_product;
  std::int64_t m_startTime = 0;  // seconds since 1970 UTC
  std::string m_errors;
};
