// A growable array with the few operations of a database: random choice, and removal and count by a
// predicate.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "support/assertion.h"
#include "support/random.h"

template <class T>
class xplVectorAsDB_where {
 public:
  virtual ~xplVectorAsDB_where() = default;
  virtual bool matches(const T& element) const = 0;
};

template <class T>
class xplVectorAsDB {
 public:
  void append(T element) { m_elements.push_back(std::move(element)); }

  // A draw chooses among this many elements, the first ones, however many there are.
  static constexpr std::size_t reachable = xplRandom::resultCount;

  // An element by one draw, null (and a failed assertion, without a draw) where there is none. Valid until
  // the next change.
  //
  // Deliberate: a draw has 15 bits, so that elements from the 32769th on are never chosen, and the first ones
  // of a long list a little more often than others. The frames that follow from a seed depend on this being
  // one draw.
  const T* getRandom() const {
    if (m_elements.empty()) {
      reportEmpty();
      return nullptr;
    }
    return &m_elements[static_cast<std::size_t>(xplRandom::next()) % m_elements.size()];
  }

  void removeWhere(const xplVectorAsDB_where<T>& where) {
    std::erase_if(m_elements, [&where](const T& element) { return where.matches(element); });
  }

  std::size_t countWhere(const xplVectorAsDB_where<T>& where) const {
    return static_cast<std::size_t>(std::count_if(
        m_elements.begin(), m_elements.end(), [&where](const T& element) { return where.matches(element); }));
  }

  std::size_t size() const { return m_elements.size(); }
  bool empty() const { return m_elements.empty(); }
  // The element at an index below size().
  const T& operator[](std::size_t index) const { return m_elements[index]; }

 private:
  static void reportEmpty() {
    // Deliberate: the entry has always named this source and this line, and is looked for by both.
    constexpr int knownLine = 41;
    if (xplAssertionsReport) {
      xplReportFailedAssertion("false && \"#8762: xplVectorAsDB.getRandom() in empty vector\"",
                               "#8762: xplVectorAsDB.getRandom() in empty vector", "cQuotes", knownLine);
    }
  }

  std::vector<T> m_elements;
};
