#include "standin/validate/memory_watch.h"

namespace standin::validate::memory {

const char* whyUnwatched() { return "a Windows module brings its own allocator, which nobody outside can watch"; }
void refuse(std::uint64_t /*n*/) {}
bool refusalHappened() { return false; }
std::uint64_t allocations() { return 0; }
std::int64_t liveBytes() { return 0; }
std::int64_t liveBlocks() { return 0; }
void watchPeak() {}
std::int64_t peakBytes() { return 0; }

}  // namespace standin::validate::memory
