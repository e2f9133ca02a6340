// A stack of its own for work that goes deep: a host's main thread has 1 MB on Windows. No host here.
#pragma once

#include <cstddef>
#include <functional>

namespace mst {

// Does the work on a thread with a stack of so many bytes, of which the system takes memory only as it is used, and waits for its end;
// what it throws is thrown here. The host knows nothing of that thread: the work must not call it. False, and nothing was done, where
// the system has no such thread.
bool runOnStack(std::size_t bytes, const std::function<void()>& work);

}  // namespace mst
