// The groups of settings with their keys and defaults, and the list of messages.
#include "support/settingsGroups.h"

#include <algorithm>

#include "support/clock.h"
#include "support/log.h"

namespace {

// A damaged count must not fill the memory with empty messages.
constexpr int maxMessages = 100'000;

constexpr std::int64_t secondsPerMinute = 60;
constexpr std::int64_t minutesPerHour = 60;

std::string numberedKey(const char* key, std::size_t number) {
  return key + std::to_string(number);
}

}  // namespace

cMoonSettings::cMoonSettings(xplSettings& store)
    : moonSize(store, "moonSize", 300),
      showMoon(store, "showMoon", true),
      fromSouthHemisphere(store, "fromSouthHemisphere", false),
      showMoonPhasePercentAndDegrees(store, "showMoonPhasePercentAndDegrees", true),
      showMoonPhaseName(store, "showMoonPhaseName", true),
      showNotableDates(store, "showNotableDates", true) {}

cMessageSettings::cMessageSettings(xplSettings& store)
    : m_store(store),
      m_messagesCount(store, "messagesCount", 0),
      m_defaultMessagesAdded(store, "msg_defaultMessagesAdded", false) {}

void cMessageSettings::load() {
  m_entries.clear();
  currentIndex = 0;
  const int stored = m_messagesCount.read();
  if (stored > maxMessages) {
    logWarning().addf("messagesCount is %i; only the first %i messages are used", stored, maxMessages);
  }
  const auto count = static_cast<std::size_t>(std::clamp(stored, 0, maxMessages));
  for (std::size_t i = 1; i <= count; ++i) {
    add({m_store.get(numberedKey("message", i)).value_or(""),
         m_store.get(numberedKey("bottomline", i)).value_or("")});
  }
  if (m_entries.empty() && !m_defaultMessagesAdded.read()) {
    add({"Your message\r\nhere", "and your bottom line here"});
    add({"Lunaria\r\nscreensaver",
         "Would you like this sky on your own screen? Fetch it from www.lunaria.example"});
    const xplSettings::Batch batch(m_store);
    m_store.set("msg_defaultMessagesAdded", "1");
    save();
  }
}

void cMessageSettings::save() {
  const xplSettings::Batch batch(m_store);
  m_messagesCount.write(static_cast<int>(m_entries.size()));
  for (std::size_t i = 0; i < m_entries.size(); ++i) {
    m_store.set(numberedKey("message", i + 1), m_entries[i].message);
    m_store.set(numberedKey("bottomline", i + 1), m_entries[i].bottomLine);
  }
}

void cMessageSettings::insert(std::size_t index, const sMessage& entry) {
  if (index <= m_entries.size()) {
    m_entries.insert(m_entries.begin() + static_cast<std::ptrdiff_t>(index), entry);
  }
}

void cMessageSettings::replace(std::size_t index, const sMessage& entry) {
  if (index < m_entries.size()) {
    m_entries[index] = entry;
  }
}

void cMessageSettings::remove(std::size_t index) {
  if (index < m_entries.size()) {
    m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(index));
  }
}

const sMessage* cMessageSettings::get(std::size_t index) const {
  return index < m_entries.size() ? &m_entries[index] : nullptr;
}

// Deliberate: the keys "sisableTelemetry" and "snd_cookooEveryHour" are spelled so. Users' files hold them;
// with another spelling a choice that was made would be lost.
cAppSettings::cAppSettings(xplSettings& store)
    : preventComputerSleepUntilUTCtime_inMinutes(store, "preventComputerSleepUntilUTCtime_inMinutes", 0),
      sisableTelemetry(store, "sisableTelemetry", false),
      activeDialogTab(store, "activeDialogTab", 0),
      startupEffect(store, "startupEffect", 0),
      background(store, "background", 3),
      preventComputerSleep(store, "preventComputerSleep", 0),
      showQuotes_Love(store, "showQuotes_Love", false),
      showQuotes_Wisdom(store, "showQuotes_Wisdom", false),
      showQuotes_Advice(store, "showQuotes_Advice", false),
      showQuotes_Funny(store, "showQuotes_Funny", false),
      showQuotes_WomenVSMen(store, "showQuotes_WomenVSMen", false),
      showQuotes_Peace(store, "showQuotes_Peace", false),
      showQuotes_UserQuotes(store, "showQuotes_UserQuotes", false) {}

bool cAppSettings::anyQuoteCategoryOn(std::size_t userQuotesCount) const {
  return showQuotes_Love.read() || showQuotes_Wisdom.read() || showQuotes_Advice.read() ||
         showQuotes_Funny.read() || showQuotes_WomenVSMen.read() || showQuotes_Peace.read() ||
         (showQuotes_UserQuotes.read() && userQuotesCount > 0);
}

void cAppSettings::preventSleepForHours(int hours) {
  preventComputerSleepUntilUTCtime_inMinutes.write(xplClock::now() / secondsPerMinute +
                                                   hours * minutesPerHour);
}

cSoundSettings::cSoundSettings(xplSettings& store)
    : snd_selectedSound(store, "snd_selectedSound", 0),
      snd_loopSound(store, "snd_loopSound", false),
      snd_cookooEveryHour(store, "snd_cookooEveryHour", true) {}
