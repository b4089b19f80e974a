#pragma once

#include <vector>

#include "directory/CustomText.h"
#include "directory/LibraryScreenFacts.h"

// Keys of the custom text file that all five library screens have, without those of a screen's way to itself.
std::vector<TextKey> CommonTextKeys(LibrarySibling self);
