// The registers that a called function has to give back as they were, watched around each call into the module: a host whose
// registers are changed goes on with wrong numbers, far from the cause. On Windows these are xmm6 to xmm15 among others, and
// a function that catches an exception takes them from where the compiler said that they were saved.
#pragma once

#include <string>
#include <type_traits>

namespace standin {

#if defined(_WIN32) && defined(__GNUC__)
inline constexpr bool kRegistersAreWatched = true;
// Calls function(data) with values of its own in xmm6 to xmm15. Names those that came back with others, "xmm6 xmm7"; empty
// when all are as they were. The caller's own are kept in any case, also when an exception passes.
std::string changedRegisters(void (*function)(void*), void* data);
#else
inline constexpr bool kRegistersAreWatched = false;
inline std::string changedRegisters(void (*function)(void*), void* data) {
  function(data);
  return {};
}
#endif

// The same for anything that can be called without arguments.
template <class F>
std::string changedRegistersOf(F&& call) {
  return changedRegisters([](void* data) { (*static_cast<std::remove_reference_t<F>*>(data))(); }, &call);
}

}  // namespace standin
