// The application object: it records the program's command line and logs it.
#pragma once

#include <string>
#include <vector>

// Base of the platform's application class, which supplies the command line.
class xplAppBase {
 public:
  virtual ~xplAppBase() = default;
  // The arguments, the program's own name first.
  const std::vector<std::string>& arguments() const { return m_arguments; }
  const std::string& commandLine() const { return m_commandLine; }

 protected:
  xplAppBase(std::string commandLine, std::vector<std::string> arguments);

 private:
  std::string m_commandLine;
  std::vector<std::string> m_arguments;
};
