// What an action of the user's costs in the module, and the table of it as Markdown: time and memory of the module's own
// (the host's is not counted), its calls into the host, and how each of them grows with the size of the rig.
#pragma once

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "standin/core/witness.h"
#include "standin/validate/memory_watch.h"

namespace varnel::bench {

inline constexpr std::size_t kSizes[] = {10, 100, 1000, 5000};
inline constexpr int kRepetitions = 9;

struct ModuleCost {
  double microseconds = 0;  // the best of the repetitions
  std::uint64_t calls = 0;
  std::int64_t bytes = 0;  // the most that the module held at once
};

// Runs the action once and adds what it cost.
template <class Action>
void measure(ModuleCost& cost, Action&& action) {
  standin::Witness& witness = standin::witness();
  const std::uint64_t calls = witness.calls();
  const auto before = witness.moduleTime();
  standin::validate::memory::watchPeak();
  witness.measure(true);
  std::forward<Action>(action)();
  witness.measure(false);
  const double spent = std::chrono::duration<double, std::micro>(witness.moduleTime() - before).count();
  cost.microseconds = cost.microseconds == 0 ? spent : std::min(cost.microseconds, spent);
  cost.calls = witness.calls() - calls;
  cost.bytes = standin::validate::memory::peakBytes();
}

// Costs by action and size. Sizes are measured in ascending order.
class CostTable {
 public:
  // The cost of that action at that size: a new one, or the one that was added to before. Refers to it until the next call.
  ModuleCost& at(const std::string& action, std::size_t size) {
    auto found = std::find_if(actions_.begin(), actions_.end(), [&](const Action& each) { return each.name == action; });
    if (found == actions_.end()) found = actions_.insert(found, {action, {}});
    std::vector<Sized>& costs = found->costs;
    auto row = std::find_if(costs.begin(), costs.end(), [&](const Sized& each) { return each.size == size; });
    if (row == costs.end()) row = costs.insert(row, {size, {}});
    return row->cost;
  }

  template <class Run>
  void measure(const std::string& action, std::size_t size, Run&& run) {
    bench::measure(at(action, size), std::forward<Run>(run));
  }

  // 'things' is what the sizes count, 'calls' what the calls are.
  void print(const char* things = "skelegons", const char* calls = "host calls") const {
    std::printf("| action | %s | time, µs | growth | %s | growth | memory, kB | growth |\n", things, calls);
    std::printf("|---|---:|---:|---:|---:|---:|---:|---:|\n");
    for (const Action& action : actions_) {
      const Sized* before = nullptr;
      for (const Sized& row : action.costs) {
        std::printf("| %s | %zu | %.1f | %s | %llu | %s | %.1f | %s |\n", action.name.c_str(), row.size,
                    row.cost.microseconds, growth(before, row, &ModuleCost::microseconds).c_str(),
                    static_cast<unsigned long long>(row.cost.calls), growth(before, row, &ModuleCost::calls).c_str(),
                    static_cast<double>(row.cost.bytes) / 1000, growth(before, row, &ModuleCost::bytes).c_str());
        before = &row;
      }
    }
  }

 private:
  struct Sized {
    std::size_t size;
    ModuleCost cost;
  };
  struct Action {
    std::string name;
    std::vector<Sized> costs;
  };

  // The exponent e for which the value grew with the size to the power of e: 0 when it stayed, 1 when it grew as the size
  // did.
  template <class Value>
  static std::string growth(const Sized* before, const Sized& row, Value ModuleCost::*value) {
    if (before == nullptr) return "";
    const auto from = static_cast<double>(before->cost.*value);
    const auto to = static_cast<double>(row.cost.*value);
    if (from <= 0 || to <= 0) return "";
    const double sizes = static_cast<double>(row.size) / static_cast<double>(before->size);
    const double exponent = std::log(to / from) / std::log(sizes);
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", exponent);
    return std::string(text) == "-0.00" ? "0.00" : text;
  }

  std::vector<Action> actions_;
};

}  // namespace varnel::bench
