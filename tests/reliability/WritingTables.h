#pragma once

#include <vector>

struct WritingScreen;

// The parts of the table of writing screens.
std::vector<WritingScreen> WritingTabs();
std::vector<WritingScreen> WritingDialogs();
std::vector<WritingScreen> WritingLibraryScreens();
