#pragma once

#include <functional>

// Ends the process at once: no connection is closed, no screen unloaded. Callers return behind it, since a test can
// put another ending in place.
void EndProcess(int exitCode = 0);
void SetProcessEnd(std::function<void(int)> ending);
