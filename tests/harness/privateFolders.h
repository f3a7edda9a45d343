// A fixture that gives each test folders of its own, a log in them, a clock that stands and a seeded
// generator.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/clock.h"
#include "support/log.h"

// Nothing that a test of this fixture does touches the user's files. The folders go with the test.
class PrivateFolders : public testing::Test {
 protected:
  PrivateFolders();
  ~PrivateFolders() override;

  // The folder that holds all redirected ones.
  const std::string& root() const { return m_root; }
  // The whole log of this test so far ("\n" line ends), and the same as lines without level, indentation and
  // stamps.
  std::string logText() const;
  std::vector<std::string> logEntries() const;
  // How often an entry with exactly this text was written; with this level ("ERROR", "Warning", "Info") where
  // given.
  int countEntries(const std::string& text, const std::string& level = "") const;

  // How many entries hold this text anywhere.
  int countEntriesWith(const std::string& part) const;

  // Sets the clock to this local time on the day that it stands at.
  void setLocalTime(int hour, int minute, int second);

  // 2016-05-21 21:15:00 UTC.
  xplManualClock clock{{1463865300, 0}};

 private:
  std::string m_root;
  xplClock::Override m_clockOverride{clock};
  std::unique_ptr<xplLog> m_log;
};

// Whole content of a file, byte by byte; and a file made with this content.
std::string readFile(const std::string& path);
void writeFile(const std::string& path, const std::string& content);
// The names of everything in a folder, sorted; none where there is no such folder.
std::vector<std::string> filesIn(const std::string& folder);
