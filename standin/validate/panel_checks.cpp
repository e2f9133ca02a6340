// The fourth level: the tools' panels, opened, used and closed in both languages and on hosts of several habits.
#include <array>
#include <set>
#include <tuple>
#include <utility>

#include "standin/panels/person.h"
#include "standin/validate/check.h"
#include "standin/validate/check_run.h"
#include "standin/validate/session.h"
#include "standin/validate/touch.h"

namespace standin::validate {
namespace {

constexpr std::array kLanguages{kEnglish, kJapanese};
constexpr int kMostItems = 40;  // of a list that are chosen in turn
constexpr int kReopenings = 20;

const char* languageName(std::uint32_t locale) { return locale == kJapanese ? "Japanese" : "English"; }

// Hosts as they may be, beside the well-behaved one.
constexpr const char* kHabits[]{
    "",           "sets=fire",        "texts=copied",         "same-choice=silent", "mouse=hooks",
    "mouse=both", "resize-hook=sets", "cut-texts=terminated", "padding=3"};

// Each tool in each language, in a session of its own with its panel open.
template <class Act>
void withEachPanel(CheckRun& run, std::uint64_t& n, const std::string& where, Act&& act) {
  const TripRig rig = lizardRig(run.file(""));
  for (const Tool& tool : kTools) {
    for (const std::uint32_t language : kLanguages) {
      if (!run.step(n++, std::string(tool.server) + " in " + languageName(language) + where)) continue;
      Session session(tool.program, rig, run.module(), run.host().options());
      session.setLocale(language);
      act(session, tool);
      run.judge(session.end());
    }
  }
}

void opening(CheckRun& run) {
  std::uint64_t n = 0;
  withEachPanel(run, n, "", [&](Session& session, const Tool& tool) {
    for (int i = 0; i < kReopenings; ++i) {
      Panel* const panel = session.open(tool);
      if (panel == nullptr) return run.fail("opens no panel");
      if (session.open(tool) == nullptr) return run.fail("is closed by a second activation");
      if (panels().all().size() > 1) {
        return run.fail("leaves " + std::to_string(panels().all().size()) + " panels after being opened again");
      }
      if (const Done closed = person::close(panels().find(tool.server)); !closed) return run.fail(closed.why);
    }
  });
}

void geometry(CheckRun& run) {
  std::uint64_t n = 0;
  withEachPanel(run, n, "", [&](Session& session, const Tool& tool) {
    Panel* const panel = session.open(tool);
    if (panel == nullptr) return run.fail("opens no panel");
    everyPage(*panel, [&](const std::string& page) {
      run.cases(1);
      if (const std::string complaints = layoutFaults(*panel); !complaints.empty()) run.fail(page + complaints);
    });
  });
}

void resizing(CheckRun& run) {
  constexpr std::array<std::array<int, 2>, 8> kSizes{
      {{200, 200}, {1, 1}, {10000, 10000}, {320, 480}, {1920, 60}, {60, 1080}, {400, 400}, {401, 401}}};
  std::uint64_t n = 0;
  withEachPanel(run, n, "", [&](Session& session, const Tool& tool) {
    Panel* const panel = session.open(tool);
    if (panel == nullptr) return run.fail("opens no panel");
    if (!panel->isResizable()) return;
    // A panel that names no limits can be made too small for what is in it.
    const bool limited = panel->leastWidth > 0 && panel->leastHeight > 0;
    const int width = panel->width;
    const int height = panel->height;
    for (const auto& size : kSizes) {
      run.at("to " + std::to_string(size[0]) + " x " + std::to_string(size[1]));
      run.cases(1);
      if (const Done done = person::resize(panel, size[0], size[1]); !done) run.fail(done.why);
      panels().paintWanted(*panel);
      if (limited || (panel->width >= width && panel->height >= height)) run.judge(layoutFaults(*panel));
      run.judge(session.complaints());
    }
  });
}

// Touches every control that can be seen, those as well that come into sight on the way. A list gets each of its items.
class EveryControl {
 public:
  EveryControl(CheckRun& run, Session& session, const Tool& tool) : run_(run), session_(session), tool_(tool) {}

  void touchAll() {
    for (Panel* panel = openPanel(); panel != nullptr && failures_ < kMostFailures; panel = openPanel()) {
      Control* const control = nextUntouched(*panel);
      if (control == nullptr) return;
      touched_.insert(control->index);
      if (control->kind->handling == Handling::Choose) {
        chooseEach(control->index);
      } else {
        use(control->index, [&](Control& found) { std::ignore = touch(found, static_cast<std::uint32_t>(found.index)); });
      }
    }
  }

 private:
  static constexpr int kMostFailures = 10;

  // A control may close its panel; a person opens it again.
  Panel* openPanel() {
    Panel* const panel = panels().find(tool_.server);
    return panel != nullptr && panel->isOpen() ? panel : session_.open(tool_);
  }

  Control* nextUntouched(const Panel& panel) const {
    for (Control* control : usableControls(panel)) {
      if (!touched_.contains(control->index)) return control;
    }
    return nullptr;
  }

  void chooseEach(int index) {
    for (int item = 0; item < kMostItems && failures_ < kMostFailures; ++item) {
      Panel* const panel = openPanel();
      Control* const list = panel == nullptr ? nullptr : panel->at(index);
      if (list == nullptr || std::cmp_greater_equal(item, person::menu(list).size())) return;
      use(index, [&](Control& found) { std::ignore = person::choose(&found, item); });
      touchAll();  // what this choice brought into sight
    }
  }

  template <class Use>
  void use(int index, Use&& how) {
    Panel* const panel = openPanel();
    Control* const control = panel == nullptr ? nullptr : panel->at(index);
    if (control == nullptr) return;
    const std::string name = control->describe();
    run_.at(name);
    run_.cases(1);
    session_.layAnswer();
    how(*control);
    if (Panel* const still = panels().find(tool_.server); still != nullptr && still->isOpen()) {
      panels().paintWanted(*still);
      if (const std::string complaints = layoutFaults(*still); !complaints.empty()) fail(name + ": " + complaints);
    }
    if (const std::string complaints = session_.complaints(); !complaints.empty()) fail(name + ": " + complaints);
  }

  void fail(const std::string& why) {
    ++failures_;
    run_.fail(why);
  }

  CheckRun& run_;
  Session& session_;
  const Tool& tool_;
  std::set<int> touched_;
  int failures_ = 0;
};

void controls(CheckRun& run) {
  std::uint64_t n = 0;
  for (const std::string habit : kHabits) {
    HostChoice host = run.host();
    if (!habit.empty()) run.judge(host.take(habit));
    withEachPanel(run, n, ", on " + host.text(), [&](Session& session, const Tool& tool) {
      panels().options = host.options().panels;
      if (session.modeler() != nullptr) session.modeler()->select({"Tail_01", "Tail_02"});
      if (session.open(tool) == nullptr) return run.fail("opens no panel");
      EveryControl(run, session, tool).touchAll();
    });
  }
}

// With nothing loaded the tools have nothing to do, and may not fall over it.
void nothingLoaded(CheckRun& run) {
  std::uint64_t n = 0;
  withEachPanel(run, n, ", nothing loaded", [&](Session& session, const Tool& tool) {
    if (session.modeler() != nullptr) {
      session.modeler()->closeAll();
    } else {
      session.layout()->select({});
    }
    if (session.activate(tool) != lw::kActivationOk) run.fail("is not activated");
    if (panels().find(tool.server) != nullptr) EveryControl(run, session, tool).touchAll();
  });
}

constexpr std::array kPanelChecks{
    Check{"opening", 4, "Panels open, close and open again in both languages, and none is left behind", opening},
    Check{"geometry", 4, "On every page nothing overlaps, leaves the panel or is cut, in both languages", geometry},
    Check{"resizing", 4, "Panels that can be resized are right at any size", resizing},
    Check{"controls", 4, "Every control can be used once, each item of each list, on hosts of several habits", controls},
    Check{"nothing-loaded", 4, "The tools can be opened and used with nothing loaded or selected", nothingLoaded},
};

}  // namespace

std::span<const Check> panelChecks() { return kPanelChecks; }

}  // namespace standin::validate
