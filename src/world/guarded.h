// Runs a step of the start-up so that its failure is logged and the program goes on without it.
#pragma once

#include <exception>
#include <stdexcept>

#include "support/log.h"

// context: what failed, for the log.
template <class Step>
void guarded(const char* context, Step step) {
  try {
    step();
  } catch (const std::runtime_error& error) {
    logError().addf("Runtime error caught:\n%s\n%s", error.what(), context);
  } catch (const std::exception& error) {
    logError().addf("Exception caught:\n%s\n%s", error.what(), context);
  } catch (...) {
    logError().addf("Exception caught:%s", context);
  }
}
