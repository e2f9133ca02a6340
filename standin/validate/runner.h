// Runs checks, each in a process of its own, and judges what became of it.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "standin/validate/check.h"
#include "standin/variants/variants.h"

namespace standin::validate {

enum class Verdict { Pass, Fail, Crash, Hang, Skip };
const char* nameOf(Verdict verdict);

// One thing that was found.
struct CheckFinding {
  Verdict verdict = Verdict::Fail;  // fail, crash or hang
  std::optional<std::uint64_t> step;
  std::string where;  // the step's name and what was being done; may be empty
  std::string what;
};

struct CheckResult {
  const Check* check = nullptr;
  Verdict verdict = Verdict::Pass;
  std::vector<CheckFinding> findings;
  std::size_t furtherFindings = 0;  // that were counted but not kept
  std::string reason;               // of a skip
  std::vector<std::string> notes;
  std::uint64_t cases = 0;
  std::uint64_t injected = 0;  // faults that were put in the module's way
  double seconds = 0;
};

struct RunOrder {
  std::string program;  // that runs checks when it is called with "validate-check"
  std::string module;
  std::string folder;  // for files of the checks; exists
  int firstLevel = kFirstLevel;
  int lastLevel = kLastLevel;
  std::vector<std::string> only;  // names of checks; empty: all of the levels
  std::uint64_t seed = 1;
  double share = 1;
  HostChoice host = {};            // where everything is played
  unsigned jobs = 1;               // processes at the same time
  int mostDeaths = 20;             // crashes and hangs of one check before it is given up
  std::chrono::seconds limit{30};  // for a process without a sign of life
  std::function<void(const CheckResult&)> told;
};

// What a run consists of; empty when nothing fits.
std::vector<const Check*> chosenChecks(const RunOrder& order);
// In the ladder's order.
std::vector<CheckResult> runChecks(const RunOrder& order);

}  // namespace standin::validate
