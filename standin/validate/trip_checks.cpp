// The fifth to seventh level: the trips on a host that fails in nothing, then with each of its calls and each of the
// module's allocations failing once.
#include <array>
#include <functional>
#include <stdexcept>

#include "standin/core/witness.h"
#include "standin/validate/check.h"
#include "standin/validate/check_run.h"
#include "standin/validate/memory_watch.h"
#include "standin/validate/trips.h"

namespace standin::validate {
namespace {

const Trip& tripNamed(std::string_view name) {
  for (const Trip& trip : allTrips()) {
    if (trip.name == name) return trip;
  }
  throw std::logic_error("there is no such trip");
}

// --- nothing fails --------------------------------------------------------------------------------------------------------

void undisturbed(CheckRun& run, std::string_view name) {
  const Trip& trip = tripNamed(name);
  const std::array rigs{lizardRig(run.file("")), japaneseRig(run.file(""))};
  std::uint64_t n = 0;
  for (const TripRig& rig : rigs) {
    for (const std::uint32_t language : {kEnglish, kJapanese}) {
      if (!run.step(n++,
                    rig.path.substr(rig.path.rfind('/') + 1) + (language == kEnglish ? " in English" : " in Japanese"))) {
        continue;
      }
      TripOrder order;
      order.module = run.module();
      order.host = run.host();
      order.rig = &rig;
      order.language = language;
      const TripReport report = trip.go(order);
      for (const std::string& trouble : report.troubles) run.fail(trouble);
      for (const std::string& rule : report.broken) run.fail(rule);
    }
  }
}

// --- one thing fails ------------------------------------------------------------------------------------------------------

// How one thing is made to fail in a trip.
struct Disturber {
  std::function<void(std::uint64_t n)> refuse;  // 0: no longer
  std::function<bool()> happened;
  std::function<std::string()> what;
};

// The trip again and again with the n-th thing failing, until n runs past its end.
void disturbed(CheckRun& run, std::string_view name, const Disturber& disturber, std::uint64_t stride) {
  const Trip& trip = tripNamed(name);
  const TripRig rig = japaneseRig(run.file(""));
  for (std::uint64_t n = run.from() == 0 ? 1 : run.from();; ++n) {
    if (n % stride != 1 % stride) continue;
    if (!run.step(n, "")) continue;
    TripOrder order;
    order.module = run.module();
    order.host = run.host();
    order.rig = &rig;
    bool happened = false;
    std::string what;
    order.begin = [&] { disturber.refuse(n); };
    order.end = [&] {
      happened = disturber.happened();
      what = disturber.what();
      disturber.refuse(0);
    };
    const TripReport report = trip.go(order);
    if (happened) run.injected();
    for (const std::string& rule : report.broken) run.fail(std::string(what).append(" ").append(rule));
    if (!happened) {
      if (n == 1) run.fail("nothing could be made to fail");
      run.note("the trip ends before " + std::to_string(n));
      return;
    }
  }
}

void refusedCalls(CheckRun& run, std::string_view name) {
  const Disturber calls{[](std::uint64_t n) { witness().refuseCall(n); }, [] { return witness().refusalHappened(); },
                        [] { return "refused on purpose: " + witness().refusedFunction() + ":"; }};
  disturbed(run, name, calls, 1);
}

void refusedMemory(CheckRun& run, std::string_view name) {
  if (const char* const why = memory::whyUnwatched()) return run.skip(why);
  const Disturber allocations{[](std::uint64_t n) { memory::refuse(n); }, [] { return memory::refusalHappened(); },
                              [] { return std::string("memory refused on purpose:"); }};
  disturbed(run, name, allocations, run.stride());
}

constexpr std::array kTripChecks{
    Check{"trip-typical", 5, "A setting chosen in Modeler arrives at the bone in Layout",
          [](CheckRun& run) { undisturbed(run, "typical"); }},
    Check{"trip-property", 5, "The property panel can be used on every page and shows what is stored",
          [](CheckRun& run) { undisturbed(run, "property"); }},
    Check{"trip-renamer", 5, "The renamer renames by text, expression and counters",
          [](CheckRun& run) { undisturbed(run, "renamer"); }},
    Check{"trip-selector", 5, "A click in the selector's tree becomes the selection",
          [](CheckRun& run) { undisturbed(run, "selector"); }},
    Check{"trip-conversion", 5, "The conversion makes bones and leaves selection and switches as they were",
          [](CheckRun& run) { undisturbed(run, "conversion"); }},
    Check{"calls-property", 6, "Whichever host call fails once, the property panel breaks no rule",
          [](CheckRun& run) { refusedCalls(run, "property"); }},
    Check{"calls-renamer", 6, "Whichever host call fails once, the renamer breaks no rule",
          [](CheckRun& run) { refusedCalls(run, "renamer"); }},
    Check{"calls-selector", 6, "Whichever host call fails once, the selector breaks no rule",
          [](CheckRun& run) { refusedCalls(run, "selector"); }},
    Check{"calls-conversion", 6, "Whichever host call fails once, the conversion breaks no rule",
          [](CheckRun& run) { refusedCalls(run, "conversion"); }},
    Check{"memory-property", 7, "Whichever allocation fails once, the property panel breaks no rule",
          [](CheckRun& run) { refusedMemory(run, "property"); }},
    Check{"memory-renamer", 7, "Whichever allocation fails once, the renamer breaks no rule",
          [](CheckRun& run) { refusedMemory(run, "renamer"); }},
    Check{"memory-selector", 7, "Whichever allocation fails once, the selector breaks no rule",
          [](CheckRun& run) { refusedMemory(run, "selector"); }},
    Check{"memory-conversion", 7, "Whichever allocation fails once, the conversion breaks no rule",
          [](CheckRun& run) { refusedMemory(run, "conversion"); }},
};

}  // namespace

std::span<const Check> tripChecks() { return kTripChecks; }

}  // namespace standin::validate
