#include "tests/tools/panels_walk_mesh.h"

#include <algorithm>
#include <utility>

#include "skelegon/slots.h"

namespace varnel::test::walk {
namespace {

std::optional<std::string> asText(bool on) { return on ? std::optional<std::string>("on") : std::nullopt; }

bool isOfFamily(std::uint32_t type) { return type >> 8 == kFamily >> 8; }

}  // namespace

std::string Skelegon::text(std::uint32_t type) const {
  const auto found = tags.find(type);
  return found == tags.end() ? std::string() : found->second;
}

Mesh::Mesh(const standin::ModelerObject& object) {
  const auto positionOf = [&](lw::PointId id) {
    const auto found =
        std::find_if(object.points().begin(), object.points().end(), [id](const auto& point) { return point.id == id; });
    return found->position;
  };
  for (const standin::MeshPolygon* polygon : object.skelegons()) {
    Skelegon skelegon;
    skelegon.polygon = polygon;
    skelegon.head = positionOf(polygon->points[0]);
    for (const auto& tag : polygon->content.tags) skelegon.tags[tag.type] = tag.text;
    skelegon.isSelected = polygon->selected;
    skelegons_.push_back(std::move(skelegon));
  }
  for (Skelegon& child : skelegons_) {
    for (std::size_t i = 0; i < skelegons_.size(); ++i) {
      if (skelegons_[i].polygon->points[1] == child.polygon->points[0]) child.parent = i;
    }
  }
}

Places Mesh::living() const {
  Places places;
  for (std::size_t i = 0; i < skelegons_.size(); ++i) {
    if (skelegons_[i].isThere) places.push_back(i);
  }
  return places;
}

bool Mesh::isInFront(const Skelegon& skelegon) const {
  return std::find(front_.begin(), front_.end(), skelegon.polygon->layer) != front_.end();
}

Places Mesh::inFront() const {
  Places places = living();
  std::erase_if(places, [this](std::size_t place) { return !isInFront(skelegons_[place]); });
  return places;
}

Places Mesh::selected() const {
  Places places = inFront();
  std::erase_if(places, [this](std::size_t place) { return !skelegons_[place].isSelected; });
  return places;
}

void Mesh::selectAsUser(const Places& chosen) {
  for (Skelegon& skelegon : skelegons_) skelegon.isSelected = false;
  for (const std::size_t place : chosen) skelegons_[place].isSelected = true;
}

void Mesh::showLayers(const std::vector<int>& front) {
  front_ = front;
  for (Skelegon& skelegon : skelegons_) {
    if (!isInFront(skelegon)) skelegon.isSelected = false;
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Changes

// Empty texts stay, blank, in the host's own tags; a setting's tag is taken away.
void Mesh::put(std::size_t place, std::uint32_t type, const std::string& text) {
  const bool isRemoved = text.empty() && isOfFamily(type);
  change(What::Tag, place, type, isRemoved ? std::nullopt : std::optional(text));
}

void Mesh::putOnSelected(std::uint32_t type, const std::string& text) {
  for (const std::size_t place : selected()) put(place, type, text);
}

void Mesh::putValue(int slot, std::string text) {
  if (text == skg::SlotDefaults(static_cast<skg::Slot>(slot))) text.clear();
  const std::uint32_t type = slot == 28 ? lw::kTagBoneWeight : kFamily | static_cast<std::uint32_t>(slot);
  const Places chosen = selected();
  const auto isWritten = [&](std::size_t place) {
    // What is the object's in the end goes to all of a layer.
    const bool isOfLayer = slot >= 12 && slot <= 17;
    if (!isOfLayer) return skelegons_[place].isSelected;
    return std::any_of(chosen.begin(), chosen.end(), [&](std::size_t other) {
      return skelegons_[other].polygon->layer == skelegons_[place].polygon->layer;
    });
  };
  for (const std::size_t place : inFront()) {
    if (isWritten(place)) put(place, type, text);
  }
}

void Mesh::resetSettings(std::size_t place) {
  std::vector<std::uint32_t> types;
  for (const auto& [type, text] : skelegons_[place].tags) {
    if (isOfFamily(type)) types.push_back(type);
  }
  for (const std::uint32_t type : types) put(place, type, "");
}

// All are deselected first, so that it is a step also where the same ones are selected again.
void Mesh::select(const Places& chosen) {
  for (const std::size_t place : selected()) change(What::Selection, place, 0, std::nullopt);
  for (const std::size_t place : chosen) change(What::Selection, place, 0, asText(true));
}

void Mesh::remove(const Places& places) {
  for (const std::size_t place : places) change(What::Existence, place, 0, std::nullopt);
}

void Mesh::change(What what, std::size_t place, std::uint32_t type, std::optional<std::string> after) {
  Change made{what, place, type, present(what, place, type), std::move(after)};
  if (made.before == made.after) return;
  set(made, made.after);
  open_.push_back(std::move(made));
}

std::optional<std::string> Mesh::present(What what, std::size_t place, std::uint32_t type) const {
  const Skelegon& skelegon = skelegons_[place];
  switch (what) {
    case What::Selection: return asText(skelegon.isSelected);
    case What::Existence: return asText(skelegon.isThere);
    case What::Tag: break;
  }
  const auto found = skelegon.tags.find(type);
  return found == skelegon.tags.end() ? std::nullopt : std::optional(found->second);
}

void Mesh::set(const Change& change, const std::optional<std::string>& value) {
  Skelegon& skelegon = skelegons_[change.place];
  switch (change.what) {
    case What::Selection: skelegon.isSelected = value.has_value(); return;
    case What::Existence: skelegon.isThere = value.has_value(); return;
    case What::Tag: break;
  }
  if (value) {
    skelegon.tags[change.type] = *value;
  } else {
    skelegon.tags.erase(change.type);
  }
}

void Mesh::endStep() {
  if (open_.empty()) return;
  future_.clear();
  past_.push_back(std::exchange(open_, {}));
}

bool Mesh::undo() {
  if (past_.empty()) return false;
  const Step& step = past_.back();
  for (std::size_t i = step.size(); i-- > 0;) set(step[i], step[i].before);
  future_.push_back(std::move(past_.back()));
  past_.pop_back();
  return true;
}

bool Mesh::redo() {
  if (future_.empty()) return false;
  for (const Change& change : future_.back()) set(change, change.after);
  past_.push_back(std::move(future_.back()));
  future_.pop_back();
  return true;
}

// ---------------------------------------------------------------------------------------------------------------------
// Comparing

std::string Mesh::difference(const standin::ModelerObject& object) const {
  for (std::size_t i = 0; i < skelegons_.size(); ++i) {
    const Skelegon& expected = skelegons_[i];
    const standin::MeshPolygon& polygon = *expected.polygon;
    const std::string whose = "skelegon " + std::to_string(i) + " \"" + expected.name() + "\": ";
    if (polygon.gone == expected.isThere) return whose + (polygon.gone ? "is gone" : "is there");
    if (polygon.selected != expected.isSelected) return whose + (polygon.selected ? "is selected" : "is not selected");
    for (const auto& tag : polygon.content.tags) {
      const auto found = expected.tags.find(tag.type);
      if (found == expected.tags.end()) return whose + "has a tag " + std::to_string(tag.type) + " \"" + tag.text + "\"";
      if (found->second != tag.text) {
        return whose + "tag " + std::to_string(tag.type) + " is \"" + tag.text + "\", not \"" + found->second + "\"";
      }
    }
    if (polygon.content.tags.size() != expected.tags.size()) return whose + "lacks a tag";
  }
  if (object.undoSteps() != past_.size()) {
    return std::to_string(object.undoSteps()) + " steps to undo, not " + std::to_string(past_.size());
  }
  return {};
}

}  // namespace varnel::test::walk
