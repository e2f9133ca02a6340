// Which tags each action of the property panel writes. No host here.
#include <algorithm>
#include <set>
#include <string_view>
#include <unordered_set>

#include "modeler/property/property_store.h"
#include "skelegon/setting_groups.h"
#include "skelegon/slot_table.h"

namespace mst {
namespace {

using skg::Slot;

// Colours whose word the host's own colour tag is never given, on purpose: it is blanked, and only the copy knows them.
// Whoever reads the host's tag sees no cyan there.
constexpr bool isKeptFromHost(std::string_view colour) { return colour == "DkCyn" || colour == "Cyan"; }

template <class Write>
void forSelected(PanelSkelegons skelegons, Write&& write) {
  for (const skg::SkelegonInfo& skelegon : skelegons) {
    if (skelegon.isSelected) write(skelegon);
  }
}

lw::PolygonIds targetsOf(PanelSkelegons skelegons, Slot slot) {
  if (skg::rowOf(slot).scope != skg::Scope::Layer) return selectedPolygons(skelegons);
  std::set<int> layers;
  forSelected(skelegons, [&](const skg::SkelegonInfo& selected) { layers.insert(selected.layer); });
  lw::PolygonIds polygons;
  for (const skg::SkelegonInfo& skelegon : skelegons) {
    if (layers.count(skelegon.layer) != 0) polygons.push_back(skelegon.polygon);
  }
  return polygons;
}

}  // namespace

TagWrites writesForValue(PanelSkelegons skelegons, Slot slot, std::string_view text) {
  TagWrites writes;
  if (skg::rowOf(slot).kind == skg::SlotKind::Reserved) return writes;
  const std::string_view stored = text == skg::SlotDefaults(slot) ? std::string_view() : text;
  for (const lw::PolygonId polygon : targetsOf(skelegons, slot)) writes.add(polygon, skg::SlotTagId(slot), stored);
  return writes;
}

TagWrites writesForName(PanelSkelegons skelegons, std::string_view name) {
  TagWrites writes;
  forSelected(skelegons, [&](const skg::SkelegonInfo& skelegon) {
    writes.add(skelegon.polygon, lw::kTagBone, name);
    writes.add(skelegon.polygon, lw::kTagPart, name);
  });
  return writes;
}

TagWrites writesForColour(PanelSkelegons skelegons, int colourIndex) {
  // Not compared with the default: "Modeler" is stored as that word.
  const std::string_view colour = colourName(colourIndex);
  TagWrites writes;
  forSelected(skelegons, [&](const skg::SkelegonInfo& skelegon) {
    writes.add(skelegon.polygon, skg::kColourCopyTag, colour);
    writes.add(skelegon.polygon, lw::kTagColour, isKeptFromHost(colour) ? std::string_view() : colour);
  });
  return writes;
}

TagWrites writesForLinkedNames(PanelSkelegons skelegons, Slot slot) {
  TagWrites writes;
  const skg::LinkedItem* const item = skg::linkedItemOf(slot);
  if (item == nullptr) return writes;
  forSelected(skelegons, [&](const skg::SkelegonInfo& skelegon) {
    writes.add(skelegon.polygon, skg::plainSlotTagId(indexOf(slot)), skelegon.name + item->suffix);
  });
  return writes;
}

TagWrites writesForWeightMapsByName(PanelSkelegons skelegons, const std::vector<std::string>& mapNames) {
  const std::unordered_set<std::string_view> maps(mapNames.begin(), mapNames.end());
  TagWrites writes;
  forSelected(skelegons, [&](const skg::SkelegonInfo& skelegon) {
    const bool hasMap = maps.count(skelegon.name) != 0;
    // Stored as it stands, though "1" is the default.
    writes.add(skelegon.polygon, skg::SlotTagId(Slot::BoneActive), hasMap ? "1" : "0");
    writes.add(skelegon.polygon, skg::SlotTagId(Slot::WeightMap), hasMap ? std::string_view(skelegon.name) : "");
  });
  return writes;
}

TagWrites writesForControllerPreset(PanelSkelegons skelegons, skg::MotionGroup group, Controller controller) {
  const std::string value = formatInteger(static_cast<int>(controller));  // stored even where it is the default
  TagWrites writes;
  forSelected(skelegons, [&](const skg::SkelegonInfo& skelegon) {
    for (const skg::AxisSettings& axis : skg::kAxes) {
      if (axis.group == group) writes.add(skelegon.polygon, skg::SlotTagId(axis.controller), value);
    }
  });
  return writes;
}

TagWrites writesForReset(const lw::PolygonIds& polygons) {
  TagWrites writes;
  for (const lw::PolygonId polygon : polygons) {
    for (std::size_t slot = 0; slot < skg::kSlotCount; ++slot) writes.add(polygon, skg::plainSlotTagId(slot), {});
  }
  return writes;
}

}  // namespace mst
