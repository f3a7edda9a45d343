// How quotes are set.
#pragma once

#include "sprites/spriteText.h"

// The platform's serif face, 16 points, a warm white, lines aligned at the left.
TorvTextStyle quotesStyle();
