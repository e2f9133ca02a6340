#include "rigs/settings.h"
#include "skelegon/slot_table.h"

#include <algorithm>
#include <map>
#include <optional>

#include "modeler/property/property_controls.h"

namespace standin::rigs {
namespace {

using skg::Slot;
using skg::SlotKind;

// Japanese words for what stands beside another control in the panel and so has no label of its own.
struct UnlabelledRow {
  std::string_view end;  // of the English name
  const char* japanese;
};
constexpr UnlabelledRow kUnlabelled[] = {
    {" amount", "量"},
    {" blend method", "ブレンド方法"},
    {" blend amount", "ブレンド量"},
    {"IK initial state", "IK初期状態"},
};
constexpr const char* kOffset = "オフセット";
constexpr const char* kOfTheBone = "ボーン";

std::string_view labelOf(Slot slot, Language language) {
  const std::optional<std::size_t> control = mst::controlOf(slot);
  return control ? texts::propertyLabels(language)[*control] : "";
}

// How many settings show this Japanese label.
std::size_t labelCount(std::string_view label) {
  const auto shows = [&](const skg::SlotRow& row) { return labelOf(row.slot, Language::Japanese) == label; };
  return static_cast<std::size_t>(std::count_if(skg::kSlotTable.begin(), skg::kSlotTable.end(), shows));
}

// The Japanese label of the setting that an English name means: "X Pos Limits", or the beginning of one, "X Position".
std::string ownerLabel(std::string_view english) {
  for (const bool whole : {true, false}) {
    for (const skg::SlotRow& row : skg::kSlotTable) {
      const std::string_view name = row.setting;
      const bool begins = name.starts_with(english) && name.size() > english.size() && name[english.size()] == ' ';
      if (whole ? name == english : begins) {
        const std::string_view label = labelOf(row.slot, Language::Japanese);
        if (!label.empty()) return std::string(label);
      }
    }
  }
  return kOfTheBone;
}

std::string japaneseName(const skg::SlotRow& row) {
  std::string label(labelOf(row.slot, Language::Japanese));
  if (!label.empty() && labelCount(label) == 1) return label;
  const std::string_view english = row.setting;
  // "Min (X Pos Limits)": the label is that of several settings, the parentheses say whose it is here.
  if (const std::size_t open = english.find(" ("); open != std::string_view::npos) {
    const std::string_view owner = english.substr(open + 2, english.size() - open - 3);
    return (label.empty() ? kOffset : label) + " (" + ownerLabel(owner) + ")";
  }
  for (const UnlabelledRow& unlabelled : kUnlabelled) {
    if (english == unlabelled.end) return unlabelled.japanese;
    // The longer end stands after the shorter one: "Position blend amount" is no amount of "Position blend".
    const bool blends = english.find(" blend ") != std::string_view::npos;
    if (!english.ends_with(unlabelled.end) || blends != unlabelled.end.starts_with(" blend ")) continue;
    const std::string owner(english.substr(0, english.size() - unlabelled.end.size()));
    return unlabelled.japanese + (" (" + ownerLabel(blends ? owner + " Item" : owner) + ")");
  }
  return label;
}

// The entries of the panel's list, without the code that makes the host draw a swatch.
std::vector<std::string> choicesOf(const skg::SlotRow& row, Language language) {
  if (!row.choices) return {};
  const auto list = static_cast<std::size_t>(*row.choices);
  std::vector<std::string> choices;
  for (texts::Choices entry = texts::propertyChoices()[list].in(language); *entry != nullptr; ++entry) {
    const std::string text = *entry;
    choices.push_back(text.starts_with('\x03') ? text.substr(text.find(')') + 1) : text);
  }
  return choices;
}

Setting settingOf(const skg::SlotRow& row) {
  return {row.slot,
          skg::SlotTagId(row.slot),
          row.kind,
          row.defaultText,
          row.setting,
          japaneseName(row),
          choicesOf(row, Language::English),
          choicesOf(row, Language::Japanese)};
}

std::vector<Setting> makeSettings() {
  std::vector<Setting> all;
  for (const skg::SlotRow& row : skg::kSlotTable) {
    if (row.kind == SlotKind::Reserved || row.slot == Slot::Name) continue;
    all.push_back(settingOf(row));
    if (row.slot != Slot::Colour) continue;
    Setting copy = all.back();
    copy.tag = skg::kColourCopyTag;
    copy.english += " as chosen";
    copy.japanese += " 選択時";
    all.push_back(std::move(copy));
  }
  return all;
}

}  // namespace

const std::vector<Setting>& allSettings() {
  static const std::vector<Setting> all = makeSettings();
  return all;
}

const Setting* settingOfTag(std::uint32_t tag) {
  static const auto byTag = [] {
    std::map<std::uint32_t, const Setting*> map;
    for (const Setting& setting : allSettings()) map.emplace(setting.tag, &setting);
    return map;
  }();
  const auto found = byTag.find(tag);
  return found == byTag.end() ? nullptr : found->second;
}

const Setting* settingNamed(std::string_view english) {
  const auto& all = allSettings();
  const auto found = std::find_if(all.begin(), all.end(), [&](const Setting& s) { return s.english == english; });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace standin::rigs
