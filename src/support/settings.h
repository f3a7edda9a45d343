// The settings store: a sorted map of keys to values, kept in one text file with a line for each key.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>

class xplSettings {
 public:
  // Which folder the file lies in: 1 is all users' application data, anything else the current user's.
  static constexpr int scopeAllUsers = 1;
  static constexpr int scopeUser = 3;

  // Finds (and makes) the folder, and loads the file; what fails is logged and the store is usable all the
  // same.
  explicit xplSettings(int scope);
  // Saves when saveOnEveryChange is off.
  ~xplSettings();
  xplSettings(const xplSettings&) = delete;
  xplSettings& operator=(const xplSettings&) = delete;

  // Replaces a value, and saves at once when saveOnEveryChange is on.
  void set(const std::string& key, const std::string& value);
  void set(const std::string& key, const char* value) { set(key, std::string(value)); }
  void set(const std::string& key, bool value);  // "yes" or "no"
  void set(const std::string& key, int value);
  void set(const std::string& key, std::int64_t value);
  void set(const std::string& key, double value);  // six significant digits

  // The stored text; nothing where the key is absent.
  std::optional<std::string> get(const std::string& key) const;
  // The stored value, or the default where the key is absent or its text is not wholly such a value.
  bool getBool(const std::string& key, bool defaultValue) const;
  int getInt(const std::string& key, int defaultValue) const;
  std::int64_t getInt64(const std::string& key, std::int64_t defaultValue) const;

  // Makes the changes (calls of set) and saves once. Where that fails, all values are as they were before,
  // and false is returned. Inside a Batch it leaves the saving to that, and returns true.
  bool changeAllOrNothing(const std::function<void()>& changes);

  // Takes the file's values over, as another program has left them; what was set here and could not be saved
  // yet stays. Where the file is gone all values stay as they are; where it cannot be read, too, and false is
  // returned after that was logged.
  bool reload();

  // The file's full path.
  const std::string& filename() const { return m_filename; }
  // Why the last save failed, in the system's words; empty where it worked or none was tried.
  const std::string& saveError() const { return m_saveError; }

  // When set, the file always holds the last values; when not, the destructor saves.
  bool saveOnEveryChange = true;

  // Gathers the changes of its lifetime into one save, at its end, where each would have been saved alone.
  class Batch {
   public:
    // Borrows the store, which must outlive the batch. Batches nest: the outermost saves.
    explicit Batch(xplSettings& store);
    ~Batch();
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

   private:
    xplSettings& m_store;
    bool m_savedBefore;
  };

 private:
  // Writes the file as it is now with our own changes over it: what another program has written to it in the
  // meantime (the settings sheet while a saver runs, a second sheet) is kept, and taken over. A file that
  // cannot be read is not written, for that would destroy what it holds. Another program that is saving at
  // the same moment is waited for (xplSaveLock).
  bool save();
  bool mergeWithFile(std::map<std::string, std::string>& merged);
  void saveOrReport();

  std::map<std::string, std::string> m_values;
  std::set<std::string> m_unsaved;  // keys that were set since the last save that worked
  std::string m_filename;
  std::string m_saveError;
};

// The two stores of the process, opened by their first user.
xplSettings& xplUserSettings();
xplSettings& xplApplicationSettings();
// Closes both, so that the next user opens them afresh (tests; a change of folders).
void xplCloseSettings();
