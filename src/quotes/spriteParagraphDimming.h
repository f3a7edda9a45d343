// A paragraph: a chain of lines that fade in one after another, and fade out in the same order.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "quotes/spriteTextDimming.h"

// Each object is a line, and the first of those that follow it. All walks along the chain are loops, so that
// a paragraph of any length needs no stack.
class cSpriteParagraphDimming : public cSpriteTextDimming {
 public:
  explicit cSpriteParagraphDimming(const char* name) : cSpriteTextDimming(name) {}
  cSpriteParagraphDimming(const cSpriteParagraphDimming&) = delete;
  cSpriteParagraphDimming& operator=(const cSpriteParagraphDimming&) = delete;

  // Draws the lines that are bright enough to be seen.
  void draw() override;
  // The size of each line, and the paragraph's rectangle, at the place where the first line is now.
  void calcSize() override;
  void update(float elapsedSec) override;

  // The chain is made anew, with this line's style and window. Without lines this line keeps its text.
  void setParagraph(const std::vector<std::string>& lines);
  // True when the last line has faded out.
  bool isDone() const;

  // The line below this one; null for the last.
  const cSpriteParagraphDimming* next() const { return m_next.get(); }
  const xplRect<float>& paragraphRect() const { return m_paragraphRect; }

  virtual ~cSpriteParagraphDimming();

 protected:
  xplRect<float> m_paragraphRect;

 private:
  // The last line whose brightness is too low to be drawn, in percent.
  static constexpr int darkestBrightness = 20;

  void appendNext(const std::string& lineText);
  void deleteNext();
  // Starts and ends the line below this one when it is time to.
  void leadNext();
  void measureParagraph();

  std::unique_ptr<cSpriteParagraphDimming> m_next;
  cSpriteParagraphDimming* m_previous = nullptr;  // the line above, which owns this one
};
