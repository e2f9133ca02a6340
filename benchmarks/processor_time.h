// The processor's time of the one thread that hosts and module run on. Other work on the machine counts less there than by
// the clock on the wall.
#pragma once

#include <time.h>

namespace varnel::bench {

inline double processorMilliseconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

}  // namespace varnel::bench
