// The application object: logs the command line.
#include "support/application.h"

#include <utility>

#include "support/log.h"

xplAppBase::xplAppBase(std::string commandLine, std::vector<std::string> arguments)
    : m_commandLine(std::move(commandLine)), m_arguments(std::move(arguments)) {
  logInfo().addf("Application command line: %s", m_commandLine.c_str());
  for (std::size_t i = 0; i < m_arguments.size(); ++i) {
    logInfo().addf("arg[%i]:%s", static_cast<int>(i), m_arguments[i].c_str());
  }
}
