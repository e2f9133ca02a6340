#include "layout/object_passes.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "layout/polygon_list.h"

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
  return layer.name.empty() ? "Layer" + std::to_string(layer.number + 1) : std::string(layer.name);
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
  m_counts.tagTextBytes += body.left();
  std::string_view text;
  for (; !body.atEnd(); ++m_counts.tagTexts) {
    if (!body.readS0(text)) return false;
  }
  return true;
}

bool CountingPass::takeLayer(CFileStream body) {
  LayerChunk layer;
  if (!readLayerChunk(body, layer)) return false;
  ++m_counts.layers;
  m_counts.layerNameBytes += nameOf(layer).size();
  return true;
}

bool CountingPass::takePoints(CFileStream body) {
  m_counts.points += body.left() / kBytesOfVec12;
  return body.left() % kBytesOfVec12 == 0;
}

bool CountingPass::takeFaces(CFileStream body) { return passOn(body, m_counts.faces); }

bool CountingPass::takeSkelegons(CFileStream body) { return passOn(body, m_counts.skelegons); }

// --- counting the tags of each skelegon ---

TagCountingPass::TagCountingPass(SkelegonStore& store) : m_store(&store), m_skelegons(store) {}

bool TagCountingPass::takeLayer(CFileStream /*body*/) {
  m_firstOfLayer = m_skelegons.skelegons;
  return true;
}

bool TagCountingPass::takeSkelegons(CFileStream body) { return passOn(body, m_skelegons); }

bool TagCountingPass::takeSkelegonTags(std::uint32_t /*type*/, CFileStream body) {
  TagPairs pairs(body.rest());
  std::uint32_t last = 0;
  bool ascends = true;
  const TagCounter counter(*m_store, m_firstOfLayer);
  pairs.readBelow(m_skelegons.skelegons - m_firstOfLayer, [&, counter](std::uint32_t skelegon, std::uint16_t /*text*/) {
    counter.count(skelegon);
    ascends &= skelegon >= last;
    last = skelegon;
  });
  m_listsAscend &= ascends;
  return pairs.atEnd();
}

// --- filling ---

FillingPass::FillingPass(ObjectStore& store, const ObjectCounts& counts, bool tagListsAscend)
    : m_store(&store),
      m_tags(store.skelegons, tagListsAscend),
      m_faces(roomFor(store, counts)),
      m_skelegons(store.skelegons) {}

FaceStore& FillingPass::roomFor(ObjectStore& store, const ObjectCounts& counts) {
  store.tags = TagTexts(counts.tagTexts, counts.tagTextBytes);
  store.layerNames.reserve(counts.layerNameBytes);
  store.layers.reserve(counts.layers + 1);
  store.points = Block<Vec12>(counts.points);
  store.faces = FaceStore(counts.faces);
  return store.faces;
}

bool FillingPass::takeTagTexts(CFileStream body) {
  m_store->tags.append(body.rest());
  return true;
}

bool FillingPass::takeLayer(CFileStream body) {
  LayerChunk layer;
  if (!endLayer() || !readLayerChunk(body, layer)) return false;
  const std::string name = nameOf(layer);
  LayerRecord& record = m_store->layers.emplace_back(m_next);
  record.pivot = layer.pivot;
  record.number = layer.number;
  record.flags = layer.flags;
  record.parent = layer.parent;
  record.nameStart = static_cast<std::uint32_t>(m_store->layerNames.size());
  record.nameLength = static_cast<std::uint32_t>(name.size());
  m_store->layerNames += name;
  return true;
}

bool FillingPass::takePoints(CFileStream body) {
  const std::span<const std::byte> bytes = body.rest();
  const std::size_t points = bytes.size() / kBytesOfVec12;
  Vec12* to = m_store->points.data() + m_next.firstPoint;
  for (std::size_t i = 0; i < points; ++i) to[i] = loadVec12(bytes.data() + i * kBytesOfVec12);
  m_next.firstPoint += static_cast<std::uint32_t>(points);
  return true;
}

bool FillingPass::takeFaces(CFileStream body) {
  const bool isSound = passOn(body, m_faces);
  m_next.firstFace = m_faces.faces();
  return isSound;
}

bool FillingPass::takeSkelegons(CFileStream body) {
  const bool isSound = passOn(body, m_skelegons);
  m_next.firstSkelegon = m_skelegons.skelegons();
  return isSound;
}

bool FillingPass::takeSkelegonTags(std::uint32_t type, CFileStream body) {
  const std::uint32_t first = m_store->layers.back().firstSkelegon;
  m_tags.add(type, body.rest(), first, m_next.firstSkelegon - first);
  return true;
}

bool FillingPass::endLayer() {
  m_tags.finish();
  if (m_store->layers.empty()) return true;
  const std::int64_t points = m_next.firstPoint - m_store->layers.back().firstPoint;
  const std::int32_t highest = std::max(m_faces.highestPoint, m_skelegons.highestPoint);
  m_faces.highestPoint = m_skelegons.highestPoint = kNoPoint;
  return highest < points;
}

bool FillingPass::finish() {
  if (!endLayer()) return false;
  m_store->layers.push_back(m_next);
  return true;
}

}  // namespace lwp::st
