// The accented text in the code page of Western European systems.
#include "../accentedText.h"

const char* const accentedText = "\xe9t\xe9 \xfc\xdf\xe7";
