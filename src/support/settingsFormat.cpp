// Escapes, parses and formats the settings file.
#include "support/settingsFormat.h"

#include <array>
#include <string_view>
#include <utility>

namespace {

struct Replacement {
  std::string_view plain;
  std::string_view escaped;
};

// Deliberate: escaping runs down this list and unescaping runs up it, so that two backslashes are undone
// last. A value that holds a backslash followed by the letter n therefore comes back as a backslash and a
// line feed. Existing files were written so; another order would change what they mean.
constexpr std::array<Replacement, 5> replacements = {
    {{"\\", "\\\\"}, {"\t", "\\t"}, {"\r", "\\r"}, {"\n", "\\n"}, {"=", "\\="}}};

std::string replaceAll(const std::string& text, std::string_view from, std::string_view to) {
  std::string result;
  result.reserve(text.size());
  std::size_t start = 0;
  for (std::size_t found = text.find(from); found != std::string::npos; found = text.find(from, start)) {
    result.append(text, start, found - start);
    result += to;
    start = found + from.size();
  }
  return result.append(text, start);
}

}  // namespace

std::string escapeSettingsValue(std::string value) {
  for (auto it = replacements.begin(); it != replacements.end(); ++it) {
    value = replaceAll(value, it->plain, it->escaped);
  }
  return value;
}

std::string unescapeSettingsValue(std::string value) {
  for (auto it = replacements.rbegin(); it != replacements.rend(); ++it) {
    value = replaceAll(value, it->escaped, it->plain);
  }
  return value;
}

void parseSettings(std::string content, std::map<std::string, std::string>& values) {
  // A file that was written on the other platform reads alike; line ends inside values are always escaped.
  content = replaceAll(content, "\r\n", "\n");
  std::size_t start = 0;
  while (start < content.size()) {
    const std::size_t equals = content.find('=', start);
    std::string key = content.substr(start, equals == std::string::npos ? equals : equals - start);
    if (equals == std::string::npos) {
      values[std::move(key)] = "";
      return;
    }
    const std::size_t end = content.find('\n', equals + 1);
    std::string value = content.substr(equals + 1, end == std::string::npos ? end : end - equals - 1);
    values[std::move(key)] = unescapeSettingsValue(std::move(value));
    start = end == std::string::npos ? content.size() : end + 1;
  }
}

std::string formatSettings(const std::map<std::string, std::string>& values, const char* lineEnd) {
  std::string text;
  for (const auto& [key, value] : values) {
    text += key + "=" + escapeSettingsValue(value) + lineEnd;
  }
  return text;
}
