// Months and moments in words, as the moon's label writes them.
#pragma once

#include <ctime>
#include <string>

// The English name of a month, 0 to 11. Any other index gives a text that says so.
const char* intToMonth(int index);

// Month, day, hour and minute, for example "May 21, 21:15". Null is a mistake of the caller: it is reported,
// and the text is empty.
std::string timeStruct2String(const std::tm* time);
