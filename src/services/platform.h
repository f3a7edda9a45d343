// The seam of the services: what a platform supplies for sounds, sleep prevention and the usage report.
//
// Whoever writes the next platform supplies the functions below and the two classes that they make. The
// saver's thread makes and uses a sound output and a request to stay awake; both must come back soon,
// whatever the sound system or the session's services do. The functions about libraries are called on the
// thread of the usage report, which may wait.
//
// May fail: xplMakeSoundOutput never does, its sounds may be silent; xpliKeepAwake::request (false);
// xplLoadLibrary (null).
#pragma once

#include <memory>
#include <string>

#include "services/keepAwake.h"
#include "services/soundOutput.h"

std::unique_ptr<xpliSoundOutput> xplMakeSoundOutput();
std::unique_ptr<xpliKeepAwake> xplMakeKeepAwake();

// A library that was loaded. It stays loaded when the object goes: it may have threads of its own.
class xpliSharedLibrary {
 public:
  virtual ~xpliSharedLibrary() = default;
  // The address of a function; null where the library has none of this name.
  virtual void* find(const char* function) const = 0;
};

// Loads a library by its full path; what it needs in turn comes from its own folder or the system's. Null,
// with the reason, where that fails.
std::unique_ptr<xpliSharedLibrary> xplLoadLibrary(const std::string& path, std::string& reason);
// True where nobody but the user and the system's own accounts can change this file or put another in its
// place. False, with the reason, also where that cannot be told.
bool xplOnlyUserCanChange(const std::string& path, std::string& reason);
// The file name of the vendor's analytics library.
const char* xplAnalyticsLibraryName();
// A narrow text in the wide characters of the platform. What is malformed becomes replacement characters.
std::wstring xplWiden(const std::string& text);
