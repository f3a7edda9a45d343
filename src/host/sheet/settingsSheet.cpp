// Implements the settings sheet without a toolkit.
#include "host/sheet/settingsSheet.h"

#include <algorithm>
#include <utility>

#include "host/sheet/pageSettings.h"
#include "host/sheet/sheetPages.h"

namespace {

int clampedPage(int page) {
  return std::clamp(page, 0, pageCount - 1);
}

}  // namespace

int lastActivePage = 0;

SettingsSheet::SettingsSheet(xplSettings& store, SoundPreview preview)
    : m_store(store), m_preview(std::move(preview)), m_messages(store) {}

SettingsSheet::~SettingsSheet() {
  if (m_preview.stop) {
    m_preview.stop();
  }
}

int SettingsSheet::startPage() const {
  return clampedPage(cAppSettings(m_store).activeDialogTab.read());
}

void SettingsSheet::pageSwitched(int page) {
  lastActivePage = sheetPages()[static_cast<std::size_t>(clampedPage(page))].recordedIndex;
}

void SettingsSheet::rememberPage() {
  cAppSettings(m_store).activeDialogTab.write(clampedPage(lastActivePage));
}

std::vector<int> SettingsSheet::open(int page) {
  // Another sheet may have saved since: what is shown here would be written back over it.
  m_store.reload();
  m_opened.insert(page);
  if (page == messagesPage) {
    m_messages.load();
  }
  return checkedControlsFor(page, m_store);
}

void SettingsSheet::clicked(int page, int control) const {
  if (page != soundsPage) {
    return;
  }
  if (control == controlIds::cookooEveryHour) {
    if (m_preview.playCuckoo) {
      m_preview.playCuckoo();
    }
    return;
  }
  const int sound = soundOf(control);
  if (sound != 0 && m_preview.play) {
    m_preview.play(sound);
  } else if (sound == 0 && m_preview.stop) {
    m_preview.stop();
  }
}

bool SettingsSheet::commit() {
  const bool written = m_store.changeAllOrNothing([this] {
    for (const auto& [page, checked] : m_collected) {
      writePageSettings(page, checked, m_store);
    }
    if (m_collected.contains(messagesPage)) {
      m_messages.save();
    }
  });
  m_collected.clear();
  return written;
}

std::string SettingsSheet::failureText() const {
  return "Your settings could not be saved in the file\n" + m_store.filename() + "\n\n" +
         m_store.saveError() +
         "\n\nThe sheet stays open and keeps what you have chosen. Make the file and its folder writable, "
         "then "
         "press OK again.";
}
