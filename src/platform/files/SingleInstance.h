#pragma once

#include <QString>

// Whether this program runs already for this user: a lock file in the user's runtime folder, which a crashed process
// does not leave locked.
namespace SingleInstance {
// Takes the lock when nobody holds it and keeps it until the process ends. True when another process holds it.
bool AnotherIsRunning(const QString& applicationName);
}  // namespace SingleInstance
