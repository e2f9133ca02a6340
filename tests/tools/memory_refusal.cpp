#include "tests/tools/memory_refusal.h"

#include <cstddef>
#include <cstdlib>
#include <new>

#include "standin/core/witness.h"

namespace {

unsigned allocationsToGo = 0;  // 0: none fails

void* take(std::size_t size) {
  if (allocationsToGo != 0 && standin::witness().inModule() && --allocationsToGo == 0) throw std::bad_alloc();
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

void* operator new(std::size_t size) { return take(size); }
void* operator new[](std::size_t size) { return take(size); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept { return std::malloc(size == 0 ? 1 : size); }
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept { return std::malloc(size == 0 ? 1 : size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { std::free(memory); }

namespace varnel::test {

CallbackAllocationFails::CallbackAllocationFails(unsigned n) { allocationsToGo = n; }
CallbackAllocationFails::~CallbackAllocationFails() { allocationsToGo = 0; }

}  // namespace varnel::test
