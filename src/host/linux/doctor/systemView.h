// What the checks can see of the system. They look at it through this alone.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "graphics/linux/edges.h"

// The display that the saver would run on.
struct DisplayView {
  enum class Kind { none, x11, wayland };
  Kind kind = Kind::none;
  std::string name;                // as the environment gives it; "" where it does not
  std::string server;              // what the display calls itself; "" where it does not say
  int width = 0, height = 0;       // pixels, of all monitors together
  std::vector<xplEdges> monitors;  // pixels; the main one first
  // Seconds after which the X server itself says that nobody is there; 0: never. Nothing where it does not
  // say.
  std::optional<int> saverSeconds{};
};

struct FileView {
  enum class Kind { missing, file, other };  // other: a folder, a device, …
  Kind kind = Kind::missing;
  bool canBeRead = false;
  bool canBeWritten = false;  // missing: it can be made
};

// Where the program's own files are; "" for one that has no place.
struct OwnFiles {
  std::string settings, quotes, usage, log;
};

struct FontView {
  std::string family;  // "" where there is no font at all
  std::string file;
};

class SystemView {
 public:
  virtual ~SystemView() = default;

  // Nothing where the variable is not set, or empty.
  virtual std::optional<std::string> environment(const std::string& name) = 0;
  virtual DisplayView display() = 0;
  // The words with which a program of this user runs, between blanks; nothing where none of this name does.
  virtual std::optional<std::string> runningProgram(const std::string& name) = 0;
  // Whether a program can be started by its name, or lies beside this one.
  virtual bool isInstalled(const std::string& program) = 0;
  // Whether XScreenSaver can start a program of its list, given as it stands there.
  virtual bool canXScreenSaverStart(const std::string& program) = 0;
  // What a command writes, without the last line end; nothing where it fails or takes long.
  virtual std::optional<std::string> outputOf(const std::vector<std::string>& command) = 0;
  // The whole file; nothing where it cannot be read.
  virtual std::optional<std::string> contentOf(const std::string& path) = 0;
  virtual FileView file(const std::string& path) = 0;
  virtual std::string homeFolder() = 0;  // "" where there is none
  virtual OwnFiles ownFiles() = 0;
  // The font that is drawn where a text asks for this face.
  virtual FontView fontFor(const std::string& face) = 0;
  // Opens the sound device and plays silence. "" where that works, else why not; at most some seconds.
  virtual std::string trySound() = 0;
  // Asks for the computer to be kept awake, and gives that back. As trySound().
  virtual std::string trySleepPrevention() = 0;
};
