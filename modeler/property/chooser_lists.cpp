#include "modeler/property/chooser_lists.h"

#include <utility>

namespace mst {
namespace {

constexpr const char* kNone = "(none)";
constexpr const char* kFilePrefix = "[file]:";

std::size_t indexOf(ChooserList list) { return static_cast<std::size_t>(list); }

}  // namespace

ChooserTexts weightMapChoices(const ChooserTexts& mapNames) {
  ChooserTexts texts(1, kNone);
  texts.insert(texts.end(), mapNames.begin(), mapNames.end());
  return texts;
}

ChooserTexts itemChoices(const ChooserTexts& layerNames, const ChooserTexts& skelegonNames) {
  ChooserTexts texts(1, kNone);
  for (const std::string& name : layerNames) texts.push_back(kFilePrefix + name);
  texts.insert(texts.end(), skelegonNames.begin(), skelegonNames.end());
  return texts;
}

void CChooserLists::set(ChooserList list, const ChooserTexts& texts) {
  Names names;
  names.reserve(texts.size());
  for (const std::string& text : texts) names.push_back(texts_.insert(text).first->c_str());
  lists_[indexOf(list)] = std::move(names);
}

void CChooserLists::clearLists() {
  for (Names& names : lists_) names.clear();
}

int CChooserLists::count(ChooserList list) const {
  return static_cast<int>(lists_[indexOf(list)].size()) + (hasBlank_[indexOf(list)] ? 1 : 0);
}

const char* CChooserLists::name(ChooserList list, int index) const {
  const Names& names = lists_[indexOf(list)];
  return index >= 0 && std::cmp_less(index, names.size()) ? names[static_cast<std::size_t>(index)] : "";
}

std::string CChooserLists::chosen(ChooserList list, int index) const { return index == 0 ? "" : name(list, index); }

}  // namespace mst
