#pragma once

#include <QDateTime>
#include <chrono>
#include <functional>

// Time comes from here, so that a test can set it. Local time of the machine.
namespace Clock {
QDateTime Now();
QDate Today();
// Lets that time go by.
void Pause(std::chrono::milliseconds time);
// What lets it go by instead; an empty function brings the machine's own way back.
void SetPause(std::function<void(std::chrono::milliseconds)> pause);
// An empty function brings the machine's own clock back.
void Set(std::function<QDateTime()> now);
}  // namespace Clock
