#include "probe/layout_nulls.h"

#include <algorithm>
#include <vector>

namespace probe::layout {
namespace {

constexpr std::array<const char*, 3> kNames{"VarnelProbeA", "VarnelProbeB", "VarnelProbeC"};

std::vector<std::string> namesOf(const LayoutScene& scene, const Items& items) {
  std::vector<std::string> names;
  for (lw::ItemId item : items) names.push_back(scene.nameOf(item));
  return names;
}

std::string changeOf(const std::vector<std::string>& before, const std::vector<std::string>& after) {
  const auto [was, is] = std::mismatch(before.begin(), before.end(), after.begin());
  return was == before.end() ? "" : "\"" + *was + "\" is called \"" + *is + "\" now";
}

}  // namespace

AddedNull addNull(const LayoutScene& scene, const std::string& name) {
  AddedNull added;
  added.objectsBefore = scene.objects();
  added.selectedBefore = scene.selection();
  const std::vector<std::string> names = namesOf(scene, added.objectsBefore);
  scene.host().mustDo("AddNull " + name);
  added.objectsAfter = scene.objects();
  added.selectedAfter = scene.selection();
  added.renamed = changeOf(names, namesOf(scene, added.objectsBefore));
  for (lw::ItemId item : layout::added(added.objectsBefore, added.objectsAfter)) {
    const bool isIt = added.null == nullptr && scene.nameOf(item).starts_with(name);
    if (isIt) added.null = item;
    if (!isIt) added.strangers.push_back(item);
  }
  if (added.null == nullptr) throw Trouble{"no item is called \"" + name + "\" after AddNull"};
  return added;
}

TrialNulls::TrialNulls(const LayoutScene& scene) {
  for (std::size_t i = 0; i < added_.size(); ++i) {
    if (i > 0) scene.select({first().null});
    added_[i] = addNull(scene, kNames[i]);
    if (i == 1) parentOfSecond_ = scene.items().parent(second().null);
  }
  judgeOthers(scene);
}

void TrialNulls::mustBeAlone() const {
  if (others_ != "none") throw Trouble{"another plug-in changes the scene: " + seenOfOthers_};
}

bool TrialNulls::cameLast(const AddedNull& added) const {
  Items expected = added.objectsBefore;
  expected.push_back(added.null);
  return added.objectsAfter == expected;
}

void TrialNulls::judgeOthers(const LayoutScene& scene) {
  if (!second().strangers.empty()) return judgeStrangers(scene);
  if (!second().renamed.empty()) {
    others_ = "renames";
    seenOfOthers_ = "after the second AddNull " + second().renamed;
    return;
  }
  const bool isOrdered = std::all_of(added_.begin(), added_.end(), [&](const AddedNull& one) { return cameLast(one); });
  others_ = isOrdered ? "none" : "sorts";
  seenOfOthers_ = isOrdered ? "three nulls came one behind the other, and nothing else"
                            : "after three AddNull the items stand as " + scene.namesOf(third().objectsAfter);
}

// That other items are renamed then is the host's counting of equal names.
void TrialNulls::judgeStrangers(const LayoutScene& scene) {
  const Items& came = second().strangers;
  const bool isSelected = second().selectedAfter == came;
  others_ = isSelected ? "selects" : "adds";
  seenOfOthers_ = "with the second null came " + scene.namesOf(came) + (isSelected ? ", which is selected" : "");
}

}  // namespace probe::layout
