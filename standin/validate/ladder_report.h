// The report of a run, as text and as a page that needs nothing beside it.
#pragma once

#include <span>
#include <string>

#include "standin/validate/runner.h"

namespace standin::validate {

struct ReportHead {
  std::string module;
  std::string build;  // "Linux, sanitizers"
  std::string date;   // may be empty
  std::uint64_t seed = 1;
  double share = 1;
  std::string host = {};  // where it was played; empty for the default host
};

// True when nothing failed, crashed or hung.
bool isSound(std::span<const CheckResult> results);

// A line for a check that is done, with its findings below it.
std::string resultText(const CheckResult& result);
std::string reportText(const ReportHead& head, std::span<const CheckResult> results);
std::string reportPage(const ReportHead& head, std::span<const CheckResult> results);

// What this program was built for and how.
std::string thisBuild();

}  // namespace standin::validate
