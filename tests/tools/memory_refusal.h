// Lets allocations fail that the module makes within a callback of the host's.
#pragma once

namespace varnel::test {

// While this lives, the n-th allocation made while the host has called into the module throws bad_alloc.
class CallbackAllocationFails {
 public:
  explicit CallbackAllocationFails(unsigned n = 1);
  ~CallbackAllocationFails();
  CallbackAllocationFails(const CallbackAllocationFails&) = delete;
  CallbackAllocationFails& operator=(const CallbackAllocationFails&) = delete;
};

}  // namespace varnel::test
