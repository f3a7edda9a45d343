// Gives the texts of a page keyboard accelerators that do not meet.
#pragma once

#include <QString>
#include <set>

class Accelerators {
 public:
  // taken: letters that are used already, by what is there on every page.
  explicit Accelerators(const QString& taken);

  // The text as Qt's controls take it: "&" stands before the letter that presses it together with Alt, the
  // first free one of those that begin a word, or else of all. Where none is free the text stays without.
  QString mark(const QString& text);

 private:
  // The position of the letter to mark; -1 where none is free.
  qsizetype choose(const QString& text) const;
  bool isFree(QChar letter) const;

  std::set<QChar> m_taken;  // lower case
};

// The text of a control that has no accelerator: an "&" in it is shown as it stands.
QString withoutAccelerator(const QString& text);
