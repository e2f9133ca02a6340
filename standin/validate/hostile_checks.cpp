// The ninth level: texts, settings, files and trees that no rigger makes on purpose.
#include <array>
#include <filesystem>
#include <functional>
#include <tuple>

#include "objectfile/file_bytes.h"
#include "standin/panels/person.h"
#include "standin/validate/check.h"
#include "standin/validate/check_run.h"
#include "standin/validate/damage.h"
#include "standin/validate/hostile.h"
#include "standin/validate/session.h"
#include "standin/validate/touch.h"

namespace standin::validate {
namespace {

// Opens every tool of the program and uses every control of every page once; `type` types into the text fields.
void useEverything(CheckRun& run, Session& session, Program program, const std::string* type = nullptr) {
  for (const Tool& tool : kTools) {
    if (tool.program != program) continue;
    run.at(tool.server);
    Panel* const panel = session.open(tool);
    if (panel == nullptr) continue;
    everyPage(*panel, [&](const std::string& page) {
      run.at(tool.server + (": page " + page));
      for (Control* control : usableControls(*panel)) {
        if (control->is(ControlKind::TabChoice)) continue;
        session.layAnswer();
        if (type != nullptr && control->kind->value == ValueForm::String) {
          std::ignore = person::type(control, *type);
        } else {
          std::ignore = touch(*control, 5);
        }
      }
      panels().paintWanted(*panel);
    });
    run.judge(session.complaints());
  }
}

// Both programs with the rig loaded.
void useRig(CheckRun& run, const TripRig& rig, const std::string* type = nullptr) {
  for (const Program program : {Program::Modeler, Program::Layout}) {
    Session session(program, rig, run.module(), run.host().options());
    if (!session.refusal().empty()) return run.fail(session.refusal());
    if (session.modeler() != nullptr) {
      const auto skelegons = session.modeler()->current()->skelegons();
      session.modeler()->selectPolygons({skelegons.begin(), skelegons.end()});
    }
    useEverything(run, session, program, type);
    if (session.layout() != nullptr && !session.isSwitchedBack()) run.fail("something stays switched off");
    run.judge(session.end());
  }
}

void texts(CheckRun& run) {
  std::uint64_t n = 0;
  const TripRig rig = lizardRig(run.file(""));
  for (const HostileText& text : hostileTexts()) {
    if (!run.step(n++, std::string("typed: ") + text.name)) continue;
    run.injected();
    useRig(run, rig, &text.text);
  }
}

void names(CheckRun& run) {
  std::uint64_t n = 0;
  for (const HostileText& text : hostileTexts()) {
    if (!run.step(n++, std::string("as names: ") + text.name)) continue;
    run.injected();
    useRig(run, rigOf(rigWithNames(text.text), run.file("named.lwo")));
  }
}

void settings(CheckRun& run) {
  std::uint64_t n = 0;
  for (const auto& list : {hostileTexts(), hostileNumbers()}) {
    for (const HostileText& text : list) {
      if (!run.step(n++, std::string("as settings: ") + text.name)) continue;
      run.injected();
      useRig(run, rigOf(rigWithSettings(text.text), run.file("set.lwo")));
    }
  }
}

// A file that was sound when Layout loaded it and is not when the module reads it.
void convertDamaged(CheckRun& run, const std::function<void(const std::string& path)>& damage) {
  const TripRig rig = lizardRig(run.file(""));
  Session session(Program::Layout, rig, run.module(), run.host().options());
  if (!session.refusal().empty()) return run.fail(session.refusal());
  Panel* const panel = session.open(kConversion);
  if (panel == nullptr) return run.fail("the conversion panel does not open");
  damage(rig.path);
  run.injected();
  if (const Done done = person::press(panel->find(ControlKind::Button, 0)); !done) run.fail(done.why);
  if (!session.isSwitchedBack()) run.fail("something stays switched off");
  run.judge(session.end());
  std::error_code ignored;
  std::filesystem::remove_all(pathFromUtf8(rig.path), ignored);
}

void damagedObjects(CheckRun& run) {
  std::uint64_t n = 0;
  for (const Damage& kind : damages()) {
    if (!run.step(n++, kind.name)) continue;
    convertDamaged(run, [&](const std::string& path) { kind.damage(path, run.seed()); });
  }
}

void mutatedObjects(CheckRun& run) {
  constexpr std::size_t kMutations = 1000;
  const std::size_t count = run.shareOf(kMutations);
  for (std::size_t i = 0; i < count; ++i) {
    if (!run.step(i, "mutation " + std::to_string(i))) continue;
    convertDamaged(run, [&](const std::string& path) { mutate(path, run.seed() * 100000 + i); });
  }
}

void trees(CheckRun& run) {
  std::uint64_t n = 0;
  for (const HostileTree& tree : hostileTrees()) {
    if (!run.step(n++, tree.name)) continue;
    run.injected();
    useRig(run, rigOf(tree.make(), run.file("tree.lwo")));
  }
}

constexpr std::array kHostileChecks{
    Check{"hostile-texts", 9, "Any text can be typed: 64 KB, broken UTF-8, '%', control characters", texts},
    Check{"hostile-names", 9, "Skelegons, layers and weight maps can bear any name", names},
    Check{"hostile-settings", 9, "Any text can be stored as a setting", settings},
    Check{"damaged-objects", 9, "A damaged object file is refused or read, and breaks nothing", damagedObjects},
    Check{"mutated-objects", 9, "An object file with random changes is refused or read, and breaks nothing", mutatedObjects},
    Check{"hostile-trees", 9, "Skelegons in loops, with shared ends, in great numbers and layers break nothing", trees},
};

}  // namespace

std::span<const Check> hostileChecks() { return kHostileChecks; }

}  // namespace standin::validate
