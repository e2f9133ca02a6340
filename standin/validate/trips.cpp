#include "standin/validate/trips.h"

#include <algorithm>
#include <array>

#include "standin/panels/person.h"
#include "standin/validate/conversion_judge.h"
#include "standin/validate/panel_places.h"
#include "standin/validate/touch.h"
#include "standin/validate/traveller.h"
#include "standin/validate/tree_user.h"
#include "standin/validate/tries.h"

namespace standin::validate {
namespace {

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

// What is looked at only where nothing is made to fail in between: those trips are played again for each call of the host's.
bool isThorough(const TripOrder& order) { return !order.begin; }

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
  if (isThorough(order)) user.notes(tryProperty(session, order.language));
  user.end();
  user.judgeNextRun();
  return user.finish();
}

// --- the renamer ----------------------------------------------------------------------------------------------------------

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
  if (isThorough(order) && panel != nullptr) user.notes(tryRenamer(session, order.language, *panel));
  user.end();
  user.judgeNextRun();
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
    user.notes(tree.troubles());
  }
  user.end();
  user.judgeNextRun();
  return user.finish();
}

// --- the conversion -------------------------------------------------------------------------------------------------------

// The command that was refused by way of trial; empty when it was another call.
std::string refusedCommand(const Transcript& transcript) {
  for (const Event& event : transcript.events()) {
    if (event.kind == EventKind::Rejected && event.why == kRefused) return event.text;
  }
  return {};
}

bool isSwitch(const std::string& command) {
  constexpr std::array kSwitches{"EnableIK ", "EnableMC ", "EnableDeformations ", "AutoConfirm "};
  return std::any_of(kSwitches.begin(), kSwitches.end(), [&](const char* one) { return command.starts_with(one); });
}

// Commands that the host did not do. A switch that it refuses to take an argument for is its own affair.
std::string refusedInVain(const LayoutHost& host) {
  const bool refusesSwitches = host.scene().options().switchArgument == SwitchArgument::Refused;
  for (const Event& event : host.transcript().events()) {
    const bool failed = event.kind == EventKind::Rejected || event.kind == EventKind::Asked;
    if (failed && !(refusesSwitches && isSwitch(event.text))) return event.text + " (" + event.why + ")";
  }
  return {};
}

bool isSameSelection(const std::vector<Item*>& one, const std::vector<Item*>& other) {
  return one.size() == other.size() && std::is_permutation(one.begin(), one.end(), other.begin());
}

TripReport conversionTrip(const TripOrder& order) {
  Traveller user(order, Program::Layout);
  Session& session = user.session();
  if (!user.isReady()) return user.finish();
  LayoutHost& host = *session.layout();
  // Beside the objects some items that there is nothing to convert of.
  std::vector<Item*> selected = host.scene().selection();
  selected.push_back(&host.scene().addNull("Bystander"));
  selected.push_back(&host.scene().addLight("Bystander"));
  selected.push_back(&host.scene().addCamera("Bystander"));
  host.select(selected);
  const ConversionJudge judge(host, *order.rig);
  user.begin();
  Panel* panel = session.open(kConversion);
  user.finds(panel != nullptr, "the conversion panel opens");
  if (panel != nullptr) user.does(person::press(panel->find(ControlKind::Button, 0)));
  user.end();
  const std::string inVain = refusedInVain(host);
  user.finds(inVain.empty(), "every command is accepted: " + inVain);
  user.finds(isSameSelection(selected, host.scene().selection()), "the selection is as it was");
  for (const std::string& wrong : judge.verdict()) user.finds(false, wrong);
  // A switch whose own command was refused stays where it is.
  const std::string refused = refusedCommand(host.transcript());
  if (!isSwitch(refused)) user.mustHold(session.isSwitchedBack(), "everything is switched on again");
  // The next run, with nothing in its way, works. So does one with nothing selected.
  for (const std::vector<Item*>& next : {selected, std::vector<Item*>()}) {
    host.select(next);
    panel = session.open(kConversion);
    user.mustHold(panel != nullptr, "the next run of the conversion opens its panel");
    if (panel == nullptr) continue;
    user.mustHold(person::press(panel->find(ControlKind::Button, 0)).ok, "the next conversion can be run");
    user.mustHold(session.isSwitchedBack(), "everything is switched on after the next conversion");
  }
  return user.finish();
}

std::vector<const Item*> bonesNamed(const Scene& scene, const std::string& name) {
  std::vector<const Item*> bones;
  for (const Item* object : scene.objects()) {
    for (const Item* bone : object->bones) {
      if (scene.nameOf(*bone) == name) bones.push_back(bone);
    }
  }
  return bones;
}

// The whole way of one setting: chosen in Modeler, saved, on the bone in Layout.
TripReport typicalTrip(const TripOrder& order) {
  TripReport report;
  std::string chosen;
  std::string map;
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
      chosen = "Neck_01";
      user.does(person::type(panel->at(kNameField), chosen));
      user.does(person::choose(panel->find(ControlKind::TabChoice, 0), 1));
      user.does(person::choose(panel->at(kMapChooser), 1));
      user.does(person::enter(panel->at(kStrength), 40));
      map = host.weightMaps().front();
    }
    user.finds(!host.saveAs(saved).has_value(), "the object can be saved");
    report = user.finish();
  }
  convertSaved(order, saved, report, [&](Traveller& user, Scene& scene) {
    const std::vector<const Item*> bones = bonesNamed(scene, chosen);
    // Where every object has all bones of its file, the settings are on one of them.
    const auto has = [&](auto is) { return std::any_of(bones.begin(), bones.end(), is); };
    user.finds(!bones.empty(), "the skelegon became a bone");
    user.finds(has([](const Item* bone) { return bone->bone.falloff == kInverseDistance4; }),
               "the bone has the falloff that was chosen");
    user.finds(has([&](const Item* bone) { return bone->bone.weightMap == map; }),
               "the bone has the weight map that was chosen");
    user.finds(has([](const Item* bone) { return bone->bone.strength == 0.4; }),
               "the bone has the strength that was entered");
  });
  return report;
}

constexpr std::array kTrips{
    Trip{"typical", Visits::Both, typicalTrip},         Trip{"property", Visits::Modeler, propertyTrip},
    Trip{"renamer", Visits::Modeler, renamerTrip},      Trip{"selector", Visits::Modeler, selectorTrip},
    Trip{"conversion", Visits::Layout, conversionTrip},
};

}  // namespace

std::span<const Trip> allTrips() { return kTrips; }

}  // namespace standin::validate
