#include "standin/layout/scene_commands.h"

#include "standin/layout/skelegon_bones.h"

namespace standin {
namespace {

Rejection selectItem(LayoutState& state, Item*, const Arguments& arguments) {
  state.scene.deselectAll();
  state.scene.addToSelection(*arguments[0].item);
  return {};
}

Rejection addToSelection(LayoutState& state, Item*, const Arguments& arguments) {
  state.scene.addToSelection(*arguments[0].item);
  return {};
}

void selectNew(Scene& scene, NewItems habit, const std::vector<Item*>& items) {
  if (habit == NewItems::Left) return;
  if (habit != NewItems::Added) scene.deselectAll();
  if (habit == NewItems::Cleared) return;
  for (Item* item : items) scene.addToSelection(*item);
}

Rejection addNull(LayoutState& state, Item*, const Arguments& arguments) {
  Scene& scene = state.scene;
  Item& null = scene.addNull(arguments[0].text);
  if (scene.options().newNullBelowSelection && !scene.selection().empty()) scene.setParent(null, scene.selection().front());
  selectNew(scene, scene.options().newNull, {&null});
  return {};
}

Rejection skelegonsToBones(LayoutState& state, Item* item, const Arguments&) {
  const LayoutOptions& options = state.scene.options();
  if (skelegonSources(state.scene, *item).empty()) return options.noSkelegonsIsRefused ? kNoSkelegons : "";
  // The host tells how many bones it made, in a box that the user has to close.
  if (state.autoConfirm == 0) return std::string(kAsksUser) + "confirm the conversion";
  if (state.autoConfirm < 0) return "the conversion was not confirmed";
  const std::vector<Item*> bones = makeBonesOfSkelegons(state.scene, *item);
  selectNew(state.scene, options.newBones, bones);
  return {};
}

Rejection loadObject(LayoutState& state, Item*, const Arguments& arguments) {
  std::string why;
  loadIntoScene(state.scene, arguments[0].text, &why);
  return why;
}

// The bones of an object that was selected with them are gone when their turn comes.
Rejection clearSelected(LayoutState& state, Item* item, const Arguments&) {
  if (state.autoConfirm == 0) return std::string(kAsksUser) + "confirm the removal";
  if (state.autoConfirm < 0) return "the removal was not confirmed";
  if (item->alive) state.scene.remove(*item);
  return {};
}

}  // namespace

void addSceneRows(std::vector<CommandRow>& rows) {
  constexpr ArgumentRule kItem{ArgumentKind::Item, 0, 0};
  constexpr ArgumentRule kText{ArgumentKind::Rest, 0, 0};
  rows.push_back({"SelectItem", CommandTarget::None, {kItem}, selectItem});
  rows.push_back({"AddToSelection", CommandTarget::None, {kItem}, addToSelection});
  rows.push_back({"AddNull", CommandTarget::None, {kText}, addNull});
  rows.push_back({"LoadObject", CommandTarget::None, {kText}, loadObject});
  rows.push_back({"ClearSelected", CommandTarget::Item, {}, clearSelected});
  rows.push_back({"SkelegonsToBones", CommandTarget::Object, {}, skelegonsToBones});
}

std::vector<Item*> loadIntoScene(Scene& scene, const std::string& path, std::string* why) {
  const Outcome<ObjectFile> file = readObject(path);
  if (why != nullptr) *why = file.why();
  return file ? scene.addObject(*file, path) : std::vector<Item*>();
}

}  // namespace standin
