#include "rigs/findings.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <utility>

#include "rigs/japanese_texts.h"
#include "rigs/names_in_layout.h"
#include "rigs/renamer_names.h"
#include "rigs/text.h"
#include "rigs/values.h"
#include "skelegon/item_names.h"
#include "skelegon/numbers.h"
#include "skelegon/setting_groups.h"

namespace standin::rigs {
namespace {

using skg::Slot;
using skg::SlotKind;

const Setting& settingOf(Slot slot) { return *settingOfTag(skg::SlotTagId(slot)); }

// What the conversion reads: the stored text, or the default.
std::string_view valueOf(const Skelegon& skelegon, const Setting& setting) {
  const std::string* const text = skelegon.stored(setting);
  return text != nullptr ? std::string_view(*text) : setting.defaultText;
}
int integerOf(const Skelegon& skelegon, Slot slot) { return skg::leadingInteger(valueOf(skelegon, settingOf(slot))); }
bool isOn(const Skelegon& skelegon, Slot slot) { return integerOf(skelegon, slot) != 0; }

// Whether one is stored that says something else than the default.
bool isChanged(const Skelegon& skelegon, Slot slot) {
  const Setting& setting = settingOf(slot);
  return !meansTheSame(setting, valueOf(skelegon, setting), setting.defaultText);
}

// Choices of which the conversion asks only whether they are 0.
bool isSentAsFlag(Slot slot) {
  return slot == Slot::BoneType || slot == Slot::Visibility ||
         std::any_of(skg::kLinkedItems.begin(), skg::kLinkedItems.end(),
                     [&](const skg::LinkedItem& item) { return item.visibility == slot; });
}

// Whether the conversion looks at the setting: at those of a linked item only where that has a name.
bool isLookedAt(const Skelegon& skelegon, Slot slot) {
  bool isOfItem = false;
  for (const skg::LinkedItem& item : skg::kLinkedItems) {
    if (slot != item.parent && slot != item.shape && slot != item.visibility && slot != item.colour) continue;
    if (!valueOf(skelegon, settingOf(item.name)).empty()) return true;
    isOfItem = true;
  }
  return !isOfItem;
}

// The range as it is stored, or a hundredth of it, as it is sent: "10–250 m".
std::string rangeShown(const Skelegon& skelegon, double factor) {
  const auto metres = [&](Slot slot) { return shortNumber(skg::leadingReal(valueOf(skelegon, settingOf(slot))) * factor); };
  return metres(Slot::RangeMin) + "–" + metres(Slot::RangeMax) + " m";
}

class FindingSearch {
 public:
  FindingSearch(const Rig& rig, const CodePage& codePage) : rig_(rig), codePage_(codePage), found_(namesFound(rig)) {
    for (const Layer& layer : rig.layers) items_.insert(layer.itemName);
    for (std::size_t i = 0; i < rig.skelegons.size(); ++i) {
      const Skelegon& skelegon = rig.skelegons[i];
      layersOfName_[skelegon.name].insert(skelegon.layer);
      for (const auto& [setting, text] : skelegon.storedSettings()) {
        const bool isMade = skg::linkedItemOf(setting->slot) != nullptr && !text->empty() && !skelegon.name.empty();
        if (isMade) nulls_.try_emplace(itemMeant(layerOf(skelegon), *text), i);
      }
    }
  }

  std::vector<Finding> all() {
    checkFile();
    for (std::size_t l = 0; l < rig_.layers.size(); ++l) {
      const Layer& layer = rig_.layers[l];
      if (layer.skelegons.empty()) continue;  // whatever it is called, nothing of it is converted
      checkLayer(l);
      for (const std::size_t i : layer.skelegons) checkSkelegon(i);
    }
    std::stable_partition(findings_.begin(), findings_.end(), isProblem);
    return std::move(findings_);
  }

 private:
  const Layer& layerOf(const Skelegon& skelegon) const { return rig_.layers[skelegon.layer]; }

  // Texts as they are shown. They are judged as they are stored.
  std::string readable(const std::string& text) const { return rig_.isInJapanese ? inUtf8(text) : text; }
  std::string quoted(const std::string& text) const { return inQuotes(readable(text)); }
  // The file's part of an item's name is UTF-8 in any case.
  std::string quotedItem(const Layer& layer, const std::string& text) const {
    return inQuotes(itemMeant(layer, readable(text)));
  }
  std::string quotedItem(const Layer& layer) const {
    if (!layer.itemName.ends_with(layer.name)) return inQuotes(layer.itemName);
    return inQuotes(layer.itemName.substr(0, layer.itemName.size() - layer.name.size()) + readable(layer.name));
  }

  Finding& add(FindingKind kind, std::string text = {}) {
    findings_.push_back({kind, {}, {}, nullptr, std::move(text), {}, {}});
    return findings_.back();
  }
  Finding& addFor(std::size_t skelegon, const Setting* setting, FindingKind kind, std::string text = {}) {
    Finding& finding = add(kind, std::move(text));
    finding.layer = rig_.skelegons[skelegon].layer;
    finding.skelegon = skelegon;
    finding.setting = setting;
    return finding;
  }

  void checkFile() {
    if (!skg::isObjectFileName(rig_.fileName)) add(FindingKind::FileExtension, inQuotes(rig_.fileName));
    if (rig_.pathLength > kLongestPath) {
      Finding& finding = add(FindingKind::PathTooLong);
      finding.number = std::to_string(rig_.pathLength);
      finding.other = std::to_string(kLongestPath);
    }
    if (!codePage_.holds(rig_.fileName)) {
      add(FindingKind::PathCodePage, inQuotes(rig_.fileName)).number = std::to_string(codePage_.number());
    }
    if (rig_.isInJapanese) add(FindingKind::TextCodePage).number = std::to_string(kJapaneseCodePage);
  }

  void checkLayer(std::size_t l) {
    const Layer& layer = rig_.layers[l];
    if (!matchesItsItem(rig_, layer)) add(FindingKind::LayerName, quotedItem(layer)).layer = l;
    const auto before = rig_.layers.begin() + static_cast<std::ptrdiff_t>(l);
    if (std::any_of(rig_.layers.begin(), before, [&](const Layer& other) { return other.itemName == layer.itemName; })) {
      add(FindingKind::LayerTwice, quoted(layer.name)).layer = l;
    }
    // Of the four settings of a layer each bone keeps its own falloff.
    for (const Slot slot : {Slot::UseBonesFromObject, Slot::BoneCalc, Slot::LimitBoneNum}) checkObjectWide(l, slot);
    checkCounters(l);
  }

  void checkCounters(std::size_t l) {
    const std::optional<SharedNames> shared = sharedByCounters(rig_, rig_.layers[l]);
    if (!shared) return;
    Finding& finding = add(FindingKind::CountersTwice, quoted(rig_.skelegons[shared->second].name));
    finding.layer = l;
    finding.other = quoted(rig_.skelegons[shared->first].name);
    finding.number = std::to_string(shared->skelegons);
  }

  // The object has one such value, and each bone sends that of its skelegon.
  void checkObjectWide(std::size_t l, Slot slot) {
    const Setting& setting = settingOf(slot);
    const Skelegon* last = nullptr;
    bool isOne = true;
    for (const std::size_t i : rig_.layers[l].skelegons) {
      const Skelegon& skelegon = rig_.skelegons[i];
      const std::string_view value = valueOf(skelegon, setting);
      // Without a name nothing is sent, nor is an empty name of an object.
      if (skelegon.name.empty() || (setting.kind == SlotKind::ObjectName && value.empty())) continue;
      isOne = isOne && (last == nullptr || meansTheSame(setting, valueOf(*last, setting), value));
      last = &skelegon;
    }
    if (isOne) return;
    Finding& finding = add(FindingKind::GroupDiffers, quoted(last->name));
    finding.layer = l;
    finding.setting = &setting;
  }

  void checkSkelegon(std::size_t i) {
    const Skelegon& skelegon = rig_.skelegons[i];
    checkName(i);
    if (!skelegon.name.empty()) checkSettings(i);  // without a name nothing is sent
    for (const PolygonTag& tag : skelegon.tags) {
      if (isUnknownSlot(tag.type)) addFor(i, nullptr, FindingKind::UnknownSlot, quoted(tag.text)).other = tagName(tag.type);
    }
    checkOddTags(i);
  }

  void checkSettings(std::size_t i) {
    for (const auto& [setting, text] : rig_.skelegons[i].storedSettings()) checkValue(i, *setting, *text);
    checkTogether(i);
    checkColourStored(i);
  }

  // Settings that are sound each by itself.
  void checkTogether(std::size_t i) {
    const Skelegon& skelegon = rig_.skelegons[i];
    checkWeights(i);
    if (isOn(skelegon, Slot::Twist) && !isOn(skelegon, Slot::BoneType)) {
      addFor(i, &settingOf(Slot::Twist), FindingKind::TwistWithoutJoint);
    }
    if (isOn(skelegon, Slot::LimitedRange)) {
      addFor(i, &settingOf(Slot::LimitedRange), FindingKind::LimitedRange, rangeShown(skelegon, 1)).other =
          rangeShown(skelegon, 0.01);
    }
    checkScaleFollow(i);
  }

  void checkWeights(std::size_t i) {
    const Skelegon& skelegon = rig_.skelegons[i];
    const bool hasMap = !valueOf(skelegon, settingOf(Slot::WeightMap)).empty();
    const bool isOnly = isOn(skelegon, Slot::WeightMapOnly);
    const bool isNormal = isOn(skelegon, Slot::WeightNormalization);
    if (hasMap && isOnly) {
      // Both switches go out under one name, which switches normalization on as well.
      addFor(i, &settingOf(Slot::WeightMapOnly), isNormal ? FindingKind::WeightOnlyLate : FindingKind::WeightOnlyLost);
      return;
    }
    if (isOnly) addFor(i, &settingOf(Slot::WeightMapOnly), FindingKind::WeightNotSent);
    if (isNormal) addFor(i, &settingOf(Slot::WeightNormalization), FindingKind::WeightNotSent);
  }

  // What the Z scale follows is sent by the word of the Y scale's controller.
  void checkScaleFollow(std::size_t i) {
    constexpr int kSameAsItem = 6;
    const Skelegon& skelegon = rig_.skelegons[i];
    const bool isSent = integerOf(skelegon, Slot::YScaleController) == kSameAsItem;
    const bool isMeant = integerOf(skelegon, Slot::ZScaleController) == kSameAsItem;
    const bool isStored = isChanged(skelegon, Slot::ZScaleFollow) || isChanged(skelegon, Slot::ZScaleFactor) ||
                          isChanged(skelegon, Slot::ZScaleOffset);
    if (isMeant && !isSent) addFor(i, &settingOf(Slot::ZScaleFollow), FindingKind::ZFollowLost);
    if (isSent && !isMeant && isStored) addFor(i, &settingOf(Slot::ZScaleFollow), FindingKind::ZFollowSent);
  }

  // The bone's colour alone has no default.
  void checkColourStored(std::size_t i) {
    const Skelegon& skelegon = rig_.skelegons[i];
    const Setting& colour = settingOf(Slot::Colour);
    const bool isStored =
        skelegon.stored(colour) != nullptr || skelegon.stored(*settingOfTag(skg::kColourCopyTag)) != nullptr;
    if (!isStored) addFor(i, &colour, FindingKind::ColourMissing);
  }

  // Only where it makes a difference to the conversion.
  void checkOddTags(std::size_t i) {
    const Skelegon& skelegon = rig_.skelegons[i];
    const auto isRead = [](std::uint32_t type) { return type == lw::kTagBone || settingOfTag(type) != nullptr; };
    for (const RepeatedTag& tag : skelegon.repeated) {
      if (!isRead(tag.type)) continue;
      Finding& finding = addFor(i, settingOfTag(tag.type), FindingKind::TagRepeated, quoted(tag.first));
      finding.other = quoted(tag.last);
      finding.number = std::to_string(tag.times);
    }
    for (const TextlessTag& tag : skelegon.textless) {
      if (!isRead(tag.type)) continue;
      addFor(i, settingOfTag(tag.type), FindingKind::TextMissing).number = std::to_string(tag.text);
    }
  }

  void checkName(std::size_t i) {
    const Skelegon& skelegon = rig_.skelegons[i];
    if (skelegon.name.empty()) {
      addFor(i, nullptr, FindingKind::NoName);
      return;
    }
    checkLength(i, nullptr, skelegon.name);
    // Told once for all that bear it.
    if (skelegon.namesakes > 1 && skelegon.number == 0) {
      addFor(i, nullptr, FindingKind::NameTwice).number = std::to_string(skelegon.namesakes);
    }
    const std::size_t first = *layersOfName_[skelegon.name].begin();
    if (first != skelegon.layer && skelegon.number == 0) {
      addFor(i, nullptr, FindingKind::NameInTwoLayers, quoted(rig_.layers[first].name));
    }
    if (items_.count(skelegon.name) != 0) addFor(i, nullptr, FindingKind::NameOfItem);
  }

  void checkLength(std::size_t i, const Setting* setting, const std::string& text) {
    if (text.size() <= kLongestFieldText) return;
    Finding& finding = addFor(i, setting, FindingKind::NameTooLong);
    finding.number = std::to_string(text.size());
    finding.other = std::to_string(kLongestFieldText);
  }

  void checkValue(std::size_t i, const Setting& setting, const std::string& text) {
    if (!isNumeric(setting.kind)) checkLength(i, &setting, text);
    if (!isLookedAt(rig_.skelegons[i], setting.slot)) return;
    if (isNumeric(setting.kind)) return checkNumber(i, setting, text);
    if (setting.kind == SlotKind::Colour) return checkColour(i, setting, text);
    if (text.empty()) return;
    if (setting.slot == Slot::WeightMap) checkCommand(i, setting, "BoneWeightMapName", text);
    if (skg::linkedItemOf(setting.slot) != nullptr) checkHelper(i, setting, text);
    if (skg::isParentName(setting.slot)) checkParent(i, setting, text);
    if (setting.slot == Slot::UseBonesFromObject) checkBonesFrom(i, setting, text);
  }

  void checkNumber(std::size_t i, const Setting& setting, const std::string& text) {
    const Reading reading = readingOf(setting.kind, text);
    if (reading == Reading::Nothing) {
      addFor(i, &setting, FindingKind::NumberUnreadable, quoted(text));
      return;
    }
    const bool isWhole =
        setting.kind == SlotKind::Choice || setting.kind == SlotKind::Flag || setting.kind == SlotKind::Integer;
    if (reading == Reading::Beginning) {
      addFor(i, &setting, FindingKind::NumberPartly, quoted(text)).number =
          isWhole ? std::to_string(skg::leadingInteger(text)) : shortNumber(skg::leadingReal(text));
    }
    if (isInList(setting, text)) return;
    const bool isFlag = setting.kind == SlotKind::Flag || isSentAsFlag(setting.slot);
    addFor(i, &setting, isFlag ? FindingKind::FlagOutside : FindingKind::ChoiceOutside,
           std::to_string(skg::leadingInteger(text)))
        .number = std::to_string(setting.englishChoices.size());
  }

  void checkColour(std::size_t i, const Setting& setting, const std::string& text) {
    const bool isCopy = setting.tag == skg::kColourCopyTag;
    // Where both are stored, the copy is not looked at.
    if (isCopy && rig_.skelegons[i].stored(*settingOfTag(skg::SlotTagId(Slot::Colour))) != nullptr) return;
    if (text.empty()) {
      addFor(i, &setting, FindingKind::ColourEmpty);
    } else if (std::find(skg::BoneColourNames.begin(), skg::BoneColourNames.end(), text) == skg::BoneColourNames.end()) {
      addFor(i, &setting, FindingKind::ColourUnknown, quoted(text));
    }
  }

  void checkHelper(std::size_t i, const Setting& setting, const std::string& text) {
    const std::string item = itemMeant(layerOf(rig_.skelegons[i]), text);
    if (found_.count(item) != 0) return;
    addFor(i, &setting, FindingKind::BecomesNull, quotedItem(layerOf(rig_.skelegons[i]), text));
    checkCommand(i, setting, "AddNull", text);
  }

  // Whether the file has the item by the time it is looked up: nulls are made in the order of the skelegons.
  bool isThere(const std::string& item, std::size_t nullsMade) const {
    const auto null = nulls_.find(item);
    return found_.count(item) != 0 || (null != nulls_.end() && null->second < nullsMade);
  }

  // Parents are set when all nulls of the skelegon are made.
  void checkParent(std::size_t i, const Setting& setting, const std::string& text) {
    const Layer& layer = layerOf(rig_.skelegons[i]);
    const std::string item = itemMeant(layer, text);
    if (isThere(item, i + 1)) return;
    const bool isLate = nulls_.count(item) != 0;
    addFor(i, &setting, isLate ? FindingKind::ParentLate : FindingKind::ParentMissing, quotedItem(layer, text));
  }

  // The object is looked up first of all.
  void checkBonesFrom(std::size_t i, const Setting& setting, const std::string& text) {
    const Layer& layer = layerOf(rig_.skelegons[i]);
    if (!isThere(itemMeant(layer, text), i)) {
      addFor(i, &setting, FindingKind::BonesFromMissing, quotedItem(layer, text));
    }
  }

  void checkCommand(std::size_t i, const Setting& setting, const std::string& command, const std::string& text) {
    const Layer& layer = layerOf(rig_.skelegons[i]);
    const std::string sent = itemMeant(layer, text);
    const std::size_t bytes = command.size() + 1 + sent.size();
    if (bytes > kLongestCommand) {
      Finding& finding = addFor(i, &setting, FindingKind::CommandTooLong);
      finding.other = command;
      finding.number = std::to_string(bytes);
    } else if (!arrives(sent)) {
      Finding& finding = addFor(i, &setting, FindingKind::CommandCodePage, quotedItem(layer, text));
      finding.other = command;
      finding.number = std::to_string(codePage_.number());
    }
  }

  // What is no UTF-8 is sent as it stands, and so is what it was where that code page is Layout's.
  bool arrives(const std::string& text) const {
    const bool isAsItStands = rig_.isInJapanese && codePage_.number() == kJapaneseCodePage && !isUtf8(text);
    return isAsItStands || codePage_.holds(text);
  }

  const Rig& rig_;
  const CodePage& codePage_;
  std::set<std::string> found_;
  std::set<std::string> items_;
  std::map<std::string, std::size_t> nulls_;  // made for the helper items of the file: the first skelegon of each
  std::map<std::string, std::set<std::size_t>> layersOfName_;
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> findingsOf(const Rig& rig, const CodePage& codePage) { return FindingSearch(rig, codePage).all(); }

}  // namespace standin::rigs
