// The second and third level: what activations answer, and what they do without services.
#include <algorithm>
#include <array>
#include <climits>
#include <set>

#include "standin/core/globals.h"
#include "standin/core/service_names.h"
#include "standin/core/witness.h"
#include "standin/panels/person.h"
#include "standin/validate/check.h"
#include "standin/validate/check_run.h"
#include "standin/validate/session.h"
#include "standin/validate/touch.h"

namespace standin::validate {
namespace {

std::string answered(const std::optional<int>& code) { return code ? std::to_string(*code) : std::string("an exception"); }

// The activation has to answer so, with the panels that go with it, and without breaking a rule.
void expectAnswer(CheckRun& run, Session& session, const Tool& tool, const std::optional<int>& code, int wanted,
                  const std::string& what) {
  if (code != wanted) {
    run.fail(std::string(tool.server) + ' ' + what + " answers " + answered(code) + " instead of " + std::to_string(wanted));
  }
  if (wanted != lw::kActivationOk && !panels().open().empty()) {
    run.fail(std::string(tool.server) + ' ' + what + " opens a panel");
  }
  for (Panel* panel : panels().open()) std::ignore = person::close(panel);
  run.judge(session.complaints());
}

// Does something with each tool, in a session of its own. The step's number is that of the tool.
template <class Act>
void withEachTool(CheckRun& run, Act&& act) {
  const TripRig rig = lizardRig(run.file(""));
  for (std::size_t i = 0; i < kTools.size(); ++i) {
    if (!run.step(i, kTools[i].server)) continue;
    Session session(kTools[i].program, rig, run.module(), run.host().options());
    run.judge(session.refusal());
    if (session.refusal().empty()) act(session, kTools[i]);
    run.judge(session.end());
  }
}

void versions(CheckRun& run) {
  withEachTool(run, [&](Session& session, const Tool& tool) {
    for (const int version : {INT_MIN, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 100, INT_MAX}) {
      const int wanted = version == tool.version ? lw::kActivationOk : lw::kActivationBadVersion;
      run.cases(1);
      expectAnswer(run, session, tool, session.activate(tool, version), wanted, "at version " + std::to_string(version));
    }
  });
}

void products(CheckRun& run) {
  constexpr std::uint32_t kRest = 0x080F0641;
  constexpr std::uint32_t kMajor = 15;
  withEachTool(run, [&](Session& session, const Tool& tool) {
    const auto expect = [&](std::uint32_t word) {
      session.setProduct(word);
      const bool fits = (word >> 20 & 0xF) == kMajor;
      run.cases(1);
      expectAnswer(run, session, tool, session.activate(tool), fits ? lw::kActivationOk : lw::kActivationBadVersion,
                   "with product word " + std::to_string(word));
    };
    for (std::uint32_t major = 0; major <= kMajor; ++major) expect((kRest & ~0xF00000U) | major << 20);
    for (const std::uint32_t word : {0U, 0x00F00000U, 0xFFFFFFFFU, 0x08F00642U, 0xFF0FFFFFU}) expect(word);
  });
}

void locales(CheckRun& run) {
  withEachTool(run, [&](Session& session, const Tool& tool) {
    for (const std::uint32_t word : {kEnglish, kJapanese, 0x12340411U, 0x407U, 0xFFFFFFFFU, 0U}) {
      session.setLocale(word);
      const int wanted = word == 0 ? lw::kActivationBadGlobal : lw::kActivationOk;
      run.cases(1);
      expectAnswer(run, session, tool, session.activate(tool), wanted, "with locale word " + std::to_string(word));
    }
  });
}

// Modeler's tools need what the host hands over with the command; Layout's does not look at it.
void localData(CheckRun& run) {
  withEachTool(run, [&](Session& session, const Tool& tool) {
    if (tool.program == Program::Layout) return;
    lw::LWModCommand whole{};
    whole.data = &whole;
    whole.argument = "";
    whole.evaluate = [](void*, const char*) { return 0; };
    whole.editBegin2 = [](int, int, int, int) -> lw::MeshEditOp* { return nullptr; };
    whole.undoGroupBegin = whole.undoGroupEnd = [] {};
    std::array<lw::LWModCommand, 3> parts{whole, whole, whole};
    parts[0].data = nullptr;
    parts[1].evaluate = nullptr;
    parts[2].editBegin2 = nullptr;
    const auto expect = [&](void* local, const char* what) {
      run.cases(1);
      expectAnswer(run, session, tool, session.module().activate(tool.server, tool.version, local), lw::kActivationBadGlobal,
                   what);
    };
    expect(nullptr, "without local data");
    expect(&parts[0], "without the host's data");
    expect(&parts[1], "without the function that evaluates");
    expect(&parts[2], "without the function that begins edits");
  });
}

// --- the third level ------------------------------------------------------------------------------------------------------

std::vector<std::string> requiredServices(const Tool& tool) {
  return tool.program == Program::Modeler ? modelerServices() : layoutServices();
}

std::set<std::string> servicesToWithhold(Session& session, const Tool& tool) {
  globals().clearAsked();
  session.activate(tool);
  for (Panel* panel : panels().open()) std::ignore = person::close(panel);
  std::set<std::string> names(globals().asked().begin(), globals().asked().end());
  for (const std::string& name : requiredServices(tool)) names.insert(name);
  return names;
}

void withheld(CheckRun& run) {
  const TripRig rig = lizardRig(run.file(""));
  std::uint64_t n = 0;
  for (const Tool& tool : kTools) {
    std::set<std::string> names;
    {
      Session session(tool.program, rig, run.module(), run.host().options());
      if (!session.refusal().empty()) return run.fail(session.refusal());
      names = servicesToWithhold(session, tool);
    }
    const std::vector<std::string> required = requiredServices(tool);
    for (const std::string& name : names) {
      if (!run.step(n++, std::string(tool.server) + " without " + name)) continue;
      Session session(tool.program, rig, run.module(), run.host().options());
      globals().withhold(name);
      run.injected();
      const int wanted = name == "Product Info"                   ? lw::kActivationBadVersion
                         : std::ranges::count(required, name) > 0 ? lw::kActivationBadGlobal
                                                                  : lw::kActivationOk;
      expectAnswer(run, session, tool, session.activate(tool), wanted, "without " + name);
      globals().giveBack(name);
      expectAnswer(run, session, tool, session.activate(tool), lw::kActivationOk, "with " + name + " again");
      run.judge(session.end());
    }
  }
}

// Whichever lookup gives null: the activation ends with one of its answers.
void nullLookups(CheckRun& run) {
  const TripRig rig = lizardRig(run.file(""));
  std::uint64_t n = 0;
  for (const Tool& tool : kTools) {
    for (std::uint64_t lookup = 1;; ++lookup) {
      Session session(tool.program, rig, run.module(), run.host().options());
      if (!session.refusal().empty()) return run.fail(session.refusal());
      const bool wanted = run.step(n++, std::string(tool.server) + ", lookup " + std::to_string(lookup));
      // The lookups come first, before an activation calls anything else.
      witness().refuseCall(lookup);
      const auto code = session.activate(tool);
      if (witness().refusedFunction() != "global lookup") break;
      if (!wanted) continue;
      run.injected();
      if (!code || *code < lw::kActivationOk || *code > lw::kActivationBadGlobal)
        run.fail("the activation answers " + answered(code));
      run.judge(session.complaints());
      expectAnswer(run, session, tool, session.activate(tool), lw::kActivationOk, "afterwards");
    }
  }
}

// Services that are gone while panels are open: what a user touches may fail, but nothing else may happen.
void goneWhileOpen(CheckRun& run) {
  withEachTool(run, [&](Session& session, const Tool& tool) {
    Panel* const panel = session.open(tool);
    if (panel == nullptr) return;
    for (const std::string& name : std::set<std::string>(globals().asked().begin(), globals().asked().end()))
      globals().withhold(name);
    everyPage(*panel, [&](const std::string& page) {
      for (Control* control : usableControls(*panel)) {
        if (control->is(ControlKind::TabChoice)) continue;
        run.at(page + control->describe());
        run.injected();
        session.layAnswer();
        std::ignore = touch(*control, 3);
      }
    });
  });
}

constexpr std::array kActivationChecks{
    Check{"versions", 2, "Every server takes its own version of local data and answers 'bad version' to all others",
          versions},
    Check{"products", 2, "Every server runs in release 15 of the host and in no other", products},
    Check{"locales", 2, "Every server runs in any language, and not where the host names none", locales},
    Check{"local-data", 2, "Modeler's tools do not run without the members of their local data", localData},
    Check{"withheld", 3, "Without a required service the activation says so, and with it again it runs", withheld},
    Check{"null-lookups", 3, "Whichever lookup gives null, the activation ends orderly and the next one runs", nullLookups},
    Check{"gone-while-open", 3, "Services that are gone while panels are open break nothing", goneWhileOpen},
};

}  // namespace

std::span<const Check> activationChecks() { return kActivationChecks; }

}  // namespace standin::validate
