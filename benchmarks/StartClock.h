#pragma once

#include <cstdio>
#include <ctime>

// Nanoseconds of a clock that all processes of the machine share.
inline long long SharedClock() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

// Writes "ready <clock>", the line that bench_start waits for.
inline void TellReady() {
  std::printf("ready %lld\n", SharedClock());
  std::fflush(stdout);
}
