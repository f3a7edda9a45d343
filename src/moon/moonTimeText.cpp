// Writes months and moments in words.
#include "moon/moonTimeText.h"

#include <array>

#include "support/assertion.h"
#include "support/log.h"

namespace {

constexpr std::array<const char*, 12> monthNames = {"January",   "February", "March",    "April",
                                                    "May",       "June",     "July",     "August",
                                                    "September", "October",  "November", "December"};

// Deliberate: reports of a missing time name this line wherever the code stands, so that logs of all versions
// can be compared.
constexpr int reportedLine = 38;

}  // namespace

const char* intToMonth(int index) {
  const auto position = static_cast<unsigned>(index);  // a negative index lies beyond the end
  return position < monthNames.size() ? monthNames[position] : "intToMonth() called with index out of 0..11";
}

std::string timeStruct2String(const std::tm* time) {
  if (time == nullptr) {
    if (xplAssertionsReport) {
      xplReportFailedAssertion("(a != NULL) && _T(\"#9863: timeStruct2String(NULL)\")",
                               "#9863: timeStruct2String(NULL)", "cMoonInfo", reportedLine);
    }
    return {};
  }
  return stringFormat("%s %02d, %02d:%02d", intToMonth(time->tm_mon), time->tm_mday, time->tm_hour,
                      time->tm_min);
}
