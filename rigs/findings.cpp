#include "rigs/findings.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <utility>

#include "rigs/names_in_layout.h"
#include "rigs/text.h"
#include "rigs/values.h"
#include "skelegon/item_names.h"
#include "skelegon/numbers.h"
#include "skelegon/setting_groups.h"
#include "skelegon/table_order.h"

namespace standin::rigs {
namespace {

using skg::Slot;
using skg::SlotKind;

constexpr std::array<FindingRow, kFindingKinds> kRows = {{
    // clang-format off
    {FindingKind::FileExtension, "file-extension",
     "the file name {text} does not end in .lwo in small letters: the conversion will pass the object over",
     "ファイル名 {text} の末尾が小文字の .lwo ではありません: 変換はこのオブジェクトを飛ばします"},
    {FindingKind::LayerName, "layer-name",
     "the conversion does not find this layer by the item's name {text}: its bones will get no settings",
     "アイテム名 {text} からこのレイヤーを見つけられません: ボーンに設定が付きません"},
    {FindingKind::LayerTwice, "layer-twice",
     "another layer before it has the same name {text}: the settings of that layer's skelegons will be used for this one too",
     "同じ名前 {text} のレイヤーが前にあります: このレイヤーにもそちらのスケルゴンの設定が使われます"},
    {FindingKind::NoName, "no-name",
     "has no name: its bone will get no settings",
     "名前がありません: ボーンに設定が付きません"},
    {FindingKind::NameTwice, "name-twice",
     "{number} skelegons of this layer bear this name: Layout will number their bones, and the settings will reach none or the wrong one",
     "このレイヤーの {number} 個のスケルゴンが同じ名前です: レイアウトはボーンに番号を付けるので、設定は付かないか別のボーンに付きます"},
    {FindingKind::NameInTwoLayers, "name-in-two-layers",
     "a skelegon of the layer {text} bears this name too: the settings of both will go to the first bone of that name",
     "レイヤー {text} のスケルゴンも同じ名前です: 両方の設定が、その名前の最初のボーンに付きます"},
    {FindingKind::NameOfItem, "name-of-item",
     "the object item bears this name too: the settings will be sent to the object, not to the bone",
     "オブジェクトのアイテムも同じ名前です: 設定はボーンではなくオブジェクトに送られます"},
    {FindingKind::BecomesNull, "becomes-null",
     "nothing in the file bears the name {text}: it will become a null, unless the scene has such an item",
     "ファイルに {text} という名前のものがありません: シーンに無ければヌルになります"},
    {FindingKind::ParentMissing, "parent-missing",
     "nothing in the file bears the name {text}: it will not be parented, unless the scene has such an item",
     "ファイルに {text} という名前のものがありません: シーンに無ければ、親は設定されません"},
    {FindingKind::BonesFromMissing, "bones-from-missing",
     "nothing in the file bears the name {text}: unless the scene has such an item, this bone and all after it in the layer will get no settings",
     "ファイルに {text} という名前のものがありません: シーンに無ければ、このボーンとレイヤー内のそれ以降のボーンに設定が付きません"},
    {FindingKind::ChoiceOutside, "choice-outside",
     "{text} is none of the {number} choices, which count from 0: Layout will be sent a number that it does not know",
     "{text} は 0 から数える {number} 個の選択肢にありません: レイアウトの知らない番号が送られます"},
    {FindingKind::FlagOutside, "flag-outside",
     "{text} is neither 0 nor 1: it will count as on",
     "{text} は 0 でも 1 でもありません: オンとして扱われます"},
    {FindingKind::ColourUnknown, "colour-unknown",
     "{text} is no colour of the list: the item will become orange",
     "{text} は色の一覧にありません: アイテムはオレンジになります"},
    {FindingKind::ColourEmpty, "colour-empty",
     "the colour is stored as an empty text: the bone will become orange",
     "色が空のテキストで保存されています: ボーンはオレンジになります"},
    {FindingKind::NumberUnreadable, "number-unreadable",
     "{text} does not begin with a number: it will count as 0",
     "{text} は数で始まっていません: 0 として扱われます"},
    {FindingKind::NumberPartly, "number-partly",
     "{text} is not a number of this kind as a whole: it will count as {number}",
     "{text} の全体はこの種類の数ではありません: {number} として扱われます"},
    {FindingKind::CommandTooLong, "command-too-long",
     "the command \"{other}\" with this text would have {number} bytes, more than can be sent: the whole conversion will end here",
     "このテキストを付けたコマンド「{other}」は {number} バイトになり、送れません: 変換全体がここで終わります"},
    {FindingKind::PathTooLong, "path-too-long",
     "the whole path of the file has {number} characters, more than the {other} that can be opened: the conversion will read the file that it read before instead, and this object will get no settings or those of that one",
     "ファイルのパス全体が {number} 文字あり、開ける {other} 文字を超えています: 変換は代わりに前に読んだファイルを読み、このオブジェクトには設定が付かないか、そのファイルの設定が付きます"},
    {FindingKind::PathCodePage, "path-code-page",
     "the file name {text} has characters that code page {number} lacks: the file will not be found, and the conversion will end here",
     "ファイル名 {text} にコードページ {number} に無い文字があります: ファイルが見つからず、変換はここで終わります"},
    {FindingKind::CommandCodePage, "command-code-page",
     "{text} has characters that code page {number} lacks: Layout will read another name in the command \"{other}\"",
     "{text} にコードページ {number} に無い文字があります: コマンド「{other}」では別の名前になります"},
    {FindingKind::UnknownSlot, "unknown-slot",
     "the tag {other} with the text {text} is of no setting: nothing will come of it",
     "タグ {other}（テキスト {text}）はどの設定のものでもありません: 何にも使われません"},
    {FindingKind::TagRepeated, "tag-repeated",
     "is stored {number} times, first with the text {text}, last with {other}: the conversion will take the first, Modeler perhaps the last",
     "{number} 回保存されていて、最初のテキストは {text}、最後は {other} です: 変換は最初のものを使い、モデラーは最後のものを使うかもしれません"},
    {FindingKind::TextMissing, "text-missing",
     "names the text {number}, which the file does not have: it will count as not stored, and other programs may refuse the file",
     "ファイルにないテキスト {number} を指しています: 保存されていないものとして扱われ、ほかのプログラムはファイルを断るかもしれません"},
    // clang-format on
}};

static_assert(skg::standInOrder(kRows, &FindingRow::kind));
static_assert(static_cast<std::size_t>(FindingKind::TextMissing) + 1 == kFindingKinds);

class FindingSearch {
 public:
  FindingSearch(const Rig& rig, const CodePage& codePage) : rig_(rig), codePage_(codePage), found_(namesFound(rig)) {
    for (const Layer& layer : rig.layers) items_.insert(layer.itemName);
    for (const Skelegon& skelegon : rig.skelegons) {
      layersOfName_[skelegon.name].insert(skelegon.layer);
      for (const Setting& setting : allSettings()) {
        const std::string* const text = skg::linkedItemOf(setting.slot) != nullptr ? skelegon.stored(setting) : nullptr;
        if (text != nullptr && !text->empty()) nulls_.insert(itemMeant(layerOf(skelegon), *text));
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
    // What linked names become is often meant so: behind what is not.
    const auto isUnmeant = [](const Finding& finding) { return finding.kind != FindingKind::BecomesNull; };
    std::stable_partition(findings_.begin(), findings_.end(), isUnmeant);
    return std::move(findings_);
  }

 private:
  const Layer& layerOf(const Skelegon& skelegon) const { return rig_.layers[skelegon.layer]; }

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
  }

  void checkLayer(std::size_t l) {
    const Layer& layer = rig_.layers[l];
    if (!matchesItsItem(rig_, layer)) add(FindingKind::LayerName, inQuotes(layer.itemName)).layer = l;
    const auto before = rig_.layers.begin() + static_cast<std::ptrdiff_t>(l);
    if (std::any_of(rig_.layers.begin(), before, [&](const Layer& other) { return other.itemName == layer.itemName; })) {
      add(FindingKind::LayerTwice, inQuotes(layer.name)).layer = l;
    }
  }

  void checkSkelegon(std::size_t i) {
    const Skelegon& skelegon = rig_.skelegons[i];
    checkName(i);
    for (const Setting& setting : allSettings()) {
      const std::string* const text = skelegon.stored(setting);
      if (text != nullptr) checkValue(i, setting, *text);
    }
    for (const PolygonTag& tag : skelegon.tags) {
      if (isUnknownSlot(tag.type))
        addFor(i, nullptr, FindingKind::UnknownSlot, inQuotes(tag.text)).other = tagName(tag.type);
    }
    checkOddTags(i);
  }

  // Only where it makes a difference to the conversion.
  void checkOddTags(std::size_t i) {
    const Skelegon& skelegon = rig_.skelegons[i];
    const auto isRead = [](std::uint32_t type) { return type == lw::kTagBone || settingOfTag(type) != nullptr; };
    for (const RepeatedTag& tag : skelegon.repeated) {
      if (!isRead(tag.type)) continue;
      Finding& finding = addFor(i, settingOfTag(tag.type), FindingKind::TagRepeated, inQuotes(tag.first));
      finding.other = inQuotes(tag.last);
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
    // Told once for all that bear it.
    if (skelegon.namesakes > 1 && skelegon.number == 0) {
      addFor(i, nullptr, FindingKind::NameTwice).number = std::to_string(skelegon.namesakes);
    }
    const std::size_t first = *layersOfName_[skelegon.name].begin();
    if (first != skelegon.layer && skelegon.number == 0) {
      addFor(i, nullptr, FindingKind::NameInTwoLayers, inQuotes(rig_.layers[first].name));
    }
    if (items_.count(skelegon.name) != 0) addFor(i, nullptr, FindingKind::NameOfItem);
  }

  void checkValue(std::size_t i, const Setting& setting, const std::string& text) {
    if (isNumeric(setting.kind)) return checkNumber(i, setting, text);
    if (setting.kind == SlotKind::Colour) return checkColour(i, setting, text);
    if (text.empty()) return;
    if (setting.slot == Slot::WeightMap) checkCommand(i, setting, "BoneWeightMapName", text);
    if (skg::linkedItemOf(setting.slot) != nullptr) checkHelper(i, setting, text);
    if (skg::isParentName(setting.slot)) checkLookUp(i, setting, text, FindingKind::ParentMissing);
    if (setting.slot == Slot::UseBonesFromObject) checkLookUp(i, setting, text, FindingKind::BonesFromMissing);
  }

  void checkNumber(std::size_t i, const Setting& setting, const std::string& text) {
    const Reading reading = readingOf(setting.kind, text);
    if (reading == Reading::Nothing) {
      addFor(i, &setting, FindingKind::NumberUnreadable, inQuotes(text));
      return;
    }
    const bool isWhole =
        setting.kind == SlotKind::Choice || setting.kind == SlotKind::Flag || setting.kind == SlotKind::Integer;
    if (reading == Reading::Beginning) {
      addFor(i, &setting, FindingKind::NumberPartly, inQuotes(text)).number =
          isWhole ? std::to_string(skg::leadingInteger(text)) : shortNumber(skg::leadingReal(text));
    }
    if (isInList(setting, text)) return;
    const bool isFlag = setting.kind == SlotKind::Flag;
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
      addFor(i, &setting, FindingKind::ColourUnknown, inQuotes(text));
    }
  }

  void checkHelper(std::size_t i, const Setting& setting, const std::string& text) {
    const std::string item = itemMeant(layerOf(rig_.skelegons[i]), text);
    if (found_.count(item) != 0) return;
    addFor(i, &setting, FindingKind::BecomesNull, inQuotes(item));
    checkCommand(i, setting, "AddNull", item);
  }

  void checkLookUp(std::size_t i, const Setting& setting, const std::string& text, FindingKind kind) {
    const std::string item = itemMeant(layerOf(rig_.skelegons[i]), text);
    if (found_.count(item) == 0 && nulls_.count(item) == 0) addFor(i, &setting, kind, inQuotes(item));
  }

  void checkCommand(std::size_t i, const Setting& setting, const std::string& command, const std::string& text) {
    const std::string sent = itemMeant(layerOf(rig_.skelegons[i]), text);
    const std::size_t bytes = command.size() + 1 + sent.size();
    if (bytes > kLongestCommand) {
      Finding& finding = addFor(i, &setting, FindingKind::CommandTooLong);
      finding.other = command;
      finding.number = std::to_string(bytes);
    } else if (!codePage_.holds(sent)) {
      Finding& finding = addFor(i, &setting, FindingKind::CommandCodePage, inQuotes(sent));
      finding.other = command;
      finding.number = std::to_string(codePage_.number());
    }
  }

  const Rig& rig_;
  const CodePage& codePage_;
  std::set<std::string> found_;
  std::set<std::string> items_;
  std::set<std::string> nulls_;  // made for the helper items of the file
  std::map<std::string, std::set<std::size_t>> layersOfName_;
  std::vector<Finding> findings_;
};

std::string filled(std::string_view pattern, const Finding& finding) {
  const std::pair<std::string_view, const std::string&> parts[] = {
      {"{text}", finding.text}, {"{other}", finding.other}, {"{number}", finding.number}};
  std::string sentence;
  while (!pattern.empty()) {
    const auto part =
        std::find_if(std::begin(parts), std::end(parts), [&](const auto& p) { return pattern.starts_with(p.first); });
    const bool isPart = part != std::end(parts);
    sentence.append(isPart ? std::string_view(part->second) : pattern.substr(0, 1));
    pattern.remove_prefix(isPart ? part->first.size() : 1);
  }
  return sentence;
}

}  // namespace

const std::array<FindingRow, kFindingKinds>& findingTable() { return kRows; }

std::vector<Finding> findingsOf(const Rig& rig, const CodePage& codePage) { return FindingSearch(rig, codePage).all(); }

std::string placeOf(const Rig& rig, const Finding& finding, Language language) {
  if (!finding.layer) return {};
  const Layer& layer = rig.layers[*finding.layer];
  const bool japanese = language == Language::Japanese;
  std::string place = printable(layer.name);
  if (place.empty()) place = (japanese ? "レイヤー " : "layer ") + std::to_string(layer.number);
  if (finding.skelegon) place += " / " + nameShown(rig.skelegons[*finding.skelegon], language);
  if (finding.setting != nullptr) place += " / " + finding.setting->name(language);
  // These are about a stored text; where it is that of no setting, it is the skelegon's name.
  const bool isOfAText = finding.kind == FindingKind::TagRepeated || finding.kind == FindingKind::TextMissing;
  if (isOfAText && finding.setting == nullptr) place += japanese ? " / 名前" : " / name";
  return place;
}

std::string sentenceOf(const Finding& finding, Language language) {
  return filled(kRows[static_cast<std::size_t>(finding.kind)].in(language), finding);
}

}  // namespace standin::rigs
