// The settings sheet without a toolkit: what its pages show, what confirming it writes, and the page that it
// remembers.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "host/sheet/controlIds.h"
#include "host/sheet/messageEditor.h"
#include "support/settings.h"

// What the Sounds page plays while the user chooses. Each may be empty.
struct SoundPreview {
  std::function<void(int)> play;  // a sound in [1, 6], once, instead of the one that plays
  std::function<void()> playCuckoo;
  std::function<void()> stop;
};

// The index that the page entered or left last has recorded; kept for the whole process.
extern int lastActivePage;

// One showing of the sheet. A page is read when it is opened for the first time, and only opened pages are
// written. The order of calls: startPage; open and pageSwitched as the user turns pages; then collect for
// each opened page, and commit, as often as the user presses OK; rememberPage when the sheet is closed.
class SettingsSheet {
 public:
  // Borrows the store, which must outlive the sheet.
  explicit SettingsSheet(xplSettings& store = xplUserSettings(), SoundPreview preview = {});
  // Ends a sound that plays.
  ~SettingsSheet();
  SettingsSheet(const SettingsSheet&) = delete;
  SettingsSheet& operator=(const SettingsSheet&) = delete;

  // The page on which the sheet opens, in [0, pageCount).
  int startPage() const;
  // The page (PagePosition) becomes the active one, or stops being it.
  static void pageSwitched(int page);
  // Keeps the last active page for the next time; also after a cancelled sheet.
  void rememberPage();

  // Reads the settings of a page, from the file as it is now, and returns the ids of its controls that are to
  // be checked. A file that cannot be read is logged; the values are then those that the store has already.
  std::vector<int> open(int page);
  bool isOpen(int page) const { return m_opened.contains(page); }
  // What the Messages page works on; owned by the sheet. It is filled when that page is opened.
  MessageEditor& messages() { return m_messages; }
  // The full path of the file that OK writes: UTF-8 on Linux, the system code page on Windows.
  const std::string& settingsFile() const { return m_store.filename(); }

  // A control was clicked: the Sounds page plays what was chosen.
  void clicked(int page, int control) const;

  // Takes what stands in the controls of a page. `checked`: the ids of all its controls that are checked.
  void collect(int page, const std::vector<int>& checked) { m_collected[page] = checked; }
  // True when all opened pages have been collected.
  bool isComplete() const { return m_collected.size() >= m_opened.size(); }
  // Writes everything that was collected, in one save. False where the file could not be written: then
  // nothing has changed, and the sheet stays open.
  bool commit();
  // What to tell the user after a commit that failed; it names the file.
  std::string failureText() const;

 private:
  xplSettings& m_store;
  SoundPreview m_preview;
  MessageEditor m_messages;
  std::set<int> m_opened;
  std::map<int, std::vector<int>> m_collected;
};
