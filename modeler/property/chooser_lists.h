// What the property panel's choosers offer: weight maps, items that can be linked, and the selected skelegons. No host here.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

namespace mst {

enum class ChooserList : std::size_t { WeightMaps, Items, SelectedNames };

using ChooserTexts = std::vector<std::string>;

// "(none)", then the maps.
ChooserTexts weightMapChoices(const ChooserTexts& mapNames);

// "(none)", then the layers as "[file]:" with the layer's name, which is how Layout's object items are meant, then the
// skelegons.
ChooserTexts itemChoices(const ChooserTexts& layerNames, const ChooserTexts& skelegonNames);

// The present lists. The host may keep a text that it got: every one lives as long as this does, also when a list changes.
class CChooserLists {
 public:
  void set(ChooserList list, const ChooserTexts& texts);
  void clearLists();

  // From now on the list ends with a blank entry, for a host that lets a popup rest on an entry only.
  void endWithBlank(ChooserList list) { hasBlank_[static_cast<std::size_t>(list)] = true; }

  // With the blank entry.
  int count(ChooserList list) const;
  bool has(ChooserList list, int index) const { return index >= 0 && index < count(list); }
  // Empty for an index outside the list: the host asks for any.
  const char* name(ChooserList list, int index) const;
  // What a choice fills in: empty for the first entry, "(none)", for a blank one, and outside the list.
  std::string chosen(ChooserList list, int index) const;

 private:
  using Names = std::vector<const char*>;

  std::unordered_set<std::string> texts_;  // elements stay where they are
  std::array<Names, 3> lists_;
  std::array<bool, 3> hasBlank_{};
};

}  // namespace mst
