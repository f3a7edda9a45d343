// Lines of text that take turns in one place and are typed over each other, one character a frame.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

class RotatingLines {
 public:
  // interval: milliseconds that a line stands before the next one's turn.
  explicit RotatingLines(int interval) : m_interval(interval) {}

  // The first line is typed at once; the others wait for their turns. Makes room for everything that typing
  // and taking turns need later.
  void addLine(const std::string& line);
  // Types one character of the present line over what is shown; the step after the last one ends the typing.
  void typeOneCharacter();
  // Lets time pass, in milliseconds; a line that stands for longer than the interval gives way to the next.
  void advance(int milliseconds);

  bool isEmpty() const { return m_lines.empty(); }
  // Whether what is shown may still differ from the present line.
  bool isTyping() const { return m_typing; }
  const std::string& shown() const { return m_shown; }
  // Bytes that shown() never exceeds.
  std::size_t longest() const;

 private:
  std::size_t m_typePosition = 0;  // the index of the next character to type
  bool m_typing = false;
  std::vector<std::string> m_lines;
  std::string m_shown;
  std::string m_target;  // what is being typed
  std::size_t m_index = 0;
  int m_interval;
  int m_timer = 0;  // milliseconds since the last turn
};
