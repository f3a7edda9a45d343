// Counts every allocation of a test program that asks for the count.
#pragma once

// How often operator new was called so far in this process, by any thread. Its definition brings a counting
// operator new with it into the program.
long allocationCount();
