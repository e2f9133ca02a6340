#include "modeler/property/property_store.h"
#include "skelegon/slot_table.h"

#include <array>
#include <charconv>

namespace mst {
namespace {

constexpr lw::ReportSource kPanelReport = {"MST_CSkgPropPanel", 1121};

// The settings in slot order, then the colour's copy: one edit reads them all.
lw::TagTypes typesToRead() {
  lw::TagTypes types;
  types.reserve(skg::kSlotCount + 1);
  for (std::size_t slot = 0; slot < skg::kSlotCount; ++slot) types.push_back(skg::SlotTagId(slot));
  types.push_back(skg::kColourCopyTag);
  return types;
}

// Without the writes to polygons that the user deleted, or whose object was closed, since the panel saw them: the host must
// not be asked about those. Their identifiers may even name other polygons by now; what is no skelegon is left out too.
TagWrites writesToLiving(lw::CMeshEdit& edit, const TagWrites& writes) {
  const lw::PolygonSet living = edit.skelegonsAmong(writes.polygons);
  TagWrites kept;
  for (std::size_t i = 0; i < writes.polygons.size(); ++i) {
    if (living.count(writes.polygons[i]) != 0) kept.add(writes.polygons[i], writes.types[i], writes.texts[i]);
  }
  return kept;
}

}  // namespace

std::vector<skg::SkelegonInfo> ScanPanelSkelegons() { return lw::ScanSkelegons(lw::kLayersForeground, kPanelReport); }

lw::PolygonIds selectedPolygons(PanelSkelegons skelegons) {
  lw::PolygonIds polygons;
  for (const skg::SkelegonInfo& skelegon : skelegons) {
    if (skelegon.isSelected) polygons.push_back(skelegon.polygon);
  }
  return polygons;
}

skg::SkelegonProperties ReadSkelegonProperties(lw::PolygonId polygon) {
  skg::SkelegonProperties properties;
  if (polygon != nullptr) {
    const lw::TagTypes types = typesToRead();
    lw::TagTexts stored = lw::ReadPolygonTags(lw::PolygonIds(types.size(), polygon), types);
    std::move(stored.begin(), stored.begin() + skg::kSlotCount, properties.texts().begin());
    std::string& colour = properties[skg::Slot::Colour];
    if (colour.empty()) colour = std::move(stored.back());
  }
  for (const skg::SlotRow& row : skg::kSlotTable) {
    std::string& text = properties[row.slot];
    if (text.empty()) text = row.defaultText;
  }
  return properties;
}

std::string formatInteger(int value) { return std::to_string(value); }

std::string formatReal(double value) {
  std::array<char, 512> buffer;  // more than the longest double needs
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 6);
  return std::string(buffer.data(), result.ptr);
}

std::string_view colourName(int colourIndex) {
  const auto index = static_cast<std::size_t>(colourIndex);  // a negative one is beyond the names too
  return index < skg::BoneColourNames.size() ? skg::BoneColourNames[index] : std::string_view();
}

bool applyWrites(const TagWrites& writes) {
  if (writes.empty()) return false;
  lw::CMeshEdit edit(lw::kEditForTags);
  const TagWrites living = writesToLiving(edit, writes);
  lw::WritePolygonTags(edit, living.polygons, living.types, living.texts);
  edit.done();
  return living.polygons.size() == writes.polygons.size();
}

bool WriteSlotValue(PanelSkelegons skelegons, skg::Slot slot, std::string_view text) {
  return applyWrites(writesForValue(skelegons, slot, text));
}

}  // namespace mst
