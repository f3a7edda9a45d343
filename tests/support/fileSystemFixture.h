// What the tests of the file system share: paths in a folder of their own.
#pragma once

#include <string>

#include "harness/privateFolders.h"
#include "support/fileSystem.h"

class FileSystem : public PrivateFolders {
 protected:
  std::string path(const std::string& name) const { return xplFileSystemMini::joinPath(root(), name); }
  const std::string separator{xplFileSystemMini::separator()};
};
