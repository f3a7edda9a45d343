// Implements the choice of accelerators.
#include "host/sheet/linux/accelerators.h"

namespace {

bool beginsWord(const QString& text, qsizetype position) {
  return position == 0 || !text[position - 1].isLetterOrNumber();
}

}  // namespace

Accelerators::Accelerators(const QString& taken) {
  for (const QChar letter : taken) {
    m_taken.insert(letter.toLower());
  }
}

bool Accelerators::isFree(QChar letter) const {
  return letter.isLetter() && !m_taken.contains(letter.toLower());
}

qsizetype Accelerators::choose(const QString& text) const {
  qsizetype inside = -1;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (!isFree(text[i])) {
      continue;
    }
    if (beginsWord(text, i)) {
      return i;
    }
    if (inside < 0) {
      inside = i;
    }
  }
  return inside;
}

QString Accelerators::mark(const QString& text) {
  const qsizetype position = choose(text);
  if (position < 0) {
    return withoutAccelerator(text);
  }
  m_taken.insert(text[position].toLower());
  return withoutAccelerator(text.left(position)) + "&" + withoutAccelerator(text.mid(position));
}

QString withoutAccelerator(const QString& text) {
  return QString(text).replace("&", "&&");
}
