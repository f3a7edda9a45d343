// Folders, settings and random numbers of a benchmark's own.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "support/fileSystem.h"
#include "support/random.h"
#include "support/settings.h"

class PrivateRun {
 public:
  PrivateRun() {
    std::string pattern = (std::filesystem::temp_directory_path() / "lunaria-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
      throw std::runtime_error("cannot make a folder like " + pattern);
    }
    m_root = pattern;
    xplCloseSettings();
    xplFileSystemMini::redirectFolders(m_root);
    xplRandom::seed(1);
  }
  ~PrivateRun() {
    xplCloseSettings();
    xplFileSystemMini::redirectFolders("");
    std::filesystem::remove_all(m_root);
  }
  PrivateRun(const PrivateRun&) = delete;
  PrivateRun& operator=(const PrivateRun&) = delete;

 private:
  std::string m_root;
};
