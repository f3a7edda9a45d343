// The zone that local time is in; each platform supplies it.
#pragma once

#include <memory>

// Makes local time universal for as long as it lives, where a program can do so.
class UniversalZone {
 public:
  UniversalZone();
  ~UniversalZone();
  UniversalZone(const UniversalZone&) = delete;
  UniversalZone& operator=(const UniversalZone&) = delete;

  // Whether local time is universal time now.
  bool isUniversal() const;

 private:
  struct Previous;
  std::unique_ptr<Previous> m_previous;
};
