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

std::string layerShown(const Layer& layer) {
  return layer.name.empty() ? "layer " + std::to_string(layer.number) : printable(layer.name);
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
      }
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
    differences_.push_back({kind, layerShown(layer), {}, std::move(what), std::move(from), std::move(to)});
  }
  void add(DifferenceKind kind, const Rig& rig, std::size_t skelegon, std::string what = {}, Text from = {}, Text to = {}) {
    const Skelegon& subject = rig.skelegons[skelegon];
    add(kind, rig.layers[subject.layer], std::move(what), std::move(from), std::move(to));
    differences_.back().skelegon = nameShown(subject);
  }

  void pairLayers() {
    std::map<std::uint16_t, std::vector<std::size_t>> byNumber;
    for (std::size_t l = before_.layers.size(); l-- > 0;) byNumber[before_.layers[l].number].push_back(l);
    for (std::size_t l = 0; l < after_.layers.size(); ++l) {
      std::vector<std::size_t>& candidates = byNumber[after_.layers[l].number];
      if (candidates.empty()) continue;
      layerBefore_[l] = candidates.back();
      layersKept_.insert(candidates.back());
      candidates.pop_back();
    }
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
    if (was.name != now.name) add(DifferenceKind::Renamed, after_, i, {}, nameShown(was), nameShown(now));
    if (was.head != now.head || was.tail != now.tail) {
      add(DifferenceKind::Moved, after_, i, {}, positionShown(was), positionShown(now));
    }
    compareParent(i, was, now);
    compareSettings(i, &was, now);
  }

  void compareParent(std::size_t i, const Skelegon& was, const Skelegon& now) {
    const std::optional<std::size_t> kept = was.parent ? later_[*was.parent] : std::nullopt;
    if (was.parent.has_value() == now.parent.has_value() && kept == now.parent) return;
    const auto name = [](const Rig& rig, const std::optional<std::size_t>& parent) {
      return parent ? Text(nameShown(rig.skelegons[*parent])) : Text();
    };
    add(DifferenceKind::Parent, after_, i, {}, name(before_, was.parent), name(after_, now.parent));
  }

  void compareSettings(std::size_t i, const Skelegon* was, const Skelegon& now) {
    for (const Setting& setting : allSettings()) {
      const std::string* const from = was == nullptr ? nullptr : was->stored(setting);
      const std::string* const to = now.stored(setting);
      if (from == nullptr ? to == nullptr : to != nullptr && *from == *to) continue;
      Text before = from == nullptr ? Text() : Text(shown(setting, *from, language_));
      Text after = to == nullptr ? Text() : Text(shown(setting, *to, language_));
      // Two texts of one meaning: only as they stand are they different.
      if (before && before == after) {
        before = inQuotes(*from);
        after = inQuotes(*to);
      }
      add(DifferenceKind::Setting, after_, i, setting.name(language_), std::move(before), std::move(after));
    }
    compareOtherTags(i, was, now);
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
