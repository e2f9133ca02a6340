#include "rigs/report.h"

#include <algorithm>
#include <utility>

#include "rigs/japanese_texts.h"
#include "rigs/json_text.h"
#include "rigs/text.h"
#include "rigs/tree.h"
#include "rigs/values.h"

namespace standin::rigs {
namespace {

// Deeper skelegons are not moved in any further: a chain of thousands would fill the screen with lines.
constexpr std::size_t kDeepestShown = 40;

std::string plural(std::size_t count, const char* noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

// The bone's colour alone has no default: Layout takes the first of its two places that is stored.
bool storesColour(const Skelegon& skelegon) {
  return std::any_of(skelegon.tags.begin(), skelegon.tags.end(), [](const PolygonTag& tag) {
    const Setting* const setting = settingOfTag(tag.type);
    return setting != nullptr && setting->slot == skg::Slot::Colour;
  });
}

bool isAskedFor(const Skelegon& skelegon, const ReportOptions& options) {
  return options.skelegon.empty() || skelegon.name == options.skelegon;
}

// A layer's skelegons as a tree of lines, or those alone that are asked for.
class Tree {
 public:
  Tree(const Rig& rig, const Layer& layer, const ReportOptions& options) : rig_(rig), options_(options) {
    if (options.skelegon.empty()) {
      for (const TreePlace& place : treePlaces(rig, layer)) write(place);
      return;
    }
    for (const std::size_t i : layer.skelegons) {
      if (isAskedFor(rig.skelegons[i], options)) write(rig.skelegons[i], kTop, kTop, false);
    }
  }

  std::string text() { return std::move(text_); }

 private:
  static constexpr const char* kTop = "  ";

  void write(const TreePlace& place) {
    const Skelegon& skelegon = rig_.skelegons[place.skelegon];
    indents_.resize(std::min(place.depth, kDeepestShown) + 1);
    const std::string above = place.depth == 0 ? kTop : indents_[std::min(place.depth - 1, kDeepestShown)];
    const std::string branch = place.depth == 0 ? kTop : above + (place.isLast ? "└─ " : "├─ ");
    if (place.depth <= kDeepestShown) {
      indents_.back() = place.depth == 0 ? kTop : above + (place.isLast ? "   " : "│  ");
    }
    write(skelegon, branch, indents_.back(), !skelegon.children.empty());
  }

  void write(const Skelegon& skelegon, const std::string& branch, const std::string& indent, bool hasChildren) {
    text_ += branch + nameShown(skelegon, options_.language) + '\n';
    const char* const line = hasChildren ? "│  " : "   ";
    for (const ShownSetting& setting : shownSettings(skelegon, options_)) {
      text_.append(indent).append(line).append(setting.name).append(": ").append(setting.value).append(1, '\n');
    }
  }

  const Rig& rig_;
  const ReportOptions& options_;
  std::vector<std::string> indents_;  // of the lines below a name, by depth
  std::string text_;
};

Json optionalText(const std::optional<std::string>& text) { return text ? Json(*text) : Json(); }

struct KindRow {
  DifferenceKind kind;
  const char* id;
  const char* english;
  const char* japanese;
};
constexpr KindRow kKinds[] = {
    {DifferenceKind::LayerAdded, "layer-added", "layer added", "レイヤー追加"},
    {DifferenceKind::LayerRemoved, "layer-removed", "layer removed", "レイヤー削除"},
    {DifferenceKind::LayerRenamed, "layer-renamed", "layer renamed", "レイヤー改名"},
    {DifferenceKind::LayerNumber, "layer-number", "layer number", "レイヤー番号"},
    {DifferenceKind::Order, "order", "order of the skelegons", "スケルゴンの順序"},
    {DifferenceKind::Added, "added", "added", "追加"},
    {DifferenceKind::Removed, "removed", "removed", "削除"},
    {DifferenceKind::Renamed, "renamed", "renamed", "改名"},
    {DifferenceKind::Moved, "moved", "moved", "移動"},
    {DifferenceKind::Parent, "parent", "parent", "親"},
    {DifferenceKind::Setting, "setting", "", ""},
    {DifferenceKind::Tag, "tag", "tag", "タグ"},
};

const KindRow& rowOf(DifferenceKind kind) {
  return *std::find_if(std::begin(kKinds), std::end(kKinds), [&](const KindRow& row) { return row.kind == kind; });
}

std::string differenceLine(const Difference& difference, Language language) {
  const std::string line = labelOf(difference, language);
  if (!difference.from && !difference.to) return line;
  const std::string none = language == Language::Japanese ? "(なし)" : "(none)";
  return line + ": " + difference.from.value_or(none) + " -> " + difference.to.value_or(none);
}

Json skelegonJson(const Rig& rig, std::size_t index, const ReportOptions& options) {
  const Skelegon& skelegon = rig.skelegons[index];
  Json json{{"name", skelegon.name}};
  if (skelegon.namesakes > 1) json["nth"] = skelegon.number + 1;
  json["parent"] = skelegon.parent ? Json(nameShown(rig.skelegons[*skelegon.parent])) : Json();
  Json settings = Json::array();
  for (const Setting& setting : allSettings()) {
    const std::string* const text = skelegon.stored(setting);
    if (text == nullptr && (!options.all || setting.slot == skg::Slot::Colour)) continue;
    if (text != nullptr && !options.all && meansTheSame(setting, *text, setting.defaultText)) continue;
    const std::string value = text == nullptr ? std::string(setting.defaultText) : *text;
    settings.push_back(Json{{"name", setting.name(options.language)},
                            {"tag", tagName(setting.tag)},
                            {"text", value},
                            {"shown", shown(setting, value, options.language)},
                            {"stored", text != nullptr}});
  }
  json["settings"] = std::move(settings);
  return json;
}

Json findingJson(const Rig& rig, const Finding& finding, Language language) {
  const FindingRow& row = findingRow(finding.kind);
  Json json{{"id", row.id}, {"weight", wordOf(row.weight, Language::English)}};
  json["layer"] = finding.layer ? Json(rig.layers[*finding.layer].name) : Json();
  json["skelegon"] = finding.skelegon ? Json(nameShown(rig.skelegons[*finding.skelegon])) : Json();
  json["setting"] = finding.setting != nullptr ? Json(finding.setting->name(language)) : Json();
  json["text"] = sentenceOf(finding, language);
  json["manual"] = manualEntryOf(finding.kind, language);
  return json;
}

Json layersJson(const Rig& rig, const ReportOptions& options) {
  Json layers = Json::array();
  for (const Layer& layer : rig.layers) {
    Json skelegons = Json::array();
    for (const std::size_t i : layer.skelegons) {
      if (isAskedFor(rig.skelegons[i], options)) skelegons.push_back(skelegonJson(rig, i, options));
    }
    if (skelegons.empty() && !options.skelegon.empty()) continue;
    layers.push_back(
        Json{{"number", layer.number}, {"name", layer.name}, {"item", layer.itemName}, {"skelegons", std::move(skelegons)}});
  }
  return layers;
}

Json fileJson(const Inspected& file, const ReportOptions& options) {
  Json json{{"file", file.path}};
  if (!file.trouble.empty()) {
    json["trouble"] = file.trouble;
    return json;
  }
  if (file.rig.isInJapanese) json["decodedFrom"] = kJapaneseCodePage;
  if (!options.findingsOnly) json["layers"] = layersJson(file.rig, options);
  json["problems"] = countOf(file.findings, FindingWeight::Problem);
  json["notes"] = countOf(file.findings, FindingWeight::Note);
  Json findings = Json::array();
  for (const Finding& finding : file.findings) findings.push_back(findingJson(file.rig, finding, options.language));
  json["findings"] = std::move(findings);
  return json;
}

}  // namespace

std::vector<ShownSetting> shownSettings(const Skelegon& skelegon, const ReportOptions& options) {
  const bool japanese = options.language == Language::Japanese;
  std::vector<ShownSetting> list;
  for (const Setting& setting : allSettings()) {
    const std::string* const text = skelegon.stored(setting);
    if (text == nullptr && setting.slot == skg::Slot::Colour) continue;  // told below
    const bool differs = text != nullptr && !meansTheSame(setting, *text, setting.defaultText);
    if (!differs && !options.all) continue;
    const std::string value =
        shown(setting, text == nullptr ? setting.defaultText : std::string_view(*text), options.language);
    list.push_back({setting.name(options.language), value + (text != nullptr ? "" : defaultRemark(options.language))});
  }
  if (options.all && !storesColour(skelegon)) {
    list.push_back(japanese ? ShownSetting{"色 (ボーン)", "保存なし、オレンジになる"}
                            : ShownSetting{"Color (bone)", "not stored, will become orange"});
  }
  for (const PolygonTag& tag : skelegon.tags) {
    const bool isOwn = settingOfTag(tag.type) != nullptr || tag.type == lw::kTagBone;
    if (isUnknownSlot(tag.type) || (options.all && !isOwn)) {
      list.push_back({(japanese ? "タグ " : "tag ") + tagName(tag.type), inQuotes(tag.text)});
    }
  }
  return list;
}

std::string layerLine(const Rig& rig, const Layer& layer, Language language) {
  const std::string count = std::to_string(layer.skelegons.size());
  const std::string name = layer.name.empty() ? "" : " " + inQuotes(layer.name);
  const auto storesSome = [&](std::size_t i) {
    const auto& tags = rig.skelegons[i].tags;
    return std::any_of(tags.begin(), tags.end(), [](const PolygonTag& tag) { return settingOfTag(tag.type) != nullptr; });
  };
  const std::string stored = std::to_string(std::count_if(layer.skelegons.begin(), layer.skelegons.end(), storesSome));
  if (language == Language::Japanese) {
    return "レイヤー " + std::to_string(layer.number) + name + "、レイアウトでは " + inQuotes(layer.itemName) +
           ": スケルゴン " + count + "、設定あり " + stored;
  }
  return "layer " + std::to_string(layer.number) + name + ", in Layout " + inQuotes(layer.itemName) + ": " +
         plural(layer.skelegons.size(), "skelegon") + ", " + stored + " with settings";
}

std::string labelOf(const Difference& difference, Language language) {
  const KindRow& row = rowOf(difference.kind);
  std::string label = language == Language::Japanese ? row.japanese : row.english;
  if (!difference.what.empty()) label += (label.empty() ? "" : " ") + difference.what;
  return label;
}

std::string treeText(const Rig& rig, const ReportOptions& options) {
  std::string text;
  for (const Layer& layer : rig.layers) {
    const std::string tree = Tree(rig, layer, options).text();
    if (tree.empty() && !options.skelegon.empty()) continue;
    text += layerLine(rig, layer, options.language) + '\n' + tree;
  }
  return text;
}

std::string differencesText(const std::vector<Difference>& differences, Language language) {
  std::string text;
  std::string subject;
  for (const Difference& difference : differences) {
    const std::string now = difference.layer + (difference.skelegon.empty() ? "" : " / " + difference.skelegon);
    if (now != subject) text += now + '\n';
    subject = now;
    text += "  " + differenceLine(difference, language) + '\n';
  }
  return text;
}

std::string inspectionJson(const std::vector<Inspected>& files, const ReportOptions& options) {
  Json json = Json::array();
  for (const Inspected& file : files) json.push_back(fileJson(file, options));
  return dumpJson(json);
}

std::string differencesJson(const std::vector<Difference>& differences) {
  Json json = Json::array();
  for (const Difference& difference : differences) {
    json.push_back(Json{{"kind", rowOf(difference.kind).id},
                        {"layer", difference.layer},
                        {"skelegon", difference.skelegon},
                        {"what", difference.what},
                        {"from", optionalText(difference.from)},
                        {"to", optionalText(difference.to)}});
  }
  return dumpJson(json);
}

std::string commandsJson(const std::vector<SentCommand>& commands) {
  Json json = Json::array();
  for (const SentCommand& command : commands) {
    Json entry{{"command", command.text}, {"result", command.result}};
    if (!command.item.empty()) entry["item"] = command.item;
    if (!command.why.empty()) entry["why"] = command.why;
    json.push_back(std::move(entry));
  }
  return dumpJson(json);
}

}  // namespace standin::rigs
