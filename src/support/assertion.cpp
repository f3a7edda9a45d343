// Reports failed assertions in the log.
#include "support/assertion.h"

#include "support/log.h"

void xplReportFailedAssertion(const char* condition, const char* text, const char* source, int line) {
  logError().addf("Assertion failed: %s, %s, source %s, line %i", condition, text, source, line);
}
