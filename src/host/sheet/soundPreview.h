// Lets the Sounds page be heard.
#pragma once

#include "host/sheet/settingsSheet.h"
#include "services/soundPlayer.h"

// Plays through this player, each sound once. The player is borrowed and must outlive the sheet.
SoundPreview soundPreview(cSoundPlayer& player);
