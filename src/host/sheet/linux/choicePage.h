// A page of radio buttons and check boxes.
#pragma once

#include <QAbstractButton>
#include <QBoxLayout>
#include <QGroupBox>
#include <QWidget>
#include <functional>
#include <vector>

#include "host/sheet/linux/accelerators.h"
#include "host/sheet/sheetPages.h"

class ChoicePage : public QWidget {
 public:
  // Makes the controls of the page, unchecked; the name of each is its id. clicked: called with the id of
  // what the user clicks.
  ChoicePage(const SheetPage& page, Accelerators accelerators, std::function<void(int)> clicked);

  // Checks these controls, and takes the check from the others. Counts as no click.
  void setChecked(const std::vector<int>& ids);
  std::vector<int> checked() const;

 private:
  struct Choice {
    int id;
    QAbstractButton* button;  // owned by the page
  };
  void add(const SheetControl& control, Accelerators& accelerators);
  void addFrame(const char* title);
  void addChoice(const SheetControl& control, const QString& text);

  std::function<void(int)> m_clicked;
  QBoxLayout* m_layout;                       // owned by the page
  QGroupBox* m_frame = nullptr;               // the one that is being filled; owned by the page
  ControlKind m_framed = ControlKind::label;  // what lies in it; a label until the first control
  std::vector<Choice> m_choices;
};
