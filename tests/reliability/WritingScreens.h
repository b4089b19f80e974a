#pragma once

#include <ostream>
#include <vector>

#include "reliability/ReliabilityDesk.h"

// The screens that write what a user types: how each is opened with a record on it, its free text fields with their
// columns, and how it is told to write. One case of the reliability suites runs for each row of this table.
enum class Trimmed { No, Ends, EndsAndUpper };

struct WritingField {
  const char* box;
  const char* column;
  Trimmed trimmed = Trimmed::Ends;
};

struct WritingScreen {
  const char* name;
  const char* table;
  std::vector<WritingField> fields;
  // Opens the screen, or goes on with the open one, with the record to be changed in its fields.
  std::function<void(ReliabilityDesk&)> open;
  std::function<void(ReliabilityDesk&)> write;
  // Columns that the screen sets by itself: when, by whom.
  QStringList ownColumns = {};
  // What stands in several rows of another table as well.
  QString alsoWrites = {};
};

const std::vector<WritingScreen>& WritingScreens();

inline void PrintTo(const WritingScreen& screen, std::ostream* out) {
  *out << screen.name;
}
