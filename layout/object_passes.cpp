#include "layout/object_passes.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

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

// --- sinks of polygon lists ---

struct PolygonCounter {
  std::size_t polygons = 0;
  std::size_t indices = 0;

  void startPolygon(std::uint32_t corners) {
    ++polygons;
    indices += corners;
  }
  void addIndex(std::uint32_t /*point*/) {}
};

struct SkelegonCounter {
  SkelegonStore& skelegons;
  std::uint32_t next;

  void startPolygon(std::uint32_t corners) { skelegons.countSkelegon(next++, corners); }
  void addIndex(std::uint32_t /*point*/) {}
};

// 'start' and 'index' are where the next start and index go, 'indices' is the number of that index.
struct FaceFiller {
  std::uint32_t* start;
  std::uint32_t* index;
  std::uint32_t indices;
  std::int32_t highestPoint;

  void startPolygon(std::uint32_t corners) {
    *start++ = indices;
    indices += corners;
  }
  void addIndex(std::uint32_t point) {
    *index++ = point;
    highestPoint = std::max(highestPoint, static_cast<std::int32_t>(point));
  }
};

struct SkelegonFiller {
  SkelegonStore& skelegons;
  std::uint32_t next;
  std::int32_t highestPoint;
  std::uint32_t* point = nullptr;

  void startPolygon(std::uint32_t corners) { point = skelegons.placeSkelegon(next++, corners); }
  void addIndex(std::uint32_t number) {
    *point++ = number;
    highestPoint = std::max(highestPoint, static_cast<std::int32_t>(number));
  }
};

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

bool CountingPass::takeFaces(CFileStream body) {
  PolygonCounter counter;
  if (!readPolygonList(body.rest(), counter)) return false;
  m_counts.faces += counter.polygons;
  m_counts.faceIndices += counter.indices;
  return true;
}

bool CountingPass::takeSkelegons(CFileStream body) {
  PolygonCounter counter;
  if (!readPolygonList(body.rest(), counter)) return false;
  m_counts.skelegons += counter.polygons;
  return true;
}

bool CountingPass::takeSkelegonTags(std::uint32_t /*type*/, CFileStream /*body*/) { return true; }

// --- counting the tags of each skelegon ---

bool TagCountingPass::takeTagTexts(CFileStream /*body*/) { return true; }

bool TagCountingPass::takeLayer(CFileStream /*body*/) {
  m_firstOfLayer = m_count;
  return true;
}

bool TagCountingPass::takePoints(CFileStream /*body*/) { return true; }

bool TagCountingPass::takeFaces(CFileStream /*body*/) { return true; }

bool TagCountingPass::takeSkelegons(CFileStream body) {
  SkelegonCounter counter{*m_skelegons, m_count};
  const bool isSound = readPolygonList(body.rest(), counter);
  m_count = counter.next;
  return isSound;
}

bool TagCountingPass::takeSkelegonTags(std::uint32_t /*type*/, CFileStream body) {
  TagPairs pairs(body.rest());
  std::uint32_t last = 0;
  bool ascends = true;
  pairs.readBelow(m_count - m_firstOfLayer, [&](std::uint32_t skelegon, std::uint16_t /*text*/) {
    m_skelegons->countTag(m_firstOfLayer + skelegon);
    ascends &= skelegon >= last;
    last = skelegon;
  });
  m_listsAscend &= ascends;
  return pairs.atEnd();
}

// --- filling ---

FillingPass::FillingPass(ObjectStore& store, const ObjectCounts& counts, bool tagListsAscend)
    : m_store(&store), m_tags(store.skelegons, tagListsAscend) {
  store.tags = TagTexts(counts.tagTexts, counts.tagTextBytes);
  store.layerNames.reserve(counts.layerNameBytes);
  store.layers.reserve(counts.layers + 1);
  store.points = Block<Vec12>(counts.points);
  store.faces.starts = Block<std::uint32_t>(counts.faces + 1);
  store.faces.indices = Block<std::uint32_t>(counts.faceIndices);
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
  FaceStore& faces = m_store->faces;
  FaceFiller filler{faces.starts.data() + m_next.firstFace, faces.indices.data() + m_faceIndices, m_faceIndices,
                    m_highestPoint};
  const bool isSound = readPolygonList(body.rest(), filler);
  m_next.firstFace = static_cast<std::uint32_t>(filler.start - faces.starts.data());
  m_faceIndices = filler.indices;
  m_highestPoint = filler.highestPoint;
  return isSound;
}

bool FillingPass::takeSkelegons(CFileStream body) {
  SkelegonFiller filler{m_store->skelegons, m_next.firstSkelegon, m_highestPoint};
  const bool isSound = readPolygonList(body.rest(), filler);
  m_next.firstSkelegon = filler.next;
  m_highestPoint = filler.highestPoint;
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
  const std::uint32_t points = m_next.firstPoint - m_store->layers.back().firstPoint;
  return std::exchange(m_highestPoint, kNoPoint) < static_cast<std::int64_t>(points);
}

bool FillingPass::finish() {
  if (!endLayer()) return false;
  m_store->layers.push_back(m_next);
  m_store->faces.starts[m_next.firstFace] = m_faceIndices;
  return true;
}

}  // namespace lwp::st
