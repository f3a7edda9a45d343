// Maps the radio buttons and check boxes of a page to the settings, and back.
#pragma once

#include <vector>

#include "support/settings.h"

// The ids of the controls of a page (PagePosition) that stand for the settings as they are: one radio button
// of those that it has, and any number of check boxes. None for a page without either.
std::vector<int> checkedControlsFor(int page, xplSettings& store);

// Writes the settings of a page: `checked` holds the ids of all its controls that are checked. Where no radio
// button is, the page's default counts. A page without settings of this kind writes nothing.
void writePageSettings(int page, const std::vector<int>& checked, xplSettings& store);

// The value of "snd_selectedSound" that a radio button of the Sounds page stands for; 0 for any other id.
int soundOf(int control);
