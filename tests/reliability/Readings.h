#pragma once

#include "reliability/ReadingDesk.h"
#include "reliability/WritingScreens.h"

// A step of a screen in which it reads, and how one comes before it. Steps that are not known to read nothing are among
// them; a run tells.
struct Reading {
  QString name;
  std::function<void(ReadingDesk&)> before;
  std::function<void(ReadingDesk&)> read;
};

// Opening the screen, coming back to it, coming to it from its sister, rows, lists, options and buttons of the open
// screen, and its own writing actions, which read before and after they write.
std::vector<Reading> ReadingsOf(const WritingScreen& screen);

// Whether the screen stands before the user.
bool IsInFront(const ReadingDesk& desk, const WritingScreen& screen);
