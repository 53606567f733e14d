// How long something takes at best.
#pragma once

#include <algorithm>
#include <ctime>

namespace tessel::test {

/// Seconds of this thread's processor time, the least of several runs.
template <class Work>
double BestSecondsOf(int times, Work work) {
  const auto now = [] {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
  };
  double best = 1e9;
  for (int i = 0; i < times; ++i) {
    const double start = now();
    work();
    best = std::min(best, now() - start);
  }
  return best;
}

}  // namespace tessel::test
