// What an action of the user's costs in the module: its own time (the host's is not counted) and its calls into the host.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "standin/core/witness.h"
#include "standin/panels/person.h"

namespace varnel::bench {

struct ModuleCost {
  double microseconds = 0;  // the best of the repetitions
  std::uint64_t calls = 0;
};

// Ends the program when it could not be done.
inline void must(const standin::Done& done) {
  if (done) return;
  std::fprintf(stderr, "benchmark: %s\n", done.why.c_str());
  std::exit(1);
}

// Runs the action once and adds what it cost.
template <class Action>
void measure(ModuleCost& cost, Action&& action) {
  standin::Witness& witness = standin::witness();
  const std::uint64_t calls = witness.calls();
  const auto before = witness.moduleTime();
  witness.measure(true);
  std::forward<Action>(action)();
  witness.measure(false);
  const double spent = std::chrono::duration<double, std::micro>(witness.moduleTime() - before).count();
  cost.microseconds = cost.microseconds == 0 ? spent : std::min(cost.microseconds, spent);
  cost.calls = witness.calls() - calls;
}

}  // namespace varnel::bench
