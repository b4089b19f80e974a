#pragma once

#include <vector>

#include "platform/ado/ConnectionSettings.h"

// The settings of each server that Host names: "a,b:5433,[::1]:5434", a name without a port having that of the
// settings. One for a host alone, a socket or a file.
std::vector<ConnectionSettings> NodesOf(const ConnectionSettings& settings);
