#include "reader/object_passes.h"

#include <optional>
#include <string>
#include <string_view>

#include "reader/polygon_list.h"

namespace lwp::st {

namespace {

struct LayerChunk {
  std::uint16_t number = 0;
  std::uint16_t flags = 0;
  Vec12 pivot{};
  std::string_view name;
  std::uint16_t parent = 0;
};

bool readLayerChunk(CFileStream& body, LayerChunk& layer) {
  if (!body.readU2(layer.number) || !body.readU2(layer.flags) || !body.readVEC12(layer.pivot)) return false;
  if (!body.readS0(layer.name)) return false;
  if (!body.atEnd() && !body.readU2(layer.parent)) return false;
  return body.atEnd();
}

std::string nameOf(const LayerChunk& layer) {
  if (!layer.name.empty()) return std::string(layer.name);
  return "Layer" + std::to_string(layer.number + 1);
}

// Gives the polygons of a chunk to a sink.
template <class Sink>
bool passOn(const CFileStream& body, Sink& sink) {
  const std::optional<Sink> after = readPolygonList(body.rest(), sink);
  if (after) sink = *after;
  return after.has_value();
}

}  // namespace

// --- counting ---

bool CountingPass::takeTagTexts(CFileStream body) {
  counts_.tagTextBytes += body.left();
  std::string_view text;
  for (; !body.atEnd(); ++counts_.tagTexts) {
    if (!body.readS0(text)) return false;
  }
  return true;
}

bool CountingPass::takeLayer(CFileStream body) {
  LayerChunk layer;
  if (!readLayerChunk(body, layer)) return false;
  ++counts_.layers;
  counts_.layerNameBytes += nameOf(layer).size();
  return true;
}

bool CountingPass::takePoints(CFileStream body) {
  counts_.points += body.left() / kBytesOfVec12;
  return body.left() % kBytesOfVec12 == 0;
}

bool CountingPass::takeFaces(CFileStream body) { return passOn(body, counts_.faces); }

bool CountingPass::takeSkelegons(CFileStream body) { return passOn(body, counts_.skelegons); }

// --- counting the tags of each skelegon ---

TagCountingPass::TagCountingPass(SkelegonStore& store) : store_(&store), skelegons_(store) {}

bool TagCountingPass::takeLayer(CFileStream /*body*/) {
  firstOfLayer_ = skelegons_.skelegons;
  return true;
}

bool TagCountingPass::takeSkelegons(CFileStream body) { return passOn(body, skelegons_); }

bool TagCountingPass::takeSkelegonTags(std::uint32_t /*type*/, CFileStream body) {
  TagPairs pairs(body.rest());
  std::uint32_t last = 0;
  bool ascends = true;
  const TagCounter counter(*store_, firstOfLayer_);
  pairs.readBelow(skelegons_.skelegons - firstOfLayer_, [&, counter](std::uint32_t skelegon, std::uint16_t /*text*/) {
    counter.count(skelegon);
    ascends &= skelegon >= last;
    last = skelegon;
  });
  listsAscend_ &= ascends;
  return pairs.atEnd();
}

// --- filling ---

FillingPass::FillingPass(ObjectStore& store, const ObjectCounts& counts, bool tagListsAscend)
    : store_(&store), tags_(store.skelegons, tagListsAscend), faces_(roomFor(store, counts)), skelegons_(store.skelegons) {}

FaceStore& FillingPass::roomFor(ObjectStore& store, const ObjectCounts& counts) {
  store.tags = TagTexts(counts.tagTexts, counts.tagTextBytes);
  store.layerNames.reserve(counts.layerNameBytes);
  store.layers.reserve(counts.layers + 1);
  store.points = Block<Vec12>(counts.points);
  store.faces = FaceStore(counts.faces);
  return store.faces;
}

bool FillingPass::takeTagTexts(CFileStream body) {
  store_->tags.append(body.rest());
  return true;
}

bool FillingPass::takeLayer(CFileStream body) {
  tags_.finish();
  LayerChunk layer;
  if (!readLayerChunk(body, layer)) return false;
  const std::string name = nameOf(layer);
  LayerRecord& record = store_->layers.emplace_back(next_);
  record.pivot = layer.pivot;
  record.number = layer.number;
  record.flags = layer.flags;
  record.parent = layer.parent;
  record.nameStart = static_cast<std::uint32_t>(store_->layerNames.size());
  record.nameLength = static_cast<std::uint32_t>(name.size());
  store_->layerNames += name;
  return true;
}

bool FillingPass::takePoints(CFileStream body) {
  const std::span<const std::byte> bytes = body.rest();
  const std::size_t points = bytes.size() / kBytesOfVec12;
  Vec12* to = store_->points.data() + next_.firstPoint;
  for (std::size_t i = 0; i < points; ++i) to[i] = loadVec12(bytes.data() + i * kBytesOfVec12);
  next_.firstPoint += static_cast<std::uint32_t>(points);
  return true;
}

bool FillingPass::takeFaces(CFileStream body) {
  const bool isSound = passOn(body, faces_);
  next_.firstFace = faces_.faces();
  return isSound;
}

bool FillingPass::takeSkelegons(CFileStream body) {
  const bool isSound = passOn(body, skelegons_);
  next_.firstSkelegon = skelegons_.skelegons();
  return isSound;
}

bool FillingPass::takeSkelegonTags(std::uint32_t type, CFileStream body) {
  const std::uint32_t first = store_->layers.back().firstSkelegon;
  tags_.add(type, body.rest(), first, next_.firstSkelegon - first);
  return true;
}

void FillingPass::finish() {
  tags_.finish();
  store_->layers.push_back(next_);
}

}  // namespace lwp::st
