// The eight pages of the settings sheet: their titles, their controls and the texts on them.
#pragma once

#include <span>
#include <string>

#include "host/sheet/controlIds.h"

enum class ControlKind { groupBox, radioButton, checkBox, label, multiLineEdit, lineEdit, button, link };

struct SheetControl {
  int id;  // controlIds::none where the control has none
  ControlKind kind;
  const char* text;  // as the page is made, in ASCII; '\n' breaks lines
};

struct SheetPage {
  int dialogTemplate;  // the resource id of the page on Windows
  const char* title;
  int recordedIndex;  // what lastActivePage becomes when the page is entered or left
  int width;          // dialog units
  int height;         // dialog units
  std::span<const SheetControl> controls;
};

// All pages, by position; they live as long as the program.
std::span<const SheetPage> sheetPages();

// The caption of the sheet's window.
std::string sheetCaption();
