// How the benchmarks measure: each thing once per iteration, in fresh memory, without what it costs to give memory back;
// and the table of ratios at the end, for times alone tell more about the machine than about the program.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <iostream>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "benchmarks/measuring.h"

namespace varnel::bench {

// Measures 'action' in each iteration: the processor's time, of the program and of the system for it, so that other work on
// the machine counts less. What it returns is kept until the time was taken, then thrown away.
template <class Action>
void measure(benchmark::State& state, Action action) {
  for (auto iteration : state) {
    static_cast<void>(iteration);
    forgetUsedMemory();
    const std::clock_t start = std::clock();
    auto result = action();
    const std::clock_t end = std::clock();
    benchmark::DoNotOptimize(result);
    state.SetIterationTime(static_cast<double>(end - start) / CLOCKS_PER_SEC);
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
  // On the error stream, so that the tables stand alone on the other.
  KeepingReporter() : ConsoleReporter(OO_Tabular) {
    SetOutputStream(&std::cerr);
    SetErrorStream(&std::cerr);
  }

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
  double wanted = 0;  // 0: nothing in particular
};

inline void printRatios(const KeepingReporter& times, const std::vector<Ratio>& ratios) {
  std::puts("| | ms | compared with, ms | ratio | wanted |\n|---|---:|---:|---:|---:|");
  for (const Ratio& ratio : ratios) {
    const double measured = times.milliseconds(ratio.measured);
    const double compared = times.milliseconds(ratio.comparedWith);
    if (measured == 0 || compared == 0) continue;
    std::printf("| %s | %.1f | %.1f | %.2f |", ratio.what, measured, compared, compared / measured);
    ratio.wanted > 0 ? std::printf(" %g |\n", ratio.wanted) : std::printf(" |\n");
  }
}

}  // namespace varnel::bench
