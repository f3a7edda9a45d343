// Settings as truth values and numbers.
#include <charconv>
#include <locale>
#include <optional>
#include <sstream>
#include <string>
#include <system_error>

#include "support/settings.h"

namespace {

// The whole text as a number; nothing where it is none or out of range.
template <class T>
std::optional<T> parseWhole(const std::optional<std::string>& text) {
  T value{};
  if (!text) {
    return std::nullopt;
  }
  const char* const end = text->data() + text->size();
  const auto result = std::from_chars(text->data(), end, value);
  return result.ec == std::errc{} && result.ptr == end ? std::optional<T>(value) : std::nullopt;
}

template <class T>
std::string numberText(T value) {
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  stream << value;
  return stream.str();
}

}  // namespace

void xplSettings::set(const std::string& key, bool value) {
  set(key, std::string(value ? "yes" : "no"));
}

void xplSettings::set(const std::string& key, int value) {
  set(key, numberText(value));
}

void xplSettings::set(const std::string& key, std::int64_t value) {
  set(key, numberText(value));
}

void xplSettings::set(const std::string& key, double value) {
  set(key, numberText(value));
}

bool xplSettings::getBool(const std::string& key, bool defaultValue) const {
  const std::string text = get(key).value_or("");
  if (text == "yes" || text == "true" || text == "1" || text == "on") {
    return true;
  }
  if (text == "no" || text == "false" || text == "0" || text == "off") {
    return false;
  }
  return defaultValue;
}

int xplSettings::getInt(const std::string& key, int defaultValue) const {
  return parseWhole<int>(get(key)).value_or(defaultValue);
}

std::int64_t xplSettings::getInt64(const std::string& key, std::int64_t defaultValue) const {
  return parseWhole<std::int64_t>(get(key)).value_or(defaultValue);
}
