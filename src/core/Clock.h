#pragma once

#include <QDateTime>
#include <functional>

// Time comes from here, so that a test can set it. Local time of the machine.
namespace Clock {
QDateTime Now();
QDate Today();
// An empty function brings the machine's own clock back.
void Set(std::function<QDateTime()> now);
}  // namespace Clock
