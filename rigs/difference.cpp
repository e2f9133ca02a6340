#include "rigs/difference.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include "rigs/text.h"
#include "rigs/values.h"

namespace standin::rigs {
namespace {

using Pairs = std::vector<std::optional<std::size_t>>;

// The texts say the same, or none of them is stored and the other is the default. What does not read as its kind is compared as it
// stands. A colour that is not stored is no default: its bone becomes orange.
bool isSame(const Setting& setting, const std::string* a, const std::string* b) {
  if (setting.slot == skg::Slot::Colour) return a == nullptr || b == nullptr ? a == b : *a == *b;
  const std::string_view first = a == nullptr ? setting.defaultText : *a;
  const std::string_view second = b == nullptr ? setting.defaultText : *b;
  if (first == second) return true;
  const auto isWhole = [&](std::string_view text) {
    return isNumeric(setting.kind) && readingOf(setting.kind, text) == Reading::Whole && isInList(setting, text);
  };
  return isWhole(first) && isWhole(second) && meansTheSame(setting, first, second);
}

std::string positionShown(const Skelegon& skelegon) {
  const auto point = [](const FilePoint& p) {
    const auto part = [](float value) { return shortNumber(static_cast<double>(value)); };
    return "(" + part(p[0]) + ", " + part(p[1]) + ", " + part(p[2]) + ")";
  };
  return point(skelegon.head) + " - " + point(skelegon.tail);
}

// A tag that is shown by itself: none that a setting has, not the name, which Modeler stores twice, and not the surface,
// which says nothing of a skelegon.
bool isOtherTag(std::uint32_t tag) {
  return settingOfTag(tag) == nullptr && tag != lw::kTagBone && tag != lw::kTagPart && tag != kTagSurface;
}

class Comparison {
 public:
  Comparison(const Rig& before, const Rig& after, Language language)
      : before_(before),
        after_(after),
        language_(language),
        earlier_(after.skelegons.size()),
        later_(before.skelegons.size()) {
    pairLayers();
    pairByName();
    pairByPlace();
  }

  std::vector<Difference> all() {
    for (std::size_t l = 0; l < after_.layers.size(); ++l) {
      const Layer& layer = after_.layers[l];
      const auto earlier = layerBefore_.find(l);
      if (earlier == layerBefore_.end()) {
        add(DifferenceKind::LayerAdded, layer);
      } else if (const Layer& was = before_.layers[earlier->second]; was.name != layer.name) {
        add(DifferenceKind::LayerRenamed, layer, {}, inQuotes(was.name), inQuotes(layer.name));
      } else if (was.number != layer.number) {
        add(DifferenceKind::LayerNumber, layer, {}, std::to_string(was.number), std::to_string(layer.number));
      }
      compareOrder(layer);
      for (const std::size_t i : layer.skelegons) compare(i);
      if (earlier != layerBefore_.end()) addRemoved(before_.layers[earlier->second]);
    }
    for (std::size_t l = 0; l < before_.layers.size(); ++l) {
      if (layersKept_.count(l) != 0) continue;
      add(DifferenceKind::LayerRemoved, before_.layers[l]);
      addRemoved(before_.layers[l]);
    }
    return std::move(differences_);
  }

 private:
  using Text = std::optional<std::string>;

  void add(DifferenceKind kind, const Layer& layer, std::string what = {}, Text from = {}, Text to = {}) {
    differences_.push_back({kind, nameShown(layer, language_), {}, std::move(what), std::move(from), std::move(to)});
  }
  // The skelegon is one of the new state, or of the old one when it was removed.
  void add(DifferenceKind kind, const Rig& rig, std::size_t skelegon, std::string what = {}, Text from = {}, Text to = {}) {
    const Skelegon& subject = rig.skelegons[skelegon];
    add(kind, rig.layers[subject.layer], std::move(what), std::move(from), std::move(to));
    const bool isGone = kind == DifferenceKind::Removed;
    differences_.back().skelegon = nameShown(subject, language_);
    differences_.back().placeBefore = isGone ? skelegon : earlier_[skelegon];
    differences_.back().placeAfter = isGone ? std::nullopt : std::optional(skelegon);
  }

  // By number and name, then by name, then by number alone: a layer that has another number is the same, and so is one that was
  // renamed. Of several that are equal each takes the first that is left.
  void pairLayers() {
    pairLayersBy([](const Layer& layer) { return std::optional(std::pair(layer.number, layer.name)); });
    pairLayersBy([](const Layer& layer) { return layer.name.empty() ? std::nullopt : std::optional(layer.name); });
    pairLayersBy([](const Layer& layer) { return std::optional(layer.number); });
  }
  template <class Key>
  void pairLayersBy(Key&& key) {
    for (std::size_t l = 0; l < after_.layers.size(); ++l) {
      const auto wanted = key(after_.layers[l]);
      if (!wanted || layerBefore_.count(l) != 0) continue;
      for (std::size_t was = 0; was < before_.layers.size(); ++was) {
        if (layersKept_.count(was) != 0 || key(before_.layers[was]) != wanted) continue;
        layerBefore_[l] = was;
        layersKept_.insert(was);
        break;
      }
    }
  }

  // Only of the skelegons that both have, and of these from the first to the last that stands elsewhere.
  void compareOrder(const Layer& layer) {
    std::vector<std::size_t> now;  // places before, in the new order
    for (const std::size_t i : layer.skelegons) {
      if (earlier_[i]) now.push_back(*earlier_[i]);
    }
    std::vector<std::size_t> was = now;
    std::sort(was.begin(), was.end());
    while (!now.empty() && now.back() == was.back()) now.pop_back(), was.pop_back();
    const auto kept = static_cast<std::size_t>(std::mismatch(now.begin(), now.end(), was.begin()).first - now.begin());
    if (kept == now.size()) return;
    add(DifferenceKind::Order, layer, {}, namesFrom(was, kept), namesFrom(now, kept));
  }
  std::string namesFrom(const std::vector<std::size_t>& places, std::size_t first) const {
    constexpr std::size_t kMost = 6;
    std::string names;
    for (std::size_t i = first; i < places.size(); ++i) {
      if (i - first == kMost) return names + ", ...";
      names += (names.empty() ? "" : ", ") + nameShown(before_.skelegons[places[i]], language_);
    }
    return names;
  }

  // Pairs the skelegons of paired layers that have the same key and no partner yet, each with the first that is left.
  template <class Key>
  void pairBy(Key&& key) {
    std::map<std::pair<std::size_t, decltype(key(after_.skelegons[0]))>, std::vector<std::size_t>> free;
    for (std::size_t i = before_.skelegons.size(); i-- > 0;) {
      if (!later_[i]) free[{before_.skelegons[i].layer, key(before_.skelegons[i])}].push_back(i);
    }
    for (std::size_t i = 0; i < after_.skelegons.size(); ++i) {
      const auto layer = layerBefore_.find(after_.skelegons[i].layer);
      if (earlier_[i] || layer == layerBefore_.end()) continue;
      const auto found = free.find({layer->second, key(after_.skelegons[i])});
      if (found == free.end() || found->second.empty()) continue;
      earlier_[i] = found->second.back();
      later_[found->second.back()] = i;
      found->second.pop_back();
    }
  }

  void pairByName() {
    // Of several of one name, those that also stayed where they were belong together first.
    pairBy([](const Skelegon& s) { return std::tuple(s.name, s.head, s.tail); });
    pairBy([](const Skelegon& s) { return s.name; });
  }
  void pairByPlace() {
    pairBy([](const Skelegon& s) { return std::pair(s.head, s.tail); });
  }

  void compare(std::size_t i) {
    const Skelegon& now = after_.skelegons[i];
    if (!earlier_[i]) {
      add(DifferenceKind::Added, after_, i);
      compareSettings(i, nullptr, now);
      return;
    }
    const Skelegon& was = before_.skelegons[*earlier_[i]];
    if (was.name != now.name)
      add(DifferenceKind::Renamed, after_, i, {}, nameShown(was, language_), nameShown(now, language_));
    if (was.head != now.head || was.tail != now.tail) {
      add(DifferenceKind::Moved, after_, i, {}, positionShown(was), positionShown(now));
    }
    compareParent(i, was, now);
    compareSettings(i, &was, now);
  }

  void compareParent(std::size_t i, const Skelegon& was, const Skelegon& now) {
    const std::optional<std::size_t> kept = was.parent ? later_[*was.parent] : std::nullopt;
    if (was.parent.has_value() == now.parent.has_value() && kept == now.parent) return;
    const auto name = [this](const Rig& rig, const std::optional<std::size_t>& parent) {
      return parent ? Text(nameShown(rig.skelegons[*parent], language_)) : Text();
    };
    add(DifferenceKind::Parent, after_, i, {}, name(before_, was.parent), name(after_, now.parent));
  }

  void compareSettings(std::size_t i, const Skelegon* was, const Skelegon& now) {
    for (const Setting& setting : allSettings()) {
      const std::string* const from = was == nullptr ? nullptr : was->stored(setting);
      const std::string* const to = now.stored(setting);
      if (isSame(setting, from, to)) continue;
      // Two texts that are shown alike: only as they stand are they different.
      const bool isAlike = was != nullptr && isShownAlike(setting, from, to);
      Text before = was == nullptr ? Text() : valueShown(setting, from, isAlike);
      add(DifferenceKind::Setting, after_, i, setting.name(language_), std::move(before), valueShown(setting, to, isAlike));
    }
    compareOtherTags(i, was, now);
  }

  static bool hasDefault(const Setting& setting) {
    return setting.slot != skg::Slot::Colour && !setting.defaultText.empty();
  }

  bool isShownAlike(const Setting& setting, const std::string* from, const std::string* to) const {
    if ((from == nullptr || to == nullptr) && !hasDefault(setting)) return false;
    const auto text = [&](const std::string* stored) { return stored == nullptr ? setting.defaultText : *stored; };
    return shown(setting, text(from), language_) == shown(setting, text(to), language_);
  }

  Text valueShown(const Setting& setting, const std::string* stored, bool asItStands) const {
    const auto words = [&](std::string_view text) { return asItStands ? inQuotes(text) : shown(setting, text, language_); };
    if (stored != nullptr) return words(*stored);
    if (!hasDefault(setting)) return {};
    return words(setting.defaultText) + defaultRemark(language_);
  }

  void compareOtherTags(std::size_t i, const Skelegon* was, const Skelegon& now) {
    std::map<std::uint32_t, std::pair<Text, Text>> tags;
    if (was != nullptr) {
      for (const PolygonTag& tag : was->tags) tags[tag.type].first = inQuotes(tag.text);
    }
    for (const PolygonTag& tag : now.tags) tags[tag.type].second = inQuotes(tag.text);
    for (const auto& [type, texts] : tags) {
      if (isOtherTag(type) && texts.first != texts.second) {
        add(DifferenceKind::Tag, after_, i, tagName(type), texts.first, texts.second);
      }
    }
  }

  void addRemoved(const Layer& layer) {
    for (const std::size_t i : layer.skelegons) {
      if (!later_[i]) add(DifferenceKind::Removed, before_, i);
    }
  }

  const Rig& before_;
  const Rig& after_;
  Language language_;
  Pairs earlier_;  // of the skelegons after
  Pairs later_;    // of the skelegons before
  std::map<std::size_t, std::size_t> layerBefore_;
  std::set<std::size_t> layersKept_;
  std::vector<Difference> differences_;
};

}  // namespace

std::vector<Difference> differencesOf(const Rig& before, const Rig& after, Language language) {
  return Comparison(before, after, language).all();
}

}  // namespace standin::rigs
