// Leads the lines of a paragraph.
#include "quotes/spriteParagraphDimming.h"

#include <algorithm>
#include <utility>

namespace {

constexpr float gapBetweenLines = 2.0F;  // pixels

}  // namespace

cSpriteParagraphDimming::~cSpriteParagraphDimming() {
  deleteNext();
}

// Line by line: each line's own destructor finds nothing behind it.
void cSpriteParagraphDimming::deleteNext() {
  while (m_next != nullptr) {
    m_next = std::move(m_next->m_next);
  }
}

void cSpriteParagraphDimming::setParagraph(const std::vector<std::string>& lines) {
  deleteNext();
  if (lines.empty()) {
    return;
  }
  setText(lines.front());
  cSpriteParagraphDimming* last = this;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    last->appendNext(lines[i]);
    last = last->m_next.get();
  }
  calcSize();
}

void cSpriteParagraphDimming::appendNext(const std::string& lineText) {
  m_next = std::make_unique<cSpriteParagraphDimming>("cSpriteParagraphDimming");
  m_next->m_previous = this;
  TorvTextStyle fullStyle = style;
  fullStyle.textColor = fullColor();
  m_next->setStyle(fullStyle);
  m_next->setRenderWindow(renderWindow());
  m_next->setText(lineText);
}

bool cSpriteParagraphDimming::isDone() const {
  const cSpriteParagraphDimming* last = this;
  while (last->m_next != nullptr) {
    last = last->m_next.get();
  }
  return last->state() == done;
}

// First every line, from the top; then every pair, from the bottom: a line that has just become fully visible
// starts the next one before the line above it can tell it to fade out.
void cSpriteParagraphDimming::update(float elapsedSec) {
  cSpriteParagraphDimming* line = this;
  line->cSpriteTextDimming::update(elapsedSec);
  while (line->m_next != nullptr) {
    line = line->m_next.get();
    line->cSpriteTextDimming::update(elapsedSec);
  }
  while (line != this) {
    line = line->m_previous;
    line->leadNext();
  }
}

void cSpriteParagraphDimming::leadNext() {
  if (state() == holding && m_next->state() == notStarted) {
    m_next->start(x, static_cast<float>(getBottom()) + gapBetweenLines, holdTime());
  }
  if (state() == done && m_next->state() == holding) {
    m_next->fadeOut();
  }
}

void cSpriteParagraphDimming::calcSize() {
  cSpriteParagraphDimming* line = this;
  line->cSpriteTextDimming::calcSize();
  while (line->m_next != nullptr) {
    line = line->m_next.get();
    line->cSpriteTextDimming::calcSize();
  }
  line->measureParagraph();
  while (line != this) {
    line = line->m_previous;
    line->measureParagraph();
  }
}

// Deliberate: the gaps between the lines do not count, so that a paragraph of many lines reaches a little
// below its rectangle. Where quotes stand for a given seed depends on it.
void cSpriteParagraphDimming::measureParagraph() {
  m_paragraphRect = xplRect<float>(y, x, width, height);
  if (m_next != nullptr) {
    m_paragraphRect.width = std::max(width, m_next->m_paragraphRect.width);
    m_paragraphRect.height = height + m_next->m_paragraphRect.height;
  }
}

// Deliberate: a line is left out altogether while it is very dim, rather than drawn nearly black on the sky.
void cSpriteParagraphDimming::draw() {
  for (cSpriteParagraphDimming* line = this; line != nullptr; line = line->m_next.get()) {
    if (line->brightness() > darkestBrightness) {
      line->cSpriteTextDimming::draw();
    }
  }
}
