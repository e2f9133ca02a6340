#include "standin/modeler/modeler_object.h"

#include <algorithm>
#include <utility>

namespace standin {
namespace {

std::optional<std::string> tagOf(const MeshPolygon& polygon, std::uint32_t type) {
  const std::string* text = polygon.content.tag(type);
  return text == nullptr ? std::nullopt : std::optional<std::string>(*text);
}

bool contains(const std::vector<int>& numbers, int number) {
  return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

}  // namespace

std::string MeshPolygon::tag(std::uint32_t tagType) const { return tagOf(*this, tagType).value_or(std::string()); }

ModelerObject::ModelerObject(ObjectFile file, std::string fileName, std::string referenceName, Handles& handles)
    : handles_(handles), file_(std::move(file)), fileName_(std::move(fileName)), referenceName_(std::move(referenceName)) {
  layerPoints_.resize(file_.layers.size());
  groups_.resize(file_.layers.size());
  for (std::size_t place = 0; place < file_.layers.size(); ++place) {
    layers_.push_back({file_.layers[place].number, file_.layers[place].name, false, place});
  }
  std::stable_sort(layers_.begin(), layers_.end(),
                   [](const MeshLayer& a, const MeshLayer& b) { return a.number < b.number; });
  for (const MeshLayer& layer : layers_) {
    ObjectLayer& source = file_.layers[layer.place];
    for (const FilePoint& point : source.points) makePoint(layer, point);
    for (std::size_t g = 0; g < source.groups.size(); ++g) {
      for (ObjectPolygon& polygon : source.groups[g].polygons) {
        makePolygon(layer.number, g, source.groups[g].type, std::move(polygon));
      }
      source.groups[g].polygons.clear();
    }
  }
  if (!layers_.empty()) layers_.front().foreground = true;
}

// Positions in the file count from the layer's pivot.
MeshPoint& ModelerObject::makePoint(const MeshLayer& layer, const FilePoint& position) {
  MeshPoint& point = points_.emplace_back();
  point.id = handles_.addPoint(*this, points_.size() - 1);
  point.layer = layer.number;
  const FilePoint& pivot = file_.layers[layer.place].pivot;
  for (std::size_t axis = 0; axis < 3; ++axis)
    point.position[axis] = static_cast<double>(position[axis]) + static_cast<double>(pivot[axis]);
  layerPoints_[layer.place].push_back(point.id);
  return point;
}

MeshPolygon& ModelerObject::makePolygon(int layerNumber, std::size_t group, std::uint32_t type, ObjectPolygon content) {
  const std::size_t place = layer(layerNumber)->place;
  MeshPolygon& polygon = polygons_.emplace_back();
  polygon.id = handles_.addPolygon(*this, polygons_.size() - 1);
  polygon.layer = layerNumber;
  polygon.type = type;
  for (const std::uint32_t point : content.points) polygon.points.push_back(layerPoints_[place][point]);
  polygon.content = std::move(content);
  groups_[place].resize(std::max(groups_[place].size(), group + 1));
  groups_[place][group].push_back(polygons_.size() - 1);
  return polygon;
}

const MeshLayer* ModelerObject::layer(int number) const {
  const auto found = std::lower_bound(layers_.begin(), layers_.end(), number,
                                      [](const MeshLayer& layer, int wanted) { return layer.number < wanted; });
  return found == layers_.end() || found->number != number ? nullptr : &*found;
}

bool ModelerObject::holdsData(const MeshLayer& layer) const { return !layerPoints_[layer.place].empty(); }

const MeshPolygon& ModelerObject::polygon(lw::PolygonId id) const { return polygons_[handles_.find(id)->place]; }

const std::vector<VertexMap>& ModelerObject::maps(const MeshLayer& layer) const { return file_.layers[layer.place].maps; }

bool ModelerObject::hasMap(const std::pair<std::uint32_t, std::string>& map) const {
  return std::any_of(layers_.begin(), layers_.end(), [&](const MeshLayer& layer) {
    const std::vector<VertexMap>& all = maps(layer);
    return std::any_of(all.begin(), all.end(),
                       [&](const VertexMap& one) { return one.type == map.first && one.name == map.second; });
  });
}

std::vector<const MeshPolygon*> ModelerObject::skelegons() const {
  std::vector<const MeshPolygon*> found;
  for (const MeshPolygon* polygon : scan(*chosen(lw::kLayersAll))) {
    if (polygon->isSkelegon()) found.push_back(polygon);
  }
  return found;
}

const MeshPolygon* ModelerObject::skelegon(std::string_view name) const {
  for (const MeshPolygon* polygon : skelegons()) {
    const std::string* text = polygon->content.tag(lw::kTagBone);
    if (text != nullptr && *text == name) return polygon;
  }
  return nullptr;
}

int ModelerObject::primaryLayer() const {
  const auto shown = *chosen(lw::kLayersForeground);
  return shown.empty() ? 0 : shown.front()->number;
}

std::optional<std::vector<const MeshLayer*>> ModelerObject::chosen(int layerChoice) const {
  std::vector<const MeshLayer*> list;
  for (const MeshLayer& layer : layers_) {
    const bool isWanted = layerChoice == lw::kLayersForeground ? layer.foreground
                          : layerChoice == lw::kLayersNonEmpty ? holdsData(layer)
                                                               : layerChoice == lw::kLayersAll;
    if (isWanted) list.push_back(&layer);
  }
  const bool isKnown =
      layerChoice == lw::kLayersForeground || layerChoice == lw::kLayersAll || layerChoice == lw::kLayersNonEmpty;
  return isKnown ? std::optional(list) : std::nullopt;
}

bool ModelerObject::ownsItsIdentifier(const MeshPolygon& polygon) const {
  const Handles::Element& element = *handles_.find(polygon.id);
  return element.object == this && &polygons_[element.place] == &polygon;
}

std::vector<const MeshPolygon*> ModelerObject::scan(const std::vector<const MeshLayer*>& layers, bool withGone) const {
  std::vector<const MeshPolygon*> list;
  for (const MeshLayer* layer : layers) {
    for (const auto& group : groups_[layer->place]) {
      for (const std::size_t place : group) {
        const MeshPolygon& polygon = polygons_[place];
        if (!polygon.gone || (withGone && ownsItsIdentifier(polygon))) list.push_back(&polygon);
      }
    }
  }
  return list;
}

// --- changes -------------------------------------------------------------------------------------------------------------

void ModelerObject::showLayers(const std::vector<int>& foreground, bool deselect) {
  for (MeshLayer& layer : layers_) {
    layer.foreground = contains(foreground, layer.number);
  }
  if (!deselect) return;
  for (MeshPolygon& polygon : polygons_) {
    if (!layer(polygon.layer)->foreground) polygon.selected = false;
  }
}

void ModelerObject::select(const std::vector<const MeshPolygon*>& polygons) {
  for (MeshPolygon& polygon : polygons_) polygon.selected = false;
  for (const MeshPolygon* polygon : polygons) own(*polygon).selected = true;
}

void ModelerObject::markDeleted(const MeshPolygon& polygon, bool deleted) { own(polygon).deleted = deleted; }

void ModelerObject::remove(const std::vector<const MeshPolygon*>& polygons) {
  MeshStep step;
  for (const MeshPolygon* polygon : polygons) step.emplace_back(ExistenceChange{&own(*polygon), true, false});
  perform(std::move(step));
}

void ModelerObject::removeMap(std::uint32_t type, const std::string& name) {
  MeshStep step;
  for (std::size_t place = 0; place < file_.layers.size(); ++place) {
    const std::vector<VertexMap>& maps = file_.layers[place].maps;
    for (std::size_t i = maps.size(); i-- > 0;) {
      if (maps[i].type == type && maps[i].name == name) step.emplace_back(MapRemoval{place, i, maps[i]});
    }
  }
  perform(std::move(step));
}

int ModelerObject::addLayer(const std::string& name) {
  const int number = layers_.empty() ? 0 : layers_.back().number + 1;
  ObjectLayer layer;
  layer.number = static_cast<std::uint16_t>(number);
  layer.name = name;
  file_.layers.push_back(std::move(layer));
  layers_.push_back({number, name, layers_.empty(), file_.layers.size() - 1});
  layerPoints_.emplace_back();
  groups_.emplace_back();
  return number;
}

lw::PointId ModelerObject::addPoint(int layerNumber, std::array<double, 3> position) {
  const MeshLayer& into = *layer(layerNumber);
  ObjectLayer& source = file_.layers[into.place];
  FilePoint stored{};
  for (std::size_t axis = 0; axis < 3; ++axis) {
    stored[axis] = static_cast<float>(position[axis] - static_cast<double>(source.pivot[axis]));
  }
  source.points.push_back(stored);
  return makePoint(into, stored).id;
}

const MeshPolygon& ModelerObject::addSkelegon(int layerNumber, lw::PointId head, lw::PointId tail,
                                              const std::optional<std::string>& name) {
  ObjectPolygon content;
  content.setTag(kTagSurface, "Default");
  if (name) content.setTag(lw::kTagBone, *name);
  return addPolygon(layerNumber, lw::kTypeBone, {head, tail}, std::move(content));
}

const MeshPolygon& ModelerObject::addFace(int layerNumber, const std::vector<lw::PointId>& points) {
  ObjectPolygon content;
  content.setTag(kTagSurface, "Default");
  return addPolygon(layerNumber, lw::kTypeFace, points, std::move(content));
}

const MeshPolygon& ModelerObject::addPolygon(int layerNumber, std::uint32_t type, const std::vector<lw::PointId>& points,
                                             ObjectPolygon content) {
  const MeshLayer& into = *layer(layerNumber);
  const std::vector<lw::PointId>& numbers = layerPoints_[into.place];
  for (const lw::PointId point : points) {
    content.points.push_back(static_cast<std::uint32_t>(std::find(numbers.begin(), numbers.end(), point) - numbers.begin()));
  }

  std::vector<PolygonGroup>& groups = file_.layers[into.place].groups;
  const PolygonGroup* group = &file_.layers[into.place].group(type);
  MeshPolygon& polygon = makePolygon(layerNumber, static_cast<std::size_t>(group - groups.data()), type, std::move(content));
  polygon.gone = true;
  perform({ExistenceChange{&polygon, false, true}});
  return polygon;
}

void ModelerObject::setTag(const MeshPolygon& polygon, std::uint32_t type, std::optional<std::string> text) {
  perform({TagChange{&own(polygon), type, std::nullopt, std::move(text)}});
}

void ModelerObject::apply(const MeshChange& change, bool forward) {
  if (const auto* tag = std::get_if<TagChange>(&change)) {
    const std::optional<std::string>& text = forward ? tag->after : tag->before;
    if (text) {
      tag->polygon->content.setTag(tag->type, *text);
    } else {
      tag->polygon->content.removeTag(tag->type);
    }
  } else if (const auto* selection = std::get_if<SelectionChange>(&change)) {
    selection->polygon->selected = forward ? selection->after : selection->before;
  } else if (const auto* existence = std::get_if<ExistenceChange>(&change)) {
    setThere(*existence->polygon, forward ? existence->after : existence->before);
  } else if (const auto* removal = std::get_if<MapRemoval>(&change)) {
    std::vector<VertexMap>& maps = file_.layers[removal->layer].maps;
    const auto place = maps.begin() + static_cast<std::ptrdiff_t>(removal->position);
    if (forward) {
      maps.erase(place);
    } else {
      maps.insert(place, removal->map);
    }
  }
}

void ModelerObject::setThere(MeshPolygon& polygon, bool there) {
  polygon.gone = !there;
  if (!there) return handles_.polygonGone(polygon.id);
  const auto place = std::find_if(polygons_.begin(), polygons_.end(), [&](const MeshPolygon& p) { return &p == &polygon; });
  polygon.id = handles_.polygonBack(polygon.id, *this, static_cast<std::size_t>(place - polygons_.begin()));
}

void ModelerObject::perform(MeshStep step, bool isStep) {
  MeshStep done;
  for (MeshChange& change : step) {
    // What was before is read here, in order: a later change of a step may meet what an earlier one made.
    if (auto* tag = std::get_if<TagChange>(&change)) {
      tag->before = tagOf(*tag->polygon, tag->type);
      if (tag->before == tag->after) continue;
    } else if (auto* selection = std::get_if<SelectionChange>(&change)) {
      selection->before = selection->polygon->selected;
      if (selection->before == selection->after) continue;
    }
    apply(change, true);
    done.push_back(std::move(change));
  }
  if (done.empty() || !isStep) return;
  redo_.clear();
  undo_.push_back(std::move(done));
}

bool ModelerObject::undo() {
  if (undo_.empty()) return false;
  const MeshStep& step = undo_.back();
  for (std::size_t i = step.size(); i-- > 0;) apply(step[i], false);
  redo_.push_back(std::move(undo_.back()));
  undo_.pop_back();
  return true;
}

bool ModelerObject::redo() {
  if (redo_.empty()) return false;
  for (const MeshChange& change : redo_.back()) apply(change, true);
  undo_.push_back(std::move(redo_.back()));
  redo_.pop_back();
  return true;
}

ObjectFile ModelerObject::toFile() const {
  ObjectFile file = file_;
  for (std::size_t place = 0; place < groups_.size(); ++place) {
    for (std::size_t g = 0; g < groups_[place].size(); ++g) {
      for (const std::size_t polygon : groups_[place][g]) {
        if (polygons_[polygon].gone || polygons_[polygon].deleted) continue;
        file.layers[place].groups[g].polygons.push_back(polygons_[polygon].content);
      }
    }
  }
  return file;
}

std::optional<Failure> ModelerObject::save(const std::string& fileName) {
  std::optional<Failure> failure = writeObject(toFile(), fileName);
  if (!failure) fileName_ = fileName;
  return failure;
}

}  // namespace standin
