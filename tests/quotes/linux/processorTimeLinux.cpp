// The processor's time on Linux.
#include <ctime>

#include "quotes/processorTime.h"

double processorTimeMs() {
  return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}
