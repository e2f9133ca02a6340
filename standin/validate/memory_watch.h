// What the module takes from the heap: counted, and refused on demand. It sees everything that the module takes through
// operator new, where module and program share that; a module that brings its own (a Windows one) cannot be watched.
#pragma once

#include <cstdint>

namespace standin::validate::memory {

// Why the module's memory cannot be watched here; null when it can.
const char* whyUnwatched();

// The module's n-th allocation from now fails; 0 takes the wish back.
void refuse(std::uint64_t n);
bool refusalHappened();

// Allocations that the module's code has made so far.
std::uint64_t allocations();
// What it has taken and not given back.
std::int64_t liveBytes();
std::int64_t liveBlocks();
// The most bytes that it had at once since watchPeak was called.
void watchPeak();
std::int64_t peakBytes();

}  // namespace standin::validate::memory
