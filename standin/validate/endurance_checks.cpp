// The tenth level: long use, with what the module holds looked at again and again at the same point.
#include <array>
#include <cstdint>
#include <filesystem>
#include <tuple>

#include "standin/panels/person.h"
#include "standin/validate/check.h"
#include "standin/validate/check_run.h"
#include "standin/validate/memory_watch.h"
#include "standin/validate/walk.h"

namespace standin::validate {
namespace {

constexpr std::size_t kActions = 100000;
constexpr std::size_t kActionsEach = 500;  // between two looks
constexpr std::size_t kConversions = 1000;
constexpr std::size_t kWarmUp = 3;  // looks before the one that counts
// What may lie about of one session and not of another: texts that fields remember, lists that keep their storage.
constexpr std::int64_t kSlackBytes = 32'768;

std::size_t openFiles() {
  std::error_code error;
  std::size_t count = 0;
  for (std::filesystem::directory_iterator entry("/proc/self/fd", error), end; !error && entry != end;
       entry.increment(error)) {
    ++count;
  }
  return count;
}

// Compares what is held with what was held after the warm-up.
class Flatness {
 public:
  explicit Flatness(CheckRun& run) : run_(run) {}

  void look() {
    if (++looks_ == kWarmUp) {
      bytes_ = memory::liveBytes();
      files_ = openFiles();
    }
  }
  void judge(const std::string& what, std::size_t count) {
    const std::int64_t growth = memory::liveBytes() - bytes_;
    run_.note(std::to_string(count) + ' ' + what + "; held after the warm-up: " + std::to_string(bytes_) +
              " bytes, at the end: " + std::to_string(memory::liveBytes()) + " bytes");
    if (looks_ <= kWarmUp) return run_.fail("too few looks to tell");
    if (memory::allocations() == 0) return run_.fail("the module's memory is not seen");
    if (growth > kSlackBytes) run_.fail("the module holds " + std::to_string(growth) + " bytes more at the end");
    if (openFiles() > files_) run_.fail("files are left open");
  }

 private:
  CheckRun& run_;
  std::size_t looks_ = 0;
  std::int64_t bytes_ = 0;
  std::size_t files_ = 0;
};

// Brings everything to the same point: a fresh object, every tool opened once and closed.
void bringToRest(Session& session, const TripRig& rig) {
  ModelerHost& host = *session.modeler();
  host.closeAll();
  host.add(rig.object, rig.path);
  host.showAllLayers();
  for (const Tool& tool : kTools) {
    if (tool.program == Program::Modeler) session.activate(tool);
  }
  for (Panel* panel : panels().open()) std::ignore = person::close(panel);
}

void actions(CheckRun& run) {
  if (const char* const why = memory::whyUnwatched()) return run.skip(why);
  const TripRig rig = lizardRig(run.file(""));
  Session session(Program::Modeler, rig, run.module(), run.host().options());
  if (!session.refusal().empty()) return run.fail(session.refusal());
  Walk walk(session, rig, run.seed());
  Flatness flatness(run);
  const std::size_t count = run.shareOf(kActions, (kWarmUp + 1) * kActionsEach);
  for (std::size_t i = 0; i < count; ++i) {
    if (i % kActionsEach == 0) {
      run.at("action " + std::to_string(i));
      bringToRest(session, rig);
      flatness.look();
    }
    walk.act();
  }
  bringToRest(session, rig);
  run.cases(count);
  run.judge(session.complaints());
  flatness.judge("actions", count);
}

void conversions(CheckRun& run) {
  if (const char* const why = memory::whyUnwatched()) return run.skip(why);
  const TripRig rig = lizardRig(run.file(""));
  Session session(Program::Layout, rig, run.module(), run.host().options());
  if (!session.refusal().empty()) return run.fail(session.refusal());
  LayoutHost& host = *session.layout();
  host.state().transcript.record(false);
  Flatness flatness(run);
  const std::size_t count = run.shareOf(kConversions, kWarmUp + 2);
  for (std::size_t i = 0; i < count; ++i) {
    run.at("conversion " + std::to_string(i));
    while (!host.scene().objects().empty()) host.scene().remove(*host.scene().objects().back());
    host.select(host.scene().addObject(rig.object, rig.path));
    Panel* const panel = session.open(kConversion);
    if (panel == nullptr) return run.fail("the conversion panel does not open");
    if (const Done done = person::press(panel->find(ControlKind::Button, 0)); !done) return run.fail(done.why);
    flatness.look();
  }
  run.cases(count);
  run.judge(session.complaints());
  flatness.judge("conversions", count);
}

constexpr std::array kEnduranceChecks{
    Check{"actions", 10, "The module holds no more after a hundred thousand actions than after a few", actions},
    Check{"conversions", 10, "The module holds no more after a thousand conversions than after a few", conversions},
};

}  // namespace

std::span<const Check> enduranceChecks() { return kEnduranceChecks; }

}  // namespace standin::validate
