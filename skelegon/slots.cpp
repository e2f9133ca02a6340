#include "skelegon/slots.h"

#include <algorithm>

#include "skelegon/numbers.h"
#include "skelegon/slot_table.h"

namespace skg {
namespace {

// The first tag of a type, or null. Later tags of that type do not count, whatever the first one holds.
const StoredTag* firstOfType(std::span<const StoredTag> tags, std::uint32_t type) {
  const auto found = std::find_if(tags.begin(), tags.end(), [type](const StoredTag& tag) { return tag.type == type; });
  return found == tags.end() ? nullptr : &*found;
}

std::optional<std::string_view> usableText(std::span<const StoredTag> tags, std::uint32_t type) {
  const StoredTag* const tag = firstOfType(tags, type);
  return tag == nullptr ? std::nullopt : tag->text;
}

}  // namespace

std::string_view SlotDefaults(Slot slot) { return rowOf(slot).defaultText; }

int colourIndex(std::string_view name) {
  const auto found = std::find(BoneColourNames.begin(), BoneColourNames.end(), name);
  return found == BoneColourNames.end() ? kUnknownColourIndex : static_cast<int>(found - BoneColourNames.begin());
}

int SkelegonProperties::integer(Slot slot) const { return leadingInteger((*this)[slot]); }

double SkelegonProperties::real(Slot slot) const { return leadingReal((*this)[slot]); }

SkelegonProperties propertiesFromFile(std::span<const StoredTag> tags) {
  SkelegonProperties properties;
  for (const SlotRow& row : kSlotTable) {
    std::optional<std::string_view> text = usableText(tags, SlotTagId(row.slot));
    if (!text && row.slot == Slot::Colour) {
      // The colour never takes its default: without any stored colour it stays empty, which reads as the orange entry.
      text = usableText(tags, kColourCopyTag).value_or(std::string_view());
    }
    properties[row.slot] = text.value_or(row.defaultText);
  }
  return properties;
}

}  // namespace skg
