// The settings store: where its file lies, when it is read and saved.
#include "support/settings.h"

#include <array>
#include <fstream>
#include <memory>
#include <utility>

#include "support/assertion.h"
#include "support/fileSystem.h"
#include "support/log.h"
#include "support/saveLock.h"
#include "support/settingsFormat.h"

namespace {

constexpr const char* companyFolder = "Lunaria software";
constexpr const char* applicationName = "Lunaria screensaver";

std::string baseFolderOf(int scope) {
  return scope == xplSettings::scopeAllUsers ? xplFileSystemMini::getFolder_CommonAppData()
                                             : xplFileSystemMini::getFolder_UserData();
}

std::string makeCompanyFolder(const std::string& base) {
  std::string folder = xplFileSystemMini::joinPath(base, companyFolder);
  if (!xplFileSystemMini::fileExists(folder) && !xplFileSystemMini::folderExists(folder)) {
    xplFileSystemMini::createFolder(folder);
  }
  if (!xplFileSystemMini::folderExists(folder)) {
    logError().add("During xplSettings constructor could not create folder:" + folder);
  }
  return folder;
}

// The bytes of a file; nothing where it cannot be opened or read to its end.
std::optional<std::string> readWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    return std::nullopt;
  }
  std::string content;
  std::array<char, 65536> piece{};
  while (file.read(piece.data(), piece.size()) || file.gcount() > 0) {
    content.append(piece.data(), static_cast<std::size_t>(file.gcount()));
  }
  return file.bad() ? std::nullopt : std::optional(std::move(content));
}

std::unique_ptr<xplSettings>& userStore() {
  static std::unique_ptr<xplSettings> store;
  return store;
}

std::unique_ptr<xplSettings>& applicationStore() {
  static std::unique_ptr<xplSettings> store;
  return store;
}

xplSettings& opened(std::unique_ptr<xplSettings>& store, int scope) {
  if (store == nullptr) {
    store = std::make_unique<xplSettings>(scope);
  }
  return *store;
}

}  // namespace

xplSettings::xplSettings(int scope) {
  const std::string _settingsFilename = baseFolderOf(scope);
  xplAssert(xplFileSystemMini::folderExists(_settingsFilename.c_str()),
            "xplFileSystemMini::folderExists(_settingsFilename.c_str()) && _T(\"#5381: settings folder does "
            "not exist\")",
            "xplSettings");
  m_filename = xplFileSystemMini::joinPath(makeCompanyFolder(_settingsFilename),
                                           std::string(applicationName) + ".ini");
  logInfo().add("xplSettings constructor: filename:" + m_filename);
  if (!reload()) {
    logError().add("Error #1351: loading xplSettings from file:" + m_filename);
  }
}

xplSettings::~xplSettings() {
  if (!saveOnEveryChange && !save()) {
    logError().add("Error #1352: saving xplSettings to file:" + m_filename);
  }
}

bool xplSettings::mergeWithFile(std::map<std::string, std::string>& merged) {
  if (!xplFileSystemMini::fileExists(m_filename)) {
    merged = m_values;
    return true;
  }
  std::optional<std::string> content = readWhole(m_filename);
  if (!content) {
    return false;
  }
  parseSettings(std::move(*content), merged);
  for (const std::string& key : m_unsaved) {
    merged[key] = m_values[key];
  }
  return true;
}

bool xplSettings::reload() {
  std::map<std::string, std::string> merged;
  if (!mergeWithFile(merged)) {
    logError().add("#8551: Could not open file:" + m_filename);
    return false;
  }
  m_values = std::move(merged);
  return true;
}

bool xplSettings::save() {
  const xplSaveLock lock(m_filename);
  m_saveError = "the file is there but could not be read, and is left as it is";
  std::map<std::string, std::string> merged;
  if (mergeWithFile(merged) &&
      xplFileSystemMini::replaceFile(m_filename, formatSettings(merged, xplFileSystemMini::lineEnd()),
                                     m_saveError)) {
    m_values = std::move(merged);
    m_unsaved.clear();
    m_saveError.clear();
    return true;
  }
  logError().add("Error saving file " + m_filename + " Error message:" + m_saveError);
  return false;
}

void xplSettings::saveOrReport() {
  if (!save()) {
    logError().add("Error #1352c: saving xplSettings to file:" + m_filename);
  }
}

void xplSettings::set(const std::string& key, const std::string& value) {
  m_values[key] = value;
  m_unsaved.insert(key);
  if (saveOnEveryChange) {
    saveOrReport();
  }
}

xplSettings::Batch::Batch(xplSettings& store) : m_store(store), m_savedBefore(store.saveOnEveryChange) {
  m_store.saveOnEveryChange = false;
}

xplSettings::Batch::~Batch() {
  m_store.saveOnEveryChange = m_savedBefore;
  if (m_savedBefore) {
    m_store.saveOrReport();
  }
}

bool xplSettings::changeAllOrNothing(const std::function<void()>& changes) {
  if (!saveOnEveryChange) {
    changes();
    return true;
  }
  const auto valuesBefore = m_values;
  const auto unsavedBefore = m_unsaved;
  saveOnEveryChange = false;
  changes();
  saveOnEveryChange = true;
  const bool saved = save();
  if (!saved) {
    m_values = valuesBefore;
    m_unsaved = unsavedBefore;
  }
  return saved;
}

std::optional<std::string> xplSettings::get(const std::string& key) const {
  const auto found = m_values.find(key);
  return found == m_values.end() ? std::nullopt : std::optional(found->second);
}

xplSettings& xplUserSettings() {
  return opened(userStore(), xplSettings::scopeUser);
}

xplSettings& xplApplicationSettings() {
  return opened(applicationStore(), xplSettings::scopeAllUsers);
}

void xplCloseSettings() {
  userStore().reset();
  applicationStore().reset();
}
