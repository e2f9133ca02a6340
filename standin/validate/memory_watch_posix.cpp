// The program's own operator new, which the module uses as well: the dynamic linker finds the program's first.
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>

#include "standin/core/witness.h"
#include "standin/validate/memory_watch.h"

namespace {

std::uint64_t count = 0;
std::uint64_t refuseAt = 0;
bool refused = false;
std::int64_t bytes = 0;
std::int64_t blocks = 0;
std::int64_t peak = 0;

// Stands before each block, and says whether the module took it.
struct alignas(std::max_align_t) BlockHeader {
  std::size_t size;
  bool isModules;
};

void* take(std::size_t size) noexcept {
  const bool isModules = standin::witness().moduleRuns();
  if (isModules && ++count == refuseAt) {
    refused = true;
    return nullptr;
  }
  if (size > SIZE_MAX - sizeof(BlockHeader)) return nullptr;
  void* const memory = std::malloc(sizeof(BlockHeader) + size);
  if (memory == nullptr) return nullptr;
  auto* const header = new (memory) BlockHeader{size, isModules};
  if (isModules) {
    bytes += static_cast<std::int64_t>(size);
    peak = std::max(peak, bytes);
    ++blocks;
  }
  return header + 1;
}

void* takeOrThrow(std::size_t size) {
  void* const memory = take(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void give(void* memory) noexcept {
  if (memory == nullptr) return;
  auto* const header = static_cast<BlockHeader*>(memory) - 1;
  if (header->isModules) {
    bytes -= static_cast<std::int64_t>(header->size);
    --blocks;
  }
  std::free(header);
}

}  // namespace

void* operator new(std::size_t size) { return takeOrThrow(size); }
void* operator new[](std::size_t size) { return takeOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept { return take(size); }
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept { return take(size); }
void operator delete(void* memory) noexcept { give(memory); }
void operator delete[](void* memory) noexcept { give(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { give(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { give(memory); }
void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept { give(memory); }
void operator delete[](void* memory, const std::nothrow_t& /*tag*/) noexcept { give(memory); }

namespace standin::validate::memory {

const char* whyUnwatched() { return nullptr; }

void refuse(std::uint64_t n) {
  refuseAt = n == 0 ? 0 : count + n;
  refused = false;
}

bool refusalHappened() { return refused; }
std::uint64_t allocations() { return count; }
std::int64_t liveBytes() { return bytes; }
std::int64_t liveBlocks() { return blocks; }
void watchPeak() { peak = bytes; }
std::int64_t peakBytes() { return peak; }

}  // namespace standin::validate::memory
