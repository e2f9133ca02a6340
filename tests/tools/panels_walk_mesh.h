// What a walk over the panels expects of the mesh: tags and selection of each skelegon, changed by the walk's own few lines
// for the storing rules, and the steps by which the user goes back.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "skelegon/skelegon_tree.h"
#include "skelegon/slots.h"
#include "standin/modeler/modeler_object.h"

namespace varnel::test::walk {

inline constexpr std::uint32_t kFamily = 0x73673100;  // the tags of settings: the family, then the slot
inline constexpr std::uint32_t kColourCopy = kFamily | 129;
// Beside the tags, as if they were such.
inline constexpr std::uint32_t kSelected = 1;
inline constexpr std::uint32_t kGone = 2;

// Skelegons are known by their places in scan order.
using Places = std::vector<std::size_t>;

struct Skelegon {
  const standin::MeshPolygon* polygon = nullptr;
  std::map<std::uint32_t, std::string> tags;

  explicit Skelegon(const standin::MeshPolygon* of) : polygon(of) {
    for (const auto& [type, content] : of->content.tags) {
      if (!tags.emplace(type, content).second) tags[type] += " and once more " + content;
    }
    if (of->selected) tags[kSelected];
    if (of->gone) tags[kGone];
  }
  // Empty where there is no such tag.
  std::string text(std::uint32_t type) const { return tags.contains(type) ? tags.at(type) : std::string(); }
  std::string name() const { return text(lw::kTagBone); }
};

class Mesh {
 public:
  explicit Mesh(const standin::ModelerObject& object) : object_(object) {
    for (const standin::MeshPolygon* polygon : object.skelegons()) skelegons_.emplace_back(polygon);
  }

  const Skelegon& operator[](std::size_t place) const { return skelegons_[place]; }
  std::size_t size() const { return skelegons_.size(); }
  Places living() const {
    return those([](const Skelegon& skelegon) { return !skelegon.tags.contains(kGone); });
  }
  Places inFront() const {
    return those([&](const Skelegon& skelegon) { return !skelegon.tags.contains(kGone) && isInFront(skelegon); });
  }
  Places selected() const {
    Places places = inFront();
    std::erase_if(places, [&](std::size_t place) { return !skelegons_[place].tags.contains(kSelected); });
    return places;
  }
  std::vector<skg::PolygonId> ids(const Places& places) const {
    std::vector<skg::PolygonId> ids;
    for (const std::size_t place : places) ids.push_back(skelegons_[place].polygon->id);
    return ids;
  }
  std::size_t placeOf(skg::PolygonId id) const {
    return those([&](const Skelegon& skelegon) { return skelegon.polygon->id == id; }).at(0);
  }

  // The user's own selecting and showing of layers: no steps. What leaves the foreground is selected no more.
  void selectAsUser(const Places& chosen) {
    for (Skelegon& skelegon : skelegons_) skelegon.tags.erase(kSelected);
    for (const std::size_t place : chosen) skelegons_[place].tags[kSelected];
  }
  void showLayers(const std::vector<int>& front) {
    front_ = front;
    for (Skelegon& skelegon : skelegons_) {
      if (!isInFront(skelegon)) skelegon.tags.erase(kSelected);
    }
  }

  // Parts of a step. What changes nothing is none. Empty texts stay, blank, in the host's own tags; a setting's tag is taken
  // away.
  void put(std::size_t place, std::uint32_t type, const std::string& text) {
    change(place, type, text.empty() && isOfFamily(type) ? std::nullopt : std::optional(text));
  }
  void putOnSelected(std::uint32_t type, const std::string& text) {
    for (const std::size_t place : selected()) put(place, type, text);
  }
  // The setting with its default: the default text is not stored. What is the object's in the end goes to all of a layer.
  void putValue(int slot, std::string text) {
    if (text == skg::SlotDefaults(static_cast<skg::Slot>(slot))) text.clear();
    const std::uint32_t type = slot == 28 ? lw::kTagBoneWeight : kFamily | static_cast<std::uint32_t>(slot);
    if (slot < 12 || slot > 17) return putOnSelected(type, text);
    std::set<int> layers;
    for (const std::size_t place : selected()) layers.insert(skelegons_[place].polygon->layer);
    for (const std::size_t place : inFront()) {
      if (layers.contains(skelegons_[place].polygon->layer)) put(place, type, text);
    }
  }
  void resetSettings(std::size_t place) {
    for (std::uint32_t slot = 0; slot < 256; ++slot) put(place, kFamily | slot, "");
  }
  // All are deselected first, so that it is a step also where the same ones are selected again.
  void select(const std::set<skg::PolygonId>& chosen) {
    for (const std::size_t place : selected()) change(place, kSelected, std::nullopt);
    for (const skg::PolygonId id : chosen) change(placeOf(id), kSelected, "");
  }
  void remove(std::size_t place) { change(place, kGone, ""); }
  // All since the last call are one step.
  void endStep() {
    if (open_.empty()) return;
    steps_.resize(done_++);
    steps_.push_back(std::exchange(open_, {}));
  }

  bool undo() {
    if (done_ == 0) return false;
    const Step& step = steps_[--done_];
    std::for_each(step.rbegin(), step.rend(), [&](const Change& change) { set(change.place, change.type, change.before); });
    return true;
  }
  bool redo() {
    if (done_ == steps_.size()) return false;
    for (const Change& change : steps_[done_++]) set(change.place, change.type, change.after);
    return true;
  }

  // The object is so, with as many steps to undo.
  void expectAsExpected() const {
    for (const Skelegon& expected : skelegons_) {
      EXPECT_EQ(Skelegon(expected.polygon).tags, expected.tags) << "skelegon " << placeOf(expected.polygon->id);
    }
    EXPECT_EQ(object_.undoSteps(), done_);
  }

  // For the rules that need no host: those in front as a scan finds them; the living with their places.
  std::vector<skg::SkelegonInfo> infos() const {
    const Places chosen = selected();
    std::vector<skg::SkelegonInfo> infos;
    for (const std::size_t place : inFront()) {
      const standin::MeshPolygon& polygon = *skelegons_[place].polygon;
      const bool isSelected = std::binary_search(chosen.begin(), chosen.end(), place);
      infos.push_back({polygon.id, skelegons_[place].name(), polygon.layer, isSelected, polygon.points[0], polygon.points[1],
                       std::vector<std::optional<std::string>>(2)});
    }
    return infos;
  }
  skg::SkelegonList list() const {
    std::map<lw::PointId, skg::Position> positions;
    for (const standin::MeshPoint& point : object_.points()) positions[point.id] = point.position;
    skg::SkelegonList list;
    for (const std::size_t place : living()) {
      const standin::MeshPolygon& polygon = *skelegons_[place].polygon;
      skg::SkelegonNode& node = list.add({});
      node.polygon = polygon.id;
      node.name = skelegons_[place].name();
      node.headPoint = polygon.points[0];
      node.tailPoint = polygon.points[1];
      node.headPos = positions.at(node.headPoint);
    }
    list.link();
    return list;
  }

 private:
  struct Change {
    std::size_t place;
    std::uint32_t type;
    std::optional<std::string> before;
    std::optional<std::string> after;
  };
  using Step = std::vector<Change>;

  static bool isOfFamily(std::uint32_t type) { return type >> 8 == kFamily >> 8; }
  bool isInFront(const Skelegon& skelegon) const {
    return std::find(front_.begin(), front_.end(), skelegon.polygon->layer) != front_.end();
  }
  template <class Is>
  Places those(Is is) const {
    Places places;
    for (std::size_t i = 0; i < skelegons_.size(); ++i) {
      if (is(skelegons_[i])) places.push_back(i);
    }
    return places;
  }

  void change(std::size_t place, std::uint32_t type, std::optional<std::string> after) {
    const Skelegon& skelegon = skelegons_[place];
    Change made{place, type, {}, std::move(after)};
    if (skelegon.tags.contains(type)) made.before = skelegon.text(type);
    if (made.before == made.after) return;
    set(place, type, made.after);
    open_.push_back(std::move(made));
  }
  void set(std::size_t place, std::uint32_t type, const std::optional<std::string>& text) {
    if (text) {
      skelegons_[place].tags[type] = *text;
    } else {
      skelegons_[place].tags.erase(type);
    }
  }

  const standin::ModelerObject& object_;
  std::vector<Skelegon> skelegons_;
  std::vector<int> front_;  // layers
  Step open_;
  std::vector<Step> steps_;
  std::size_t done_ = 0;  // of them, and not undone
};

}  // namespace varnel::test::walk
