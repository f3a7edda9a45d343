// Changes of environment variables that last as long as the object.
#pragma once

#include <cstdlib>
#include <map>
#include <optional>
#include <string>

class TemporaryEnvironment {
 public:
  TemporaryEnvironment() = default;
  ~TemporaryEnvironment() {
    for (const auto& [name, value] : m_previous) {
      apply(name, value);
    }
  }
  TemporaryEnvironment(const TemporaryEnvironment&) = delete;
  TemporaryEnvironment& operator=(const TemporaryEnvironment&) = delete;

  void set(const std::string& name, const std::string& value) {
    remember(name);
    apply(name, value);
  }
  void unset(const std::string& name) {
    remember(name);
    apply(name, std::nullopt);
  }

 private:
  void remember(const std::string& name) {
    const char* value = std::getenv(name.c_str());
    m_previous.try_emplace(name, value == nullptr ? std::nullopt : std::optional<std::string>(value));
  }
  static void apply(const std::string& name, const std::optional<std::string>& value) {
    if (value) {
      setenv(name.c_str(), value->c_str(), 1);
    } else {
      unsetenv(name.c_str());
    }
  }

  std::map<std::string, std::optional<std::string>> m_previous;
};
