#pragma once

#include "platform/ado/Connection.h"

// A directory as a national union catalogue has it: believable rows, the same ones every time.
namespace ManyLibraries {

// Adds `count` libraries with symbols "LIB000001" on and numbers from 20000000 on, in one transaction.
void Add(Connection& connection, int count);

inline constexpr int FirstId = 20000000;

}  // namespace ManyLibraries
