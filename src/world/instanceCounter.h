// Counts the living objects of a class.
#pragma once

// A mix-in: it borrows a class-wide count, which every construction raises and every destruction lowers.
class xplInstanceCounterPattern {
 public:
  explicit xplInstanceCounterPattern(int& count) : m_count(count) { ++m_count; }
  xplInstanceCounterPattern(const xplInstanceCounterPattern& other) : m_count(other.m_count) { ++m_count; }
  xplInstanceCounterPattern& operator=(const xplInstanceCounterPattern&) = delete;
  ~xplInstanceCounterPattern() { --m_count; }

 private:
  int& m_count;
};
