// What makes one measurement like another.
#pragma once

#include <time.h>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include <array>
#include <cstddef>

namespace varnel::bench {

// Of a character's mesh.
inline constexpr std::array<std::size_t, 2> kFaceCounts = {200'000, 1'000'000};

// Of the one thread that hosts and module run on. Other work on the machine counts less there than by the clock on the wall.
inline double processorMilliseconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

// The C library keeps memory that was given back and hands it out again: a second read of the same object would be quicker
// than the first, which is the only one there is in the host. This lets the system have all that is not in use.
inline void forgetUsedMemory() {
#if defined(__GLIBC__)
  malloc_trim(0);
#endif
}

}  // namespace varnel::bench
