// A stack of values over a default: the current value of one drawing attribute.
#pragma once

#include <deque>
#include <utility>

template <class T>
class xplAttributeStack {
 public:
  explicit xplAttributeStack(T defaultValue) : m_default(std::move(defaultValue)) {}

  // The last pushed value, or the default while nothing is pushed. Valid until the next push or pop.
  const T& current() const { return m_pushed.empty() ? m_default : m_pushed.back(); }
  void push(T value) { m_pushed.push_back(std::move(value)); }
  // Returns the current value and removes the last pushed one, if there is one.
  T pop() {
    T value = current();
    if (!m_pushed.empty()) {
      m_pushed.pop_back();
    }
    return value;
  }

 private:
  T m_default;
  std::deque<T> m_pushed;
};
