// The eleventh level: every trip and a walk in each program on hosts that differ in what the documents leave open, one thing at
// a time and in mixtures.
#include <array>
#include <string>

#include "standin/validate/check.h"
#include "standin/validate/check_run.h"
#include "standin/validate/trips.h"
#include "standin/validate/walk.h"

namespace standin::validate {
namespace {

constexpr std::size_t kMixtures = 50;
constexpr int kActionsOfAWalk = 200;

void playOn(CheckRun& run, const HostChoice& host, std::uint64_t seed) {
  const Rig rig = seed % 2 == 0 ? lizardRig(run.file("")) : japaneseRig(run.file(""));
  for (const Trip& trip : allTrips()) {
    run.at(trip.name);
    TripOrder order;
    order.module = run.module();
    order.rig = &rig;
    order.host = host;
    const TripReport report = trip.go(order);
    run.cases(1);
    for (const std::string& trouble : report.troubles) run.fail(std::string(trip.name) + ": " + trouble);
    for (const std::string& rule : report.broken) run.fail(std::string(trip.name) + ": " + rule);
  }
  for (const Program program : {Program::Modeler, Program::Layout}) {
    walkOnce(run, {.program = program, .rig = &rig, .seed = seed, .actions = kActionsOfAWalk, .host = host});
  }
}

void singleHosts(CheckRun& run) {
  const std::vector<HostChoice> choices = singleChoices();
  // The short form leaves none out: each is a host that may be.
  for (std::size_t i = 0; i < choices.size(); ++i) {
    if (run.step(i, choices[i].text())) playOn(run, choices[i], run.seed() * 1000 + i);
  }
}

void mixedHosts(CheckRun& run) {
  const std::size_t count = run.shareOf(kMixtures);
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint64_t seed = run.seed() * 1000 + i;
    const HostChoice host = HostChoice::mixture(seed);
    if (run.step(i, host.text())) playOn(run, host, seed);
  }
}

constexpr std::array kHostChecks{
    Check{"hosts", 11, "Every tool does its job on each host that differs in one thing", singleHosts},
    Check{"hosts-mixed", 11, "Every tool does its job on hosts that differ in many things", mixedHosts},
};

}  // namespace

std::span<const Check> hostChecks() { return kHostChecks; }

}  // namespace standin::validate
