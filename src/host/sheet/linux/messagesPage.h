// The Messages page.
#pragma once

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include "host/sheet/linux/accelerators.h"
#include "host/sheet/linux/messageEdit.h"
#include "host/sheet/messageEditor.h"
#include "host/sheet/sheetPages.h"

class MessagesPage : public QWidget {
 public:
  // Makes the controls of the page; the name of each is its id. Borrows the editor, which must outlive the
  // page.
  MessagesPage(const SheetPage& page, Accelerators accelerators, MessageEditor& editor);

  // Shows the editor's current entry.
  void refresh();
  // Takes what stands in the edits into the current entry.
  void store();

 private:
  // Each makes one control and puts it into its place. All are owned by the page.
  void add(const SheetControl& control, Accelerators& accelerators);
  void addLabel(int id, const QString& text);
  void addEdit(const SheetControl& control);
  void addButton(int id, const QString& text);

  void press(int button);
  void enable(int id, bool enabled);
  QPushButton* button(int id) const;

  MessageEditor& m_editor;
  QGroupBox* m_frame;
  QBoxLayout* m_entry;            // what lies in the frame
  QBoxLayout* m_buttons;          // the row below it
  QLabel* m_lastLabel = nullptr;  // the one that names the next edit
  MessageEdit* m_message = nullptr;
  QLineEdit* m_bottomLine = nullptr;
};
