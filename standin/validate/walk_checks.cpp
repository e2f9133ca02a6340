// The eighth level: random walks, each repeatable by its number and the run's seed.
#include <array>

#include "standin/validate/check.h"
#include "standin/validate/check_run.h"
#include "standin/validate/touch.h"
#include "standin/validate/walk.h"

namespace standin::validate {
namespace {

constexpr std::size_t kWalks = 100;

// What is wrong after an action; empty when nothing.
std::string judged(Session& session) {
  std::string wrong = session.complaints();
  for (const Panel* panel : panels().open()) wrong += layoutFaults(*panel);
  return wrong;
}

std::string whereIs(int action, const std::string& last) {
  return std::string("before action ").append(std::to_string(action)).append(", after: ").append(last);
}

}  // namespace

void walkOnce(CheckRun& run, const WalkOrder& order) {
  Session session(order.program, *order.rig, run.module(), order.host.options());
  if (!session.refusal().empty()) return run.fail(session.refusal());
  session.setLocale(order.language.value_or(order.seed % 3 == 0 ? kJapanese : kEnglish));
  Walk walk(session, *order.rig, order.seed);
  std::string last;
  for (int action = 0; action < order.actions; ++action) {
    run.at(whereIs(action, last));
    last = walk.act();
    run.cases(1);
    if (const std::string wrong = judged(session); !wrong.empty()) {
      run.fail(whereIs(action + 1, last) + ": " + wrong);
      return;
    }
  }
  run.judge(session.end());
}

namespace {

void walks(CheckRun& run, Program program) {
  const TripRig rig = lizardRig(run.file(""));
  const TripRig japanese = japaneseRig(run.file(""));
  const std::size_t count = run.shareOf(kWalks / 2);
  for (std::size_t i = 0; i < count; ++i) {
    if (run.step(i, "walk " + std::to_string(i))) {
      walkOnce(
          run,
          {.program = program, .rig = i % 2 == 0 ? &rig : &japanese, .seed = run.seed() * 1000 + i, .host = run.host()});
    }
  }
}

constexpr std::array kWalkChecks{
    Check{"walks", 8, "A random user of Modeler's panels never sees a rule broken",
          [](CheckRun& run) { walks(run, Program::Modeler); }},
    Check{"walks-layout", 8, "A random user of Layout's panel never sees a rule broken",
          [](CheckRun& run) { walks(run, Program::Layout); }},
};

}  // namespace

std::span<const Check> walkChecks() { return kWalkChecks; }

}  // namespace standin::validate
