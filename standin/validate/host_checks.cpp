// The eleventh level: every trip and a walk in each program on hosts that differ in what the documents leave open, one thing
// at a time and in mixtures.
#include <array>
#include <string>

#include "standin/validate/check.h"
#include "standin/validate/check_run.h"
#include "standin/validate/trips.h"
#include "standin/validate/walk.h"

namespace standin::validate {
namespace {

constexpr std::size_t kMixtures = 50;
constexpr std::size_t kActionsOfAWalk = 300;
constexpr std::size_t kFewestActions = 60;

// What is brought to a host, and in which language: some things differ only with wide characters, or with several layers.
struct Luggage {
  const char* what;
  TripRig (*rig)(const std::string& folder);
  std::uint32_t language;
};
constexpr std::array kLuggage{
    Luggage{"two layers in English", lizardRig, kEnglish},
    Luggage{"one layer in Japanese", japaneseRig, kJapanese},
    Luggage{"two layers in Japanese", lizardRig, kJapanese},
    Luggage{"one layer in English", japaneseRig, kEnglish},
};

void goOn(CheckRun& run, const HostChoice& host, const Luggage& luggage, const TripRig& rig, std::span<const Trip> trips,
          Visits differ) {
  for (const Trip& trip : trips) {
    if (!meet(trip.visits, differ)) continue;
    run.at(trip.name);
    TripOrder order;
    order.module = run.module();
    order.rig = &rig;
    order.language = luggage.language;
    order.host = host;
    const TripReport report = trip.go(order);
    run.cases(1);
    for (const std::string& trouble : report.troubles) run.fail(std::string(trip.name) + ": " + trouble);
    for (const std::string& rule : report.broken) run.fail(std::string(trip.name) + ": " + rule);
  }
}

// All trips, and a walk in each program, that come to where the host differs.
void playOn(CheckRun& run, const HostChoice& host, Visits differ, const Luggage& luggage, std::uint64_t seed) {
  const TripRig rig = luggage.rig(run.file(""));
  goOn(run, host, luggage, rig, allTrips(), differ);
  goOn(run, host, luggage, rig, meshTrips(), differ);
  const int actions = static_cast<int>(run.shareOf(kActionsOfAWalk, kFewestActions));
  for (const Program program : {Program::Modeler, Program::Layout}) {
    if (!meet(program == Program::Modeler ? Visits::Modeler : Visits::Layout, differ)) continue;
    walkOnce(
        run,
        {.program = program, .rig = &rig, .seed = seed, .actions = actions, .host = host, .language = luggage.language});
  }
}

// The n-th host with all that can be brought to it, a step each. The short form leaves out no host: it brings less to each.
void playAll(CheckRun& run, const HostChoice& host, Visits differ, std::size_t n) {
  const std::size_t count = run.shareOf(kLuggage.size());
  for (std::size_t i = 0; i < count; ++i) {
    const Luggage& luggage = kLuggage[(n + i) % kLuggage.size()];
    const std::uint64_t step = n * kLuggage.size() + i;
    if (run.step(step, host.text() + ", " + luggage.what)) playOn(run, host, differ, luggage, run.seed() * 1000 + step);
  }
}

void singleHosts(CheckRun& run, std::span<const HostVariant> rows, Visits differ) {
  const std::vector<HostChoice> choices = singleChoices(rows, run.host());
  if (choices.empty()) return run.skip("the host that is played leaves none of these open");
  for (std::size_t i = 0; i < choices.size(); ++i) playAll(run, choices[i], differ, i);
}

void mixedHosts(CheckRun& run) {
  const std::size_t count = run.shareOf(kMixtures);
  for (std::size_t i = 0; i < count; ++i)
    playAll(run, HostChoice::mixture(run.seed() * 1000 + i, run.host()), Visits::Both, i);
}

constexpr std::array kHostChecks{
    Check{"hosts-both", 11, "Every tool does its job where both programs differ in one thing",
          [](CheckRun& run) { singleHosts(run, programVariants(), Visits::Both); }},
    Check{"hosts-panels", 11, "Every tool does its job where panels differ in one thing",
          [](CheckRun& run) { singleHosts(run, panelVariants(), Visits::Both); }},
    Check{"hosts-mouse", 11, "Every tool does its job where mouse and drawing differ in one thing",
          [](CheckRun& run) { singleHosts(run, mouseVariants(), Visits::Modeler); }},
    Check{"hosts-modeler", 11, "Every tool does its job where Modeler differs in one thing",
          [](CheckRun& run) { singleHosts(run, modelerVariants(), Visits::Modeler); }},
    Check{"hosts-layout", 11, "Every tool does its job where Layout differs in one thing",
          [](CheckRun& run) { singleHosts(run, layoutVariants(), Visits::Layout); }},
    Check{"hosts-mixed", 11, "Every tool does its job on hosts that differ in many things", mixedHosts},
};

}  // namespace

std::span<const Check> hostChecks() { return kHostChecks; }

}  // namespace standin::validate
