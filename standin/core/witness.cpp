#include "standin/core/witness.h"

#include <algorithm>

namespace standin {

Witness& witness() {
  static Witness instance;
  return instance;
}

void Witness::reset() {
  const bool measuring = measuring_;
  const int depth = depth_;
  const bool moduleRuns = moduleRuns_;
  auto afterModule = std::move(afterModule_);
  *this = Witness();
  measuring_ = measuring;
  depth_ = depth;
  moduleRuns_ = moduleRuns;
  afterModule_ = std::move(afterModule);
}

void Witness::fault(std::string function, std::string what) {
  Fault fault{std::move(function), std::move(what)};
  if (std::find(excused_.begin(), excused_.end(), fault) == excused_.end()) faults_.push_back(std::move(fault));
}

void Witness::excuse(std::string function, std::string what) { excused_.push_back({std::move(function), std::move(what)}); }

std::string Witness::report() const {
  std::string text;
  for (const Fault& fault : faults_) text += fault.function + ": " + fault.what + "\n";
  return text;
}

void Witness::refuseCall(std::uint64_t n) {
  refuseAt_ = n == 0 ? 0 : calls_ + n;
  refusalHappened_ = false;
  refusedFunction_.clear();
}

void Witness::refuseNext(std::string function) {
  refuseNext_ = std::move(function);
  refusalHappened_ = false;
  refusedFunction_.clear();
}

bool Witness::enter(const char* function) {
  ++calls_;
  const bool isChosen = (refuseAt_ != 0 && calls_ == refuseAt_) || (!refuseNext_.empty() && refuseNext_ == function);
  if (!isChosen) return false;
  refuseNext_.clear();
  refusalHappened_ = true;
  refusedFunction_ = function;
  return true;
}

void Witness::startClock() {
  if (!measuring_ || clockRuns_) return;
  clockRuns_ = true;
  started_ = Clock::now();
}

void Witness::stopClock() {
  if (!clockRuns_) return;
  moduleTime_ += Clock::now() - started_;
  clockRuns_ = false;
}

HostCall::HostCall(const char* function) : function_(function) {
  Witness& seen = witness();
  clockRan_ = seen.clockRuns_;
  moduleRan_ = std::exchange(seen.moduleRuns_, false);
  seen.stopClock();
  refused_ = seen.enter(function);
}

HostCall::~HostCall() {
  Witness& seen = witness();
  seen.moduleRuns_ = moduleRan_;
  if (clockRan_) seen.startClock();
}

}  // namespace standin
