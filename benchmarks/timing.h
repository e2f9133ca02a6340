// How the benchmarks measure: each thing once per iteration, in fresh memory, without what it costs to give memory back;
// and the table of ratios at the end, for times alone tell more about the machine than about the program.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <string>
#include <utility>
#include <vector>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace varnel::bench {

// The C library keeps memory that was given back and hands it out again: a second read of the same object would be quicker
// than the first, which is the only one there is in the host. This lets the system have all that is not in use.
inline void forgetUsedMemory() {
#if defined(__GLIBC__)
  malloc_trim(0);
#endif
}

// Measures 'action' in each iteration. What it returns is kept until the time was taken, then thrown away.
template <class Action>
void measure(benchmark::State& state, Action action) {
  using Clock = std::chrono::steady_clock;
  for (auto iteration : state) {
    static_cast<void>(iteration);
    forgetUsedMemory();
    const Clock::time_point start = Clock::now();
    auto result = action();
    const Clock::time_point end = Clock::now();
    benchmark::DoNotOptimize(result);
    state.SetIterationTime(std::chrono::duration<double>(end - start).count());
  }
}

// Registers a measurement that is repeated, so that a median can be taken.
template <class Action>
benchmark::internal::Benchmark* add(const std::string& name, Action action) {
  constexpr int kRepetitions = 9;
  return benchmark::RegisterBenchmark(name.c_str(), [action](benchmark::State& state) { measure(state, action); })
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond)
      ->Repetitions(kRepetitions)
      ->ReportAggregatesOnly(false);
}

// Shows what was measured as usual, and keeps the times.
class KeepingReporter : public benchmark::ConsoleReporter {
 public:
  KeepingReporter() : ConsoleReporter(OO_Tabular) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    std::vector<Run> shown;
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration) {
        milliseconds_[run.run_name.function_name].push_back(run.GetAdjustedRealTime());
      } else if (run.aggregate_name == "median" || run.aggregate_name == "stddev") {
        shown.push_back(run);
      }
    }
    if (!shown.empty()) ConsoleReporter::ReportRuns(shown);
  }

  // The median of a measurement; 0 when it was not run.
  double milliseconds(const std::string& name) const {
    const auto found = milliseconds_.find(name);
    if (found == milliseconds_.end()) return 0;
    std::vector<double> times = found->second;
    std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
    return times[times.size() / 2];
  }

 private:
  std::map<std::string, std::vector<double>> milliseconds_;
};

// One line of the table: how often the measured thing fits into the time of what it is compared with.
struct Ratio {
  const char* what;
  const char* measured;
  const char* comparedWith;
  double wanted;
};

inline void printRatios(const KeepingReporter& times, const std::vector<Ratio>& ratios) {
  std::printf("\n%-52s %10s %12s %8s %8s\n", "", "ms", "compared ms", "ratio", "wanted");
  for (const Ratio& ratio : ratios) {
    const double measured = times.milliseconds(ratio.measured);
    const double compared = times.milliseconds(ratio.comparedWith);
    if (measured == 0 || compared == 0) continue;
    std::printf("%-52s %10.2f %12.2f %8.2f %8.2f\n", ratio.what, measured, compared, compared / measured, ratio.wanted);
  }
}

}  // namespace varnel::bench
