// What the stand-in host sees of the module's behaviour: every call counted, every fault kept, a chosen call refused.
//
// Each function that the module can call starts with a HostCall; each call that the stand-in makes into the module goes
// through callModule. The host runs on one thread, so there is one witness, begun anew for each session.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "standin/core/kept_registers.h"

namespace standin {

struct Fault {
  std::string function;  // the host function that was misused, or the module function that misbehaved
  std::string what;

  bool operator==(const Fault&) const = default;
};

class Witness {
 public:
  // Forgets faults, counts and refusals: a new session begins.
  void reset();

  void fault(std::string function, std::string what);
  // Until the reset, this fault is none: what is driven now breaks that rule on purpose, to see what the host answers.
  void excuse(std::string function, std::string what);
  const std::vector<Fault>& faults() const { return faults_; }
  // All faults as lines of text, empty when there is none.
  std::string report() const;

  // Host calls since the reset.
  std::uint64_t calls() const { return calls_; }
  // Lets the n-th host call from now fail once, in the way that call can fail. 0 cancels it.
  void refuseCall(std::uint64_t n);
  // Lets the next call of that host function fail once, in the way that it can fail. An empty name cancels it.
  void refuseNext(std::string function);
  // True when the refusal asked for has happened.
  bool refusalHappened() const { return refusalHappened_; }
  const std::string& refusedFunction() const { return refusedFunction_; }

  // Time spent in module code and in host code since the reset, while measuring is on.
  void measure(bool on) { measuring_ = on; }
  std::chrono::nanoseconds moduleTime() const { return moduleTime_; }
  // True while module code is on the stack.
  bool inModule() const { return depth_ > 0; }
  // True while module code itself runs: not while a function of the host's that it called does.
  bool moduleRuns() const { return moduleRuns_; }
  // Called with the function's name each time the outermost call into the module has returned: checks what the module must
  // not leave behind. There is one such check; it outlives a reset, and who set it takes it away with nullptr.
  void afterModule(std::function<void(const char* function)> check) { afterModule_ = std::move(check); }

 private:
  friend class HostCall;
  template <class F>
  friend auto callModule(const char* name, F&& call);
  using Clock = std::chrono::steady_clock;

  bool enter(const char* function);
  void startClock();
  void stopClock();

  std::vector<Fault> faults_;
  std::vector<Fault> excused_;
  std::uint64_t calls_ = 0;
  std::uint64_t refuseAt_ = 0;
  std::string refuseNext_;
  bool refusalHappened_ = false;
  std::string refusedFunction_;
  bool measuring_ = false;
  bool clockRuns_ = false;
  int depth_ = 0;
  bool moduleRuns_ = false;
  Clock::time_point started_;
  std::chrono::nanoseconds moduleTime_{0};
  std::function<void(const char*)> afterModule_;
};

Witness& witness();

// Stands at the head of every function that the module can call. `function` must outlive the call.
class HostCall {
 public:
  explicit HostCall(const char* function);
  ~HostCall();
  HostCall(const HostCall&) = delete;
  HostCall& operator=(const HostCall&) = delete;

  // True when this is the call that was chosen to fail: answer as the real function answers when it fails.
  bool refused() const { return refused_; }
  const char* function() const { return function_; }
  void fault(std::string what) const { witness().fault(function_, std::move(what)); }

 private:
  const char* function_;
  bool clockRan_;
  bool moduleRan_;
  bool refused_;
};

// Calls into the module. An exception that comes out is a fault: no exception may cross the host's interface.
// Gives an empty optional (or false) in that case. Registers that are not given back as they were are a fault as well.
template <class F>
auto callModule(const char* name, F&& call) {
  using Result = std::invoke_result_t<F>;
  struct Depth {
    explicit Depth(const char* name) : function(name), moduleRan(std::exchange(witness().moduleRuns_, true)) {
      ++witness().depth_;
      witness().startClock();
    }
    ~Depth() {
      witness().moduleRuns_ = moduleRan;
      witness().stopClock();
      if (--witness().depth_ == 0 && witness().afterModule_) witness().afterModule_(function);
    }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;
    const char* function;
    bool moduleRan;
  } depth(name);
  const auto faulted = [&] {
    witness().moduleRuns_ = false;
    witness().fault(name, "let an exception out into the host");
  };
  const auto keepingRegisters = [name](auto&& inner) {
    const std::string changed = changedRegistersOf(inner);
    if (!changed.empty()) witness().fault(name, "gave back other values in " + changed);
  };
  if constexpr (std::is_void_v<Result>) {
    try {
      keepingRegisters(call);
      return true;
    } catch (...) {
      faulted();
      return false;
    }
  } else {
    try {
      std::optional<Result> result;
      keepingRegisters([&] { result.emplace(call()); });
      return result;
    } catch (...) {
      faulted();
      return std::optional<Result>();
    }
  }
}

}  // namespace standin
