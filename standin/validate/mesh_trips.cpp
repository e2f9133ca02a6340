// Trips around the mesh: skelegons and objects that go while panels show them, layers that are not there, calls refused
// once, tags that a file has twice.
#include <algorithm>
#include <array>

#include "objectfile/chunk_records.h"
#include "objectfile/file_bytes.h"
#include "objectfile/rig_builder.h"
#include "standin/core/witness.h"
#include "standin/validate/panel_places.h"
#include "standin/validate/touch.h"
#include "standin/validate/traveller.h"

namespace standin::validate {
namespace {

class MeshTraveller : public Traveller {
 public:
  explicit MeshTraveller(const TripOrder& order) : Traveller(order, Program::Modeler) {}

  ModelerHost& host() { return *session().modeler(); }
  const MeshPolygon& skelegon(const std::string& name) { return *host().current()->skelegon(name); }

  void openAll() {
    for (const Tool& tool : {kProperty, kSelector, kRenamer}) {
      finds(session().open(tool) != nullptr, std::string(tool.server) + " opens");
    }
  }
  // Null when the panel is not open; what is done then fails and is noted.
  static Control* of(const Tool& tool, int control) {
    const Panel* const panel = panels().find(tool.server);
    return panel == nullptr || !panel->isOpen() ? nullptr : panel->at(control);
  }
  static Control* property(PropertyControl control) { return of(kProperty, control); }
  static Control* renamer(RenamerControl control) { return of(kRenamer, control); }

  void turnTo(PropertyPage page) { does(person::choose(property(kPageTabs), page)); }
  void sync() { does(person::press(property(kSync))); }
  void enterStrength(double percent) {
    turnTo(kBonePage);
    does(person::enter(property(kStrength), percent));
  }
  void choosesFalloff(int falloff) {
    turnTo(kGroupPage);
    does(person::choose(property(kFalloff), falloff));
  }
  void press(PropertyPage page, PropertyControl button) {
    turnTo(page);
    does(person::press(property(button)));
  }
  // The rows of the tree, from the top one on.
  void clickRows(int count) {
    constexpr int kLabel = 60;
    constexpr int kRow = 14;
    Panel* const panel = panels().find(kSelector.server);
    if (panel == nullptr) return;
    panels().paintWanted(*panel);
    for (int row = 0; row < count; ++row) {
      does(person::click(panel->find(ControlKind::OpenGL, 0), kLabel, row * kRow + kRow / 2));
    }
  }
  void run() {
    session().layAnswer();
    does(person::press(renamer(kRun)));
  }
};

std::string tagsOf(const MeshPolygon& polygon) {
  std::string text;
  for (const PolygonTag& tag : polygon.content.tags) text += std::to_string(tag.type) + '=' + tag.text + '\n';
  return text;
}

// --- what goes while panels show it ---------------------------------------------------------------------------------------

// The panels know a skelegon that is deleted; in its place comes a face, which may have got its identifier.
void deletesAndDraws(MeshTraveller& user, const std::string& name) {
  ModelerObject& object = *user.host().current();
  user.host().deleteSkelegons({name});
  std::vector<lw::PointId> corners;
  for (std::size_t i = 0; i < 3; ++i) corners.push_back(object.points()[i].id);
  const MeshPolygon& face = object.addFace(object.points()[0].layer, corners);
  const std::string drawn = tagsOf(face);
  const std::string others = meshText(user.session());

  user.enterStrength(35);
  user.press(kBonePage, kMapFill);
  user.enterStrength(45);
  user.press(kLinkPage, kTargetFill);
  user.finds(meshText(user.session()) == others, "settings of a deleted skelegon go to no other one");
  user.choosesFalloff(3);
  user.run();
  user.finds(tagsOf(face) == drawn, "a face gets no settings of a skelegon that was deleted");
}

TripReport deletionTrip(const TripOrder& order) {
  MeshTraveller user(order);
  if (!user.isReady()) return user.finish();
  ModelerHost& host = user.host();
  const std::vector<std::string> names = skelegonNames(user.session(), 3);
  host.select({names[1]});
  user.begin();
  user.openAll();
  user.does(person::choose(user.renamer(kMode), kAdvanced));
  user.does(person::press(user.renamer(kAdd)));
  user.does(person::choose(user.renamer(kTarget), kRegistered));
  user.does(person::switchTo(user.renamer(kBaseName), true));
  deletesAndDraws(user, names[1]);

  host.select({names[0]});
  user.sync();
  user.enterStrength(55);
  user.finds(user.skelegon(names[0]).tag(settingTag(kStrengthSetting)) == "55.000000", "what is there still takes settings");

  // Without an object the panels are of no use, and do no harm.
  host.closeAll();
  user.enterStrength(65);
  user.press(kBonePage, kMapFill);
  user.session().layAnswer();
  user.does(person::press(user.property(kResetAll)));
  user.clickRows(4);
  user.run();
  user.sync();

  host.add(order.rig->object, order.rig->path);
  const std::string fresh = meshText(user.session());
  user.enterStrength(75);
  // What the renamer has registered are identifiers: of skelegons of the next object, where those are used again.
  if (!order.host.options().modeler.identifiersAreUsedAgain) user.run();
  user.finds(meshText(user.session()) == fresh, "another object gets nothing that was meant for a closed one");
  host.select({names[0]});
  user.sync();
  user.enterStrength(85);
  user.finds(user.skelegon(names[0]).tag(settingTag(kStrengthSetting)) == "85.000000", "the next object takes settings");
  user.end();
  user.judgeNextRun();
  return user.finish();
}

// --- layers and maps ------------------------------------------------------------------------------------------------------

// Layers 1, 2 and 5, the second without a name; a weight map of a skelegon's name and one without.
ObjectFile layeredRig() {
  RigBuilder rig;
  rig.layer(0, "Body");
  rig.weightMap("Chest", {{rig.point({0, 0, 0}), 1.0F}});
  rig.weightMap("", {{0, 1.0F}});
  rig.chain({"Hips", "Chest"}, {{0, 0, 0}, {0, 1, 0}, {0, 2, 0}});
  rig.layer(1, "");
  rig.root("Arm", {1, 0, 0}, {2, 0, 0});
  rig.layer(4, "Tail");
  rig.chain({"Tail_01", "Tail_02"}, {{0, 0, 1}, {0, 0, 2}, {0, 0, 3}});
  return rig.take();
}

bool contains(const std::vector<std::string>& list, const char* text) {
  return std::find(list.begin(), list.end(), text) != list.end();
}

void readsTheLists(MeshTraveller& user, const TripOrder& order) {
  const ModelerOptions options = order.host.options().modeler;
  const bool isFound = !options.objectsAreUnsaved || options.unsavedFileName == UnsavedFileName::Reference;
  user.turnTo(kLinkPage);
  const std::vector<std::string> items = person::menu(user.property(kParentChooser));
  for (const char* layer : {"[file]:Body", "[file]:Layer2", "[file]:Layer3", "[file]:Layer4", "[file]:Tail"}) {
    user.finds(contains(items, layer) == isFound, std::string("the list of items has ") + layer);
  }
  user.does(person::choose(user.property(kParentChooser), "Tail_01"));
  user.turnTo(kBonePage);
  std::vector<std::string> maps = person::menu(user.property(kMapChooser));
  if (!maps.empty() && maps.back().empty()) maps.pop_back();  // what a chooser rests on, where hosts hold it to its list
  user.finds(maps == std::vector<std::string>({"(none)", "Chest", "WMap2"}),
             "the list of weight maps has these and no other");
  user.does(person::press(user.property(kMapFill)));
}

TripReport layersTrip(const TripOrder& order) {
  const TripRig rig = rigOf(layeredRig(), order.rig->path + ".layers.lwo");
  TripOrder further = order;
  further.rig = &rig;
  MeshTraveller user(further);
  if (!user.isReady()) return user.finish();
  ModelerHost& host = user.host();
  host.select({"Hips", "Chest"});
  user.begin();
  user.openAll();
  readsTheLists(user, order);
  user.finds(
      user.skelegon("Chest").tag(lw::kTagBoneWeight) == "Chest" && user.skelegon("Hips").tag(lw::kTagBoneWeight).empty(),
      "skelegons with a weight map of their name have it");
  user.finds(user.skelegon("Chest").tag(settingTag(kActiveSetting)) == "1" &&
                 user.skelegon("Hips").tag(settingTag(kActiveSetting)) == "0",
             "skelegons without a weight map of their name are inactive");
  user.finds(user.skelegon("Hips").tag(settingTag(kParentSetting)) == "Tail_01", "a chosen item is stored");

  host.select({"Tail_02"});
  user.sync();
  user.choosesFalloff(1);
  for (const auto& [name, falloff] : {std::pair{"Hips", ""}, {"Arm", ""}, {"Tail_01", "1"}, {"Tail_02", "1"}}) {
    user.finds(user.skelegon(name).tag(settingTag(kFalloffSetting)) == falloff,
               std::string("the falloff of a layer goes to its skelegons only, not so ") + name);
  }

  host.showLayers({4});
  user.sync();
  user.clickRows(8);
  host.select({"Tail_01"});
  user.sync();
  user.enterStrength(40);
  user.finds(user.skelegon("Tail_01").tag(settingTag(kStrengthSetting)) == "40.000000", "the foreground takes settings");
  user.finds(user.skelegon("Hips").tag(settingTag(kStrengthSetting)).empty(), "a hidden layer takes none");
  host.undo();
  user.finds(user.skelegon("Tail_01").tag(settingTag(kStrengthSetting)).empty(), "a change is one step back");
  user.end();
  user.judgeNextRun();
  return user.finish();
}

// --- calls refused once ---------------------------------------------------------------------------------------------------

constexpr std::array kRefused{"LWModCommand::editBegin2", "MeshEditOp::fastPolyScan", "MeshEditOp::polTag"};

// Each call refused once, and the same done again: the first changes nothing, the second everything.
template <class Action, class Isdone>
void doneAgain(MeshTraveller& user, const std::string& what, Action&& action, Isdone&& isDone) {
  for (const char* const call : kRefused) {
    const std::string before = meshText(user.session());
    witness().refuseNext(call);
    action();
    user.finds(witness().refusalHappened(), std::string(call) + " is called for " + what);
    witness().refuseNext("");
    user.finds(meshText(user.session()) == before, what + " is done wholly or not at all, with a refused " + call);
    action();
    user.finds(isDone(), what + " is done the second time, after a refused " + call);
  }
}

TripReport refusalsTrip(const TripOrder& order) {
  MeshTraveller user(order);
  if (!user.isReady()) return user.finish();
  ModelerHost& host = user.host();
  const std::vector<const MeshPolygon*> all = host.current()->skelegons();
  host.selectPolygons({all[0], all[1]});
  user.begin();
  user.openAll();
  double percent = 20;
  doneAgain(
      user, "a setting", [&] { user.enterStrength(++percent); },
      [&] {
        return all[0]->tag(settingTag(kStrengthSetting)) == all[1]->tag(settingTag(kStrengthSetting)) &&
               all[1]->tag(settingTag(kStrengthSetting)).starts_with(std::to_string(static_cast<int>(percent)));
      });
  user.does(person::choose(user.renamer(kMode), kPrefix));
  user.does(person::type(user.renamer(kFirstText), "N"));
  std::string wanted = all[1]->tag(lw::kTagBone);
  doneAgain(
      user, "a prefix", [&] { user.run(); }, [&] { return all[1]->tag(lw::kTagBone) == (wanted = "N" + wanted); });
  const auto& edits = host.edits();
  const int code = order.host.options().modeler.refusalCode;
  user.finds(std::any_of(edits.begin(), edits.end(), [&](const EditRecord& edit) { return edit.error == code; }),
             "an edit is ended with the code of what was refused");

  host.deselectAll();
  witness().refuseNext("MeshEditOp::polSelect");
  user.clickRows(5);  // the last one is a skelegon's
  user.finds(witness().refusalHappened() && host.selectedNames().size() == 1, "a click after a refused one selects");
  user.end();
  user.judgeNextRun();
  return user.finish();
}

// --- tags that a file has twice -------------------------------------------------------------------------------------------

// A falloff, a strength and a weight map on a skelegon twice, each the second time with another text.
std::string fileWithRepeatedTags() {
  RigBuilder rig;
  rig.layer(0, "Body");
  for (const char* const map : {"First", "Last"}) rig.weightMap(map, {{rig.point({0, 0, 0}), 1.0F}});
  const RigBuilder::Skelegon hips = rig.root("Hips", {0, 0, 0}, {0, 1, 0});
  rig.settings(hips, {{kFalloffSetting, "1"}, {kStrengthSetting, "10.000000"}});
  rig.tag(hips, lw::kTagBoneWeight, "First");
  ObjectFile object = *parseObject(*serializeObject(rig.object()));
  std::uint16_t text = 0;
  for (const Chunk& chunk : object.chunks) {
    if (chunk.id == records::kTags) text = static_cast<std::uint16_t>(text + records::readTexts(chunk.bytes)->size());
  }
  object.chunks.push_back({records::kTags, records::writeTexts({"3", "30.000000", "Last"})});
  for (const std::uint32_t type : {settingTag(kFalloffSetting), settingTag(kStrengthSetting), lw::kTagBoneWeight}) {
    object.chunks.push_back({records::kPolygonTags, records::writeTags({type, {{0, text++}}})});
  }
  return *joinForm({object.form, std::move(object.chunks)});
}

// What the host shows of them is what arrives at the bone, though the conversion counts otherwise; so is what is changed.
TripReport repeatedTagsTrip(const TripOrder& order) {
  TripReport report;
  const std::string path = order.rig->path + ".repeated.lwo";
  const bool isFirst = order.host.options().modeler.firstTagCounts;
  const int falloff = isFirst ? 1 : 3;
  {
    MeshTraveller user(order);
    if (!user.isReady()) return user.finish();
    ModelerHost& host = user.host();
    host.closeAll();
    user.finds(!writeFileBytes(path, fileWithRepeatedTags()).has_value() && host.open(path), "the object can be opened");
    host.select({"Hips"});
    user.begin();
    user.openAll();
    user.turnTo(kGroupPage);
    const Control* const chooser = user.property(kFalloff);
    user.finds(chooser != nullptr && chooser->integer == falloff, "the panel shows the falloff that the host holds");
    user.enterStrength(55);
    user.end();
    user.judgeNextRun();
    user.finds(!host.saveAs(path).has_value(), "the object can be saved");
    report = user.finish();
  }
  convertSaved(order, path, report, [&](Traveller& user, Scene& scene) {
    const Item* const bone = scene.find("Hips");
    user.finds(bone != nullptr && bone->bone.falloff == falloff, "the bone has the falloff that was shown");
    user.finds(bone != nullptr && bone->bone.strength == 0.55, "the bone has the strength that was entered");
    user.finds(bone != nullptr && bone->bone.weightMap == (isFirst ? "First" : "Last"),
               "the bone has the weight map that was shown");
  });
  return report;
}

constexpr std::array kTrips{
    Trip{"deletion", Visits::Modeler, deletionTrip},
    Trip{"layers", Visits::Modeler, layersTrip},
    Trip{"refusals", Visits::Modeler, refusalsTrip},
    Trip{"repeated-tags", Visits::Both, repeatedTagsTrip},
};

}  // namespace

std::span<const Trip> meshTrips() { return kTrips; }

}  // namespace standin::validate
