// Work that another thread does, and what it threw. Inner part of deep_stack.
#pragma once

#include <exception>
#include <functional>

namespace mst {

struct WorkElsewhere {
  const std::function<void()>& work;
  std::exception_ptr thrown = nullptr;

  // On the other thread, which no exception may leave.
  void run() noexcept {
    try {
      work();
    } catch (...) {
      thrown = std::current_exception();
    }
  }
  // On the first one, when the other has ended.
  void rethrow() const {
    if (thrown) std::rethrow_exception(thrown);
  }
};

}  // namespace mst
