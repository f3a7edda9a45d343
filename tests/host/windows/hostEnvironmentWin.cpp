// The framework's preparations on Windows: none, since timers and arguments are the system's own.
#include "host/hostEnvironment.h"

struct HostEnvironment::Parts {};

HostEnvironment::HostEnvironment(xplWindowHandle) {}

HostEnvironment::~HostEnvironment() = default;
