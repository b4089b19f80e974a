#include "core/Clock.h"

namespace Clock {

namespace {
std::function<QDateTime()> source;
}

QDateTime Now() {
  return source ? source() : QDateTime::currentDateTime();
}

QDate Today() {
  return Now().date();
}

void Set(std::function<QDateTime()> now) {
  source = std::move(now);
}

}  // namespace Clock
