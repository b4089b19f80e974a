#include "core/Clock.h"

#include <thread>

namespace Clock {

namespace {
std::function<QDateTime()> source;
std::function<void(std::chrono::milliseconds)> pausing;
}  // namespace

QDateTime Now() {
  return source ? source() : QDateTime::currentDateTime();
}

QDate Today() {
  return Now().date();
}

void Pause(std::chrono::milliseconds time) {
  if (pausing) return pausing(time);
  std::this_thread::sleep_for(time);
}

void SetPause(std::function<void(std::chrono::milliseconds)> pause) {
  pausing = std::move(pause);
}

void Set(std::function<QDateTime()> now) {
  source = std::move(now);
}

}  // namespace Clock
