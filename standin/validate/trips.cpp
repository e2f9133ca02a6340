#include "standin/validate/trips.h"

#include <algorithm>
#include <array>
#include <map>
#include <sstream>
#include <tuple>
#include <utility>

#include "standin/core/witness.h"
#include "standin/panels/person.h"
#include "standin/validate/touch.h"
#include "standin/validate/tree_user.h"

namespace standin::validate {
namespace {

constexpr std::uint8_t kFalloffSetting = 13;
constexpr int kInverseDistance4 = 2;  // place in the list

// A trip under way. Whatever its user cannot do is noted and the trip goes on.
class Traveller {
 public:
  explicit Traveller(const TripOrder& order, Program program)
      : order_(order), session_(program, *order.rig, order.module, order.host.options()) {
    session_.setLocale(order.language);
    if (!session_.refusal().empty()) report_.broken.push_back(session_.refusal());
  }

  Session& session() { return session_; }
  bool isReady() const { return report_.broken.empty(); }

  void begin() const {
    if (order_.begin) order_.begin();
  }
  void end() {
    refused_ = witness().refusedFunction();
    if (order_.end) order_.end();
    for (Panel* panel : panels().open()) panels().paintWanted(*panel);
  }

  // A call that gives nothing back was dropped: no module can know, so the panel may be wrong until it is made anew.
  bool wasDeceived() const {
    constexpr std::array kSilent{"control set", "control get", "control draw", "panel set", "panel get", "panel draw"};
    return std::find(kSilent.begin(), kSilent.end(), refused_) != kSilent.end();
  }

  void does(const Done& done) {
    if (!done) report_.troubles.push_back(done.why);
  }
  void finds(bool isSo, const std::string& what) {
    if (!isSo) report_.troubles.push_back("not so: " + what);
  }
  void mustHold(bool holds, const std::string& rule) {
    if (!holds) report_.broken.push_back("broken: " + rule);
  }

  TripReport finish() {
    if (session_.modeler() != nullptr) {
      const auto& edits = session_.modeler()->edits();
      mustHold(std::all_of(edits.begin(), edits.end(), [](const EditRecord& edit) { return edit.done; }),
               "every mesh edit is ended");
    }
    if (const std::string complaints = notOfDeception(session_.end()); !complaints.empty()) {
      report_.broken.push_back(complaints);
    }
    return std::move(report_);
  }

 private:
  // Complaints without the one that only says that the dropped call was dropped.
  std::string notOfDeception(const std::string& complaints) const {
    if (!wasDeceived()) return complaints;
    std::string kept;
    std::istringstream lines(complaints);
    for (std::string line; std::getline(lines, line);) {
      if (line.find("user data was never set") == std::string::npos) kept += line + '\n';
    }
    return kept;
  }

  const TripOrder& order_;
  Session session_;
  TripReport report_;
  std::string refused_;
};

std::vector<std::string> skelegonNames(Session& session, std::size_t most) {
  std::vector<std::string> names;
  for (const MeshPolygon* polygon : session.modeler()->current()->skelegons()) {
    if (names.size() < most) names.push_back(polygon->tag(lw::kTagBone));
  }
  return names;
}

// Everything that is stored on the skelegons, and which are selected.
std::string meshText(Session& session) {
  std::string text;
  for (const MeshPolygon* polygon : session.modeler()->current()->skelegons()) {
    text += polygon->selected ? "selected\n" : "\n";
    for (const PolygonTag& tag : polygon->content.tags) text += std::to_string(tag.type) + '=' + tag.text + '\n';
  }
  return text;
}

// What a freshly loaded module shows for the mesh as it is. It depends on nothing else but the host, so it is kept.
const std::string& freshView(Session& session, const TripOrder& order) {
  static std::map<std::string, std::string> views;
  const std::string key = order.host.text() + '\n' + std::to_string(order.language) + '\n' + meshText(session);
  if (const auto found = views.find(key); found != views.end()) return found->second;
  std::string view;
  if (session.reload()) {
    if (Panel* const panel = session.open(kProperty)) view = everythingShown(*panel);
  }
  return views[key] = view;
}

// The first difference of two texts, line by line.
std::string firstDifference(const std::string& one, const std::string& other) {
  std::size_t from = 0;
  std::size_t at = 0;
  for (; at < one.size() && at < other.size() && one[at] == other[at]; ++at) {
    if (one[at] == '\n') from = at + 1;
  }
  const auto line = [&](const std::string& text) { return text.substr(from, text.find('\n', from) - from); };
  return '"' + line(one) + "\" instead of \"" + line(other) + '"';
}

// On each page the first control of each kind that can be seen.
void useOneOfEachKind(Traveller& user, Panel& panel) {
  everyPage(panel, [&](const std::string&) {
    std::vector<ControlKind> used{ControlKind::TabChoice};
    for (Control* control : usableControls(panel)) {
      if (std::find(used.begin(), used.end(), control->kind->kind) != used.end()) continue;
      used.push_back(control->kind->kind);
      if (!isVisible(*control)) continue;  // hidden by one that was used before it
      user.session().layAnswer();
      user.does(touch(*control, 3));
    }
  });
}

// Whatever failed, the next run of the property tool shows what is stored, as a module that was never disturbed does.
void judgeNextRun(Traveller& user, const TripOrder& order) {
  Session& session = user.session();
  if (user.wasDeceived()) user.mustHold(session.reload(), "the module can be loaded again");
  user.mustHold(session.activate(kProperty) == lw::kActivationOk, "the next activation of the property tool succeeds");
  Panel* const panel = panels().find(kProperty.server);
  const bool isOpen = panel != nullptr && panel->isOpen();
  user.mustHold(isOpen, "the next run of the property tool opens its panel");
  if (!isOpen) return;
  const std::string shown = everythingShown(*panel);
  const std::string& expected = freshView(session, order);
  user.mustHold(shown == expected, "panels show what is stored: " + firstDifference(shown, expected));
}

TripReport propertyTrip(const TripOrder& order) {
  Traveller user(order, Program::Modeler);
  Session& session = user.session();
  if (!user.isReady()) return user.finish();
  const std::vector<std::string> chosen = skelegonNames(session, 2);
  session.modeler()->select({chosen.front()});
  user.begin();
  Panel* panel = session.open(kProperty);
  user.finds(panel != nullptr, "the property panel opens");
  if (panel != nullptr) {
    // The page holds three lists from the top: the skelegon's own list is hidden while one is selected.
    user.does(person::choose(panel->find(ControlKind::TabChoice, 0), 0));
    user.does(person::choose(panel->find(ControlKind::Popup, 0), kInverseDistance4));
  }
  const MeshPolygon* const skelegon = session.modeler()->current()->skelegon(chosen.front());
  user.finds(skelegon != nullptr && skelegon->tag(settingTag(kFalloffSetting)) == std::to_string(kInverseDistance4),
             "the chosen falloff is stored");
  session.modeler()->select(chosen);
  if (panel != nullptr) useOneOfEachKind(user, *panel);
  user.end();
  judgeNextRun(user, order);
  return user.finish();
}

// --- the renamer ----------------------------------------------------------------------------------------------------------

// Places in the renamer's panel, in order of creation.
enum RenamerControl {
  kMode = 0,
  kFirstText = 1,
  kSecondText = 2,
  kTarget = 3,
  kAdd = 5,
  kBaseName = 8,
  kColumns = 20,
  kRun = 33
};
enum RenamerMode { kChange, kPrefix, kSuffix, kReplace, kExpression, kAdvanced };
constexpr int kRegistered = 1;  // target

TripReport renamerTrip(const TripOrder& order) {
  Traveller user(order, Program::Modeler);
  Session& session = user.session();
  if (!user.isReady()) return user.finish();
  ModelerHost& host = *session.modeler();
  const std::vector<const MeshPolygon*> all = host.current()->skelegons();
  const std::vector<const MeshPolygon*> some{all.begin(), all.begin() + 2};
  const auto named = [&](const std::string& wanted) {
    return std::any_of(some.begin(), some.end(), [&](const MeshPolygon* polygon) {
      return polygon->tag(lw::kTagBone).find(wanted) != std::string::npos;
    });
  };
  host.selectPolygons(some);
  user.begin();
  Panel* const property = session.open(kProperty);
  Panel* const panel = session.open(kRenamer);
  user.finds(property != nullptr && panel != nullptr, "both panels open");
  const auto control = [&](RenamerControl number) { return panel == nullptr ? nullptr : panel->at(number); };
  const auto runMode = [&](RenamerMode mode, const char* first, const char* second) {
    user.does(person::choose(control(kMode), mode));
    user.does(person::type(control(kFirstText), first));
    if (second != nullptr) user.does(person::type(control(kSecondText), second));
    session.layAnswer();
    user.does(person::press(control(kRun)));
  };
  runMode(kPrefix, "New_", nullptr);
  user.finds(named("New_"), "a prefix is put before the names");
  runMode(kReplace, "New_", "Old_L_");
  user.finds(named("Old_L_") && !named("New_"), "a part of the names is replaced");
  runMode(kExpression, "(.*)_L(.*)", "$1_R$2");
  user.finds(named("_R_"), "an expression renames");
  user.does(person::choose(control(kMode), kAdvanced));
  user.does(person::press(control(kAdd)));
  user.does(person::choose(control(kTarget), kRegistered));
  user.does(person::switchTo(control(kBaseName), true));
  user.does(person::switchTo(control(kColumns), true));
  session.layAnswer();
  user.does(person::press(control(kRun)));
  user.finds(named("Bone01_"), "registered skelegons get the base name");
  user.end();
  judgeNextRun(user, order);
  return user.finish();
}

// --- the selector ---------------------------------------------------------------------------------------------------------

TripReport selectorTrip(const TripOrder& order) {
  Traveller user(order, Program::Modeler);
  Session& session = user.session();
  if (!user.isReady()) return user.finish();
  ModelerHost& host = *session.modeler();
  host.deselectAll();
  user.begin();
  Panel* const property = session.open(kProperty);
  Panel* const panel = session.open(kSelector);
  user.finds(property != nullptr && panel != nullptr, "both panels open");
  if (panel != nullptr) {
    TreeUser tree(host, *panel);
    tree.click(TreeUser::kLabel, 0, lw::kMouseAlt);
    user.finds(host.selectedNames().size() == host.current()->skelegons().size(), "the top row's subtree is everything");
    clickEachRow(tree);
    // Where calls fail each has its turn: the long look is for hosts that fail in nothing.
    if (!order.begin) clickInOtherWays(tree);
    tree.click(TreeUser::kLabel, 3, lw::kMouseCtrl);
    tree.click(TreeUser::kLabel, 5, lw::kMouseShift);
    for (const int x : {2, 8}) tree.click(x, 0);  // the top row's expander; no hand finds the same pixel twice
    user.does(person::resize(panel, 400, 120));
    if (!order.begin) scrollDown(tree);
    user.does(person::wheel(panel, 50, 50, -1));
    user.does(person::press(panel->find(ControlKind::Button, 0)));
    panels().paintWanted(*panel);
    for (const std::string& trouble : tree.troubles()) user.finds(false, trouble);
  }
  user.end();
  judgeNextRun(user, order);
  return user.finish();
}

// --- the conversion -------------------------------------------------------------------------------------------------------

// The command that was refused by way of trial; empty when it was another call.
std::string refusedCommand(const Transcript& transcript) {
  for (const Event& event : transcript.events()) {
    if (event.kind == EventKind::rejected && event.why == kRefused) return event.text;
  }
  return {};
}

bool isSwitch(const std::string& command) {
  constexpr std::array kSwitches{"EnableIK ", "EnableMC ", "EnableDeformations ", "AutoConfirm "};
  return std::any_of(kSwitches.begin(), kSwitches.end(), [&](const char* one) { return command.starts_with(one); });
}

bool allSwitchedBack(const LayoutState& state) {
  return state.ikEnabled && state.motionControllersEnabled && state.deformationsEnabled && state.autoConfirm == 0;
}

TripReport conversionTrip(const TripOrder& order) {
  Traveller user(order, Program::Layout);
  Session& session = user.session();
  if (!user.isReady()) return user.finish();
  LayoutHost& host = *session.layout();
  const std::vector<Item*> selected = host.scene().selection();
  user.begin();
  Panel* panel = session.open(kConversion);
  user.finds(panel != nullptr, "the conversion panel opens");
  if (panel != nullptr) user.does(person::press(panel->find(ControlKind::Button, 0)));
  user.end();
  user.finds(host.transcript().count(EventKind::rejected) + host.transcript().count(EventKind::asked) == 0,
             "every command is accepted");
  user.finds(std::is_permutation(selected.begin(), selected.end(), host.scene().selection().begin(),
                                 host.scene().selection().end()),
             "the selection is as it was");
  const bool hasBones = std::any_of(selected.begin(), selected.end(), [](const Item* item) { return !item->bones.empty(); });
  user.finds(hasBones, "bones were made");
  // A switch whose own command was refused stays where it is.
  const std::string refused = refusedCommand(host.transcript());
  if (!isSwitch(refused)) user.mustHold(allSwitchedBack(host.state()), "everything is switched on again");
  // The next run, with nothing in its way, works.
  host.select(selected);
  panel = session.open(kConversion);
  user.mustHold(panel != nullptr, "the next run of the conversion opens its panel");
  if (panel != nullptr) {
    user.mustHold(person::press(panel->find(ControlKind::Button, 0)).ok, "the next conversion can be run");
    user.mustHold(allSwitchedBack(host.state()), "everything is switched on after the next conversion");
  }
  return user.finish();
}

// The whole way of one setting: chosen in Modeler, saved, on the bone in Layout.
TripReport typicalTrip(const TripOrder& order) {
  TripReport report;
  std::string chosen;
  const std::string saved = order.rig->path + ".trip.lwo";
  {
    Traveller user(order, Program::Modeler);
    if (!user.isReady()) return user.finish();
    ModelerHost& host = *user.session().modeler();
    chosen = skelegonNames(user.session(), 1).front();
    host.select({chosen});
    user.begin();
    Panel* const panel = user.session().open(kProperty);
    user.finds(panel != nullptr, "the property panel opens");
    if (panel != nullptr) {
      user.does(person::choose(panel->find(ControlKind::TabChoice, 0), 0));
      user.does(person::choose(panel->find(ControlKind::Popup, 0), kInverseDistance4));
    }
    user.finds(!host.saveAs(saved).has_value(), "the object can be saved");
    report = user.finish();
  }
  const Outcome<ObjectFile> object = readObject(saved);
  if (!object) {
    report.troubles.push_back(object.why());
    return report;
  }
  const Rig rig{*object, saved};
  TripOrder further = order;
  further.rig = &rig;
  Traveller user(further, Program::Layout);
  Panel* const panel = user.session().open(kConversion);
  user.finds(panel != nullptr, "the conversion panel opens");
  if (panel != nullptr) user.does(person::press(panel->find(ControlKind::Button, 0)));
  user.end();
  const Item* const bone = user.session().layout()->scene().find(chosen);
  user.finds(bone != nullptr && bone->kind == ItemKind::bone, "the skelegon became a bone");
  user.finds(bone != nullptr && bone->bone.falloff == kInverseDistance4, "the bone has the falloff that was chosen");
  TripReport second = user.finish();
  report.troubles.insert(report.troubles.end(), second.troubles.begin(), second.troubles.end());
  report.broken.insert(report.broken.end(), second.broken.begin(), second.broken.end());
  return report;
}

constexpr std::array kTrips{
    Trip{"typical", typicalTrip},   Trip{"property", propertyTrip},     Trip{"renamer", renamerTrip},
    Trip{"selector", selectorTrip}, Trip{"conversion", conversionTrip},
};

}  // namespace

std::span<const Trip> allTrips() { return kTrips; }

}  // namespace standin::validate
