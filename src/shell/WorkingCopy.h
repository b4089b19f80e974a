#pragma once

#include <functional>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"

// A list that is edited in memory and takes the place of its rows in the table. Its reading is what makes one: where
// that fails there is none, and with it nothing that could replace rows which were not read whole. A screen holds a
// std::optional of it; `copy = WorkingCopy(read)` keeps the former one when the reading fails.
class WorkingCopy {
 public:
  // Runs the reading, whose AdoError passes.
  explicit WorkingCopy(const std::function<void()>& read) { read(); }

  // One transaction around the statements that bring the list into the table. After an AdoError its rows are as before.
  void Replace(const std::function<void()>& statements) const {
    Transaction transaction(gclsOF->Connection());
    statements();
    transaction.Commit();
  }
};
