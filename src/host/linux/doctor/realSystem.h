// The system as it is.
#pragma once

#include "graphics/linux/fontCatalogue.h"
#include "host/linux/doctor/systemView.h"

class RealSystem : public SystemView {
 public:
  std::optional<std::string> environment(const std::string& name) override;
  DisplayView display() override;
  std::optional<std::string> runningProgram(const std::string& name) override;
  bool isInstalled(const std::string& program) override;
  bool canXScreenSaverStart(const std::string& program) override;
  std::optional<std::string> outputOf(const std::vector<std::string>& command) override;
  std::optional<std::string> contentOf(const std::string& path) override;
  FileView file(const std::string& path) override;
  std::string homeFolder() override;
  OwnFiles ownFiles() override;
  FontView fontFor(const std::string& face) override;
  std::string trySound() override;
  std::string trySleepPrevention() override;

 private:
  std::optional<DisplayView> m_display;  // once it was asked
  FontCatalogue m_fonts;
};
