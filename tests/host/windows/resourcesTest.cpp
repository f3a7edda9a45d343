// Tests the program's own resources: its name, its version, its dialog.
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "graphics/windows/gdi.h"
#include "host/programVersion.h"

namespace {

// A copy of a resource, word by word so that its text can be searched.
std::wstring resourceWords(LPCSTR name, LPCSTR type) {
  HMODULE module = GetModuleHandleA(nullptr);
  HRSRC found = FindResourceA(module, name, type);
  if (!found) {
    return {};
  }
  std::wstring words(SizeofResource(module, found) / sizeof(wchar_t), L'\0');
  std::memcpy(words.data(), LockResource(LoadResource(module, found)), words.size() * sizeof(wchar_t));
  return words;
}

std::wstring wide(const std::string& text) {
  return {text.begin(), text.end()};
}

TEST(ProgramResources, TheFirstStringIsTheName) {
  char text[64] = "";
  LoadStringA(GetModuleHandleA(nullptr), 1, text, sizeof(text));
  EXPECT_STREQ(text, programName);
}

TEST(ProgramResources, TheVersionIsTheProgramsOwn) {
  const auto version = resourceWords(MAKEINTRESOURCEA(1), RT_VERSION);
  EXPECT_NE(version.find(wide(std::string("ProductVersion"))), std::wstring::npos);
  EXPECT_NE(version.find(wide(programVersion)), std::wstring::npos);
  EXPECT_NE(version.find(wide(programName)), std::wstring::npos);
}

TEST(ProgramResources, TheVersionSaysWhoseItIs) {
  const auto version = resourceWords(MAKEINTRESOURCEA(1), RT_VERSION);
  EXPECT_NE(version.find(L"Lunaria software"), std::wstring::npos);
  EXPECT_NE(version.find(L"Copyright (c) 2026 the owner of Lunaria"), std::wstring::npos);
}

TEST(ProgramResources, ThereIsAManifest) {
  EXPECT_FALSE(resourceWords(MAKEINTRESOURCEA(1), RT_MANIFEST).empty());
}

std::string titleOfDialog;
std::string okText;
std::string cancelText;
std::string tabClass;

INT_PTR CALLBACK lookAtDialog(HWND dialog, UINT message, WPARAM, LPARAM) {
  if (message != WM_INITDIALOG) {
    return FALSE;
  }
  char text[64] = "";
  GetWindowTextA(dialog, text, sizeof(text));
  titleOfDialog = text;
  GetDlgItemTextA(dialog, 1, text, sizeof(text));
  okText = text;
  GetDlgItemTextA(dialog, 2, text, sizeof(text));
  cancelText = text;
  GetClassNameA(GetDlgItem(dialog, 1001), text, sizeof(text));
  tabClass = text;
  EndDialog(dialog, 5);
  return TRUE;
}

TEST(ProgramResources, TheConfigurationDialogHasItsTitleButtonsAndTabs) {
  ASSERT_EQ(DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(2003), nullptr, lookAtDialog, 0), 5);
  EXPECT_EQ(titleOfDialog, "Lunaria screen saver configuration");
  EXPECT_EQ(okText, "OK !");
  EXPECT_EQ(cancelText, "Cancel ?");
  EXPECT_EQ(tabClass, "SysTabControl32");
}

}  // namespace
