// Implements the controls of the Messages page.
#include "host/sheet/windows/messagesPage.h"

#include <string>

#include "host/sheet/controlIds.h"
#include "host/sheet/messageText.h"

namespace {

std::string textOf(HWND dialog, int control) {
  std::string text(maxMessageCharacters + 1, '\0');
  const UINT length = GetDlgItemTextA(dialog, control, text.data(), static_cast<int>(text.size()));
  text.resize(length);
  return text;
}

// A control that is switched off must not hold the focus: the keyboard would be dead.
void enable(HWND dialog, int control, bool enabled) {
  HWND window = GetDlgItem(dialog, control);
  if (!enabled && GetFocus() == window) {
    SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, controlIds::newMessage)),
                 TRUE);
  }
  EnableWindow(window, enabled);
}

void refresh(HWND dialog, MessageEditor& editor) {
  const MessageEditor::View view = editor.view();
  SetDlgItemTextA(dialog, controlIds::message, view.message.c_str());
  SetDlgItemTextA(dialog, controlIds::bottomLine, view.bottomLine.c_str());
  editor.filled(textOf(dialog, controlIds::message), textOf(dialog, controlIds::bottomLine));
  SetDlgItemTextA(dialog, controlIds::messagePosition, view.caption.c_str());
  enable(dialog, controlIds::message, view.hasEntry);
  enable(dialog, controlIds::bottomLine, view.hasEntry);
  enable(dialog, controlIds::deleteMessage, view.hasEntry);
  enable(dialog, controlIds::previousMessage, view.hasPrevious);
  enable(dialog, controlIds::nextMessage, view.hasNext);
}

}  // namespace

void initializeMessagesPage(HWND dialog, MessageEditor& editor) {
  for (const int control : {controlIds::message, controlIds::bottomLine}) {
    SendDlgItemMessageA(dialog, control, EM_LIMITTEXT, maxMessageCharacters, 0);
  }
  refresh(dialog, editor);
}

void storeMessageEdits(HWND dialog, MessageEditor& editor) {
  editor.storeEdits(textOf(dialog, controlIds::message), textOf(dialog, controlIds::bottomLine));
}

void pressMessageButton(HWND dialog, int button, MessageEditor& editor) {
  switch (button) {
    case controlIds::newMessage:
    case controlIds::nextMessage:
    case controlIds::previousMessage:
    case controlIds::deleteMessage:
      editor.press(button, textOf(dialog, controlIds::message), textOf(dialog, controlIds::bottomLine));
      refresh(dialog, editor);
      break;
    default:
      break;
  }
}
