#pragma once

#include <ostream>
#include <vector>

#include "reliability/ReliabilityDesk.h"

// What a process does over and over until it is killed, and how its database is told whole from half done. All that a
// round writes bears the number of the round, so that the leavings of two rounds never look like one.
struct KilledAction {
  const char* name;
  // Rows that the sample site lacks, made by another client before the process starts.
  std::function<void(Connection&)> prepare;
  // One round, by key strokes and clicks.
  std::function<void(ReliabilityDesk&, int round)> round;
  // What is half done; empty when nothing is.
  std::function<QString(Connection&)> halfDone;
};

const std::vector<KilledAction>& KilledActions();
