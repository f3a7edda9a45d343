// A system made up for the tests of the checks; all is well on it at first.
#pragma once

#include <map>
#include <set>

#include "host/linux/doctor/systemView.h"

class FakeSystem : public SystemView {
 public:
  std::optional<std::string> environment(const std::string& name) override { return found(variables, name); }
  DisplayView display() override { return shown; }
  std::optional<std::string> runningProgram(const std::string& name) override { return found(running, name); }
  bool isInstalled(const std::string& program) override { return installed.contains(program); }
  bool canXScreenSaverStart(const std::string& program) override { return !unstartable.contains(program); }
  std::optional<std::string> outputOf(const std::vector<std::string>& command) override {
    std::string line;
    for (const std::string& word : command) {
      line += (line.empty() ? "" : " ") + word;
    }
    return found(outputs, line);
  }
  std::optional<std::string> contentOf(const std::string& path) override { return found(contents, path); }
  FileView file(const std::string& path) override {
    const auto place = files.find(path);
    return place == files.end() ? FileView{FileView::Kind::file, true, true} : place->second;
  }
  std::string homeFolder() override { return "/home/luna"; }
  OwnFiles ownFiles() override { return own; }
  FontView fontFor(const std::string& face) override { return fonts.at(face); }
  std::string trySound() override { return sound; }
  std::string trySleepPrevention() override { return sleep; }

  std::map<std::string, std::string> variables{{"XDG_CURRENT_DESKTOP", "MATE"}};
  DisplayView shown{DisplayView::Kind::x11, ":0", "X.Org 21.1.7", 1920, 1080, {{0, 0, 1920, 1080}}};
  std::map<std::string, std::string> running{{"xscreensaver", "xscreensaver --no-splash"}};
  std::map<std::string, bool> installed{{"lunaria-configure", true}};
  std::set<std::string> unstartable;
  std::map<std::string, std::string> outputs;
  std::map<std::string, std::string> contents{
      {"/home/luna/.xscreensaver",
       "timeout: 0:05:00\nmode: one\nselected: 0\nprograms: lunaria --root \\n\n"},
      {"/s", "moonSize=300\n"}};
  std::map<std::string, FileView> files;
  OwnFiles own{"/s", "/q", "/u", "/l"};
  std::map<std::string, FontView> fonts{{"Courier New", {"Liberation Mono", "/f/m.ttf"}},
                                        {"Arial", {"Liberation Sans", "/f/s.ttf"}},
                                        {"Times New Roman", {"Liberation Serif", "/f/r.ttf"}}};
  std::string sound;
  std::string sleep;

 private:
  static std::optional<std::string> found(const std::map<std::string, std::string>& map,
                                          const std::string& key) {
    const auto place = map.find(key);
    return place == map.end() ? std::nullopt : std::optional(place->second);
  }
};
