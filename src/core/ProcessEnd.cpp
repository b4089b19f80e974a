#include "core/ProcessEnd.h"

#include <cstdio>
#include <cstdlib>

namespace {
std::function<void(int)> otherEnding;
}

void EndProcess(int exitCode) {
  if (otherEnding) {
    otherEnding(exitCode);
    return;
  }
  std::fflush(nullptr);
  std::_Exit(exitCode);
}

void SetProcessEnd(std::function<void(int)> ending) {
  otherEnding = std::move(ending);
}
