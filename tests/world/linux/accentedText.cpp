// The accented text in UTF-8.
#include "../accentedText.h"

const char* const accentedText = "\xc3\xa9t\xc3\xa9 \xc3\xbc\xc3\x9f\xc3\xa7";
