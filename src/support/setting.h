// One setting: a key of the user's store with its type and default.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "support/settings.h"

// T is bool, int, std::int64_t or std::string.
template <class T>
class xplSetting {
 public:
  // Borrows the store, which must outlive the setting.
  xplSetting(xplSettings& store, std::string key, T defaultValue)
      : m_store(store), m_key(std::move(key)), m_default(std::move(defaultValue)) {}

  // The stored value where there is one that parses, else the default. Nothing is cached.
  T read() const;
  void write(const T& value) { m_store.set(m_key, value); }
  const std::string& key() const { return m_key; }

 private:
  xplSettings& m_store;
  std::string m_key;
  T m_default;
};

template <>
inline bool xplSetting<bool>::read() const {
  return m_store.getBool(m_key, m_default);
}
template <>
inline int xplSetting<int>::read() const {
  return m_store.getInt(m_key, m_default);
}
template <>
inline std::int64_t xplSetting<std::int64_t>::read() const {
  return m_store.getInt64(m_key, m_default);
}
template <>
inline std::string xplSetting<std::string>::read() const {
  return m_store.get(m_key).value_or(m_default);
}
