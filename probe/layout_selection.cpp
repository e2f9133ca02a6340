// Questions about the selection of Layout.
#include <array>

#include "probe/layout_site.h"

namespace probe::layout {
namespace {

std::string selectedAfter(const LayoutScene& scene, const char* command, const Items& selected) {
  return std::string("after ") + command + " selected: " + scene.namesOf(selected);
}

Answer newNull(LayoutSite& site) {
  const AddedNull& added = site.nulls().second();
  const std::string seen = selectedAfter(site.scene, "AddNull, with another null selected before,", added.selectedAfter);
  for (lw::ItemId stranger : added.strangers) {
    if (contains(added.selectedAfter, stranger)) throw Trouble{"another plug-in selected its own item"};
  }
  if (added.selectedAfter == Items{added.null}) return told("selected", seen);
  if (added.selectedAfter == added.selectedBefore) return told("left", seen);
  const bool isBoth = added.selectedAfter.size() == 2 && contains(added.selectedAfter, added.null);
  return isBoth ? told("added", seen) : other(seen);
}

Answer newNullParent(LayoutSite& site) {
  const lw::ItemId parent = site.nulls().parentOfSecond();
  if (parent == nullptr) return told("none", "AddNull, with another null selected, makes a null without a parent");
  const std::string seen = "AddNull, with another null selected, makes a null below \"" + site.scene.nameOf(parent) + "\"";
  return parent == site.nulls().first().null ? told("selected-item", seen) : other(seen);
}

Answer newBones(LayoutSite& site) {
  LayoutRig& rig = site.rig();
  if (rig.bones().empty()) throw Trouble{"SkelegonsToBones made no bones"};
  const Items& selected = rig.selected();
  const std::string seen = selectedAfter(site.scene, "SkelegonsToBones", selected);
  const Items others = added(rig.bones(), selected);
  const bool hasAllBones = selected.size() == rig.bones().size() + others.size();
  if (selected.empty()) return told("none", seen);
  if (selected == Items{rig.first()}) return told("left", seen);
  if (hasAllBones && others.empty()) return told("selected", seen);
  return hasAllBones && others == Items{rig.first()} ? told("added", seen) : other(seen);
}

// As a rule something is selected in Layout; nothing is when the one selected item is removed.
Answer emptySelection(LayoutSite& site) {
  const LayoutScene& scene = site.scene;
  if (!scene.selection().empty()) {
    scene.select({addNull(scene, "VarnelProbeGone").null});
    scene.confirmed("ClearSelected");
  }
  const lw::ItemId* const list = scene.interfaceInfo().selItems;
  if (list == nullptr) return told("null", "with nothing selected the list is null");
  if (*list == nullptr) return told("list", "with nothing selected the list holds its end alone");
  throw Trouble{"something is selected at all times: " + scene.namesOf(scene.selection())};
}

// The old list is read only where it proved to be the very array that the host still gives out. Whether a new one lies where
// the old one lay is chance, and not told.
Answer selectionArray(LayoutSite& site) {
  const LayoutScene& scene = site.scene;
  const lw::ItemId a = site.nulls().first().null;
  const lw::ItemId b = site.nulls().second().null;
  scene.select({a});
  const lw::ItemId* const before = scene.interfaceInfo().selItems;
  scene.select({b});
  const bool isSame = scene.interfaceInfo().selItems == before;
  scene.select({a});
  return isSame && before[0] == a ? told("follows", "the array that was given holds what is selected later")
                                  : told("snapshot", "the array that was given does not hold what is selected later");
}

// The order of the three is neither that in the scene nor its reverse.
Answer selectionOrder(LayoutSite& site) {
  const lw::ItemId a = site.nulls().first().null;
  const lw::ItemId b = site.nulls().second().null;
  const lw::ItemId c = site.nulls().third().null;
  site.scene.select({b, c, a});
  const Items list = site.scene.selection();
  const std::string seen = "the nulls B, C and A, selected in this order, are listed as " + site.scene.namesOf(list);
  if (list == Items{b, c, a}) return told("as-selected", seen);
  if (list == Items{a, c, b}) return told("newest-first", seen);
  return list == Items{a, b, c} ? told("scene", seen) : other(seen);
}

// Asked first, while nothing of the probe's is selected.
constexpr std::array<Question<LayoutSite>, 6> kSelectionQuestions{{
    {"empty-selection", emptySelection},
    {"new-null", newNull},
    {"new-null-parent", newNullParent},
    {"new-bones", newBones},
    {"selection-array", selectionArray},
    {"selection-order", selectionOrder},
}};

}  // namespace

LayoutQuestions selectionQuestions() { return kSelectionQuestions; }

}  // namespace probe::layout
