#include "objectfile/chunk_records.h"

#include <algorithm>

namespace standin::records {
namespace {

constexpr std::uint16_t kNoParent = 0xFFFF;
constexpr int kFlagShift = 10;

FilePoint readPoint(ChunkReader& reader) {
  FilePoint point;
  for (float& part : point) part = reader.real();
  return point;
}

void writePoint(ChunkWriter& writer, const FilePoint& point) {
  for (const float part : point) writer.real(part);
}

}  // namespace

std::optional<std::vector<std::string>> readTexts(const std::string& bytes) {
  std::vector<std::string> texts;
  ChunkReader reader(bytes);
  while (!reader.atEnd()) texts.push_back(reader.text());
  if (reader.failed()) return std::nullopt;
  return texts;
}

std::string writeTexts(const std::vector<std::string>& texts) {
  ChunkWriter writer;
  for (const std::string& text : texts) writer.text(text);
  return writer.take();
}

std::optional<ObjectLayer> readLayer(const std::string& bytes) {
  ChunkReader reader(bytes);
  ObjectLayer layer;
  layer.number = reader.word();
  layer.flags = reader.word();
  layer.pivot = readPoint(reader);
  layer.name = reader.text();
  if (!reader.atEnd()) {
    const std::uint16_t parent = reader.word();
    if (parent != kNoParent) layer.parent = parent;
  }
  if (reader.failed()) return std::nullopt;
  return layer;
}

std::string writeLayer(const ObjectLayer& layer) {
  ChunkWriter writer;
  writer.word(layer.number);
  writer.word(layer.flags);
  writePoint(writer, layer.pivot);
  writer.text(layer.name);
  if (layer.parent) writer.word(*layer.parent);
  return writer.take();
}

std::optional<std::vector<FilePoint>> readPoints(const std::string& bytes) {
  constexpr std::size_t kPointSize = 12;
  if (bytes.size() % kPointSize != 0) return std::nullopt;
  ChunkReader reader(bytes);
  std::vector<FilePoint> points(bytes.size() / kPointSize);
  for (FilePoint& point : points) point = readPoint(reader);
  return points;
}

std::string writePoints(const FilePoint* first, std::size_t count) {
  ChunkWriter writer;
  for (std::size_t i = 0; i < count; ++i) writePoint(writer, first[i]);
  return writer.take();
}

std::string writeBounds(const std::vector<FilePoint>& points) {
  FilePoint low{};
  FilePoint high{};
  if (!points.empty()) low = high = points.front();
  for (const FilePoint& point : points) {
    for (std::size_t axis = 0; axis < point.size(); ++axis) {
      low[axis] = std::min(low[axis], point[axis]);
      high[axis] = std::max(high[axis], point[axis]);
    }
  }
  ChunkWriter writer;
  writePoint(writer, low);
  writePoint(writer, high);
  return writer.take();
}

std::optional<PolygonGroup> readPolygons(const std::string& bytes) {
  ChunkReader reader(bytes);
  PolygonGroup group;
  group.type = reader.longWord();
  while (!reader.atEnd()) {
    const std::uint16_t head = reader.word();
    ObjectPolygon polygon;
    polygon.flags = static_cast<std::uint16_t>(head >> kFlagShift);
    polygon.points.resize(head & kMostPolygonPoints);
    for (std::uint32_t& point : polygon.points) point = reader.index();
    group.polygons.push_back(std::move(polygon));
  }
  if (reader.failed()) return std::nullopt;
  return group;
}

std::string writePolygons(const PolygonGroup& group) {
  ChunkWriter writer;
  writer.longWord(group.type);
  for (const ObjectPolygon& polygon : group.polygons) {
    writer.word(static_cast<std::uint16_t>(polygon.flags << kFlagShift | (polygon.points.size() & kMostPolygonPoints)));
    for (const std::uint32_t point : polygon.points) writer.index(point);
  }
  return writer.take();
}

namespace {

VertexMap readHead(ChunkReader& reader) {
  VertexMap map;
  map.type = reader.longWord();
  map.dimension = reader.word();
  map.name = reader.text();
  return map;
}

}  // namespace

std::optional<VertexMap> readMapHead(const std::string& bytes) {
  ChunkReader reader(bytes);
  VertexMap map = readHead(reader);
  if (reader.failed()) return std::nullopt;
  return map;
}

std::optional<VertexMap> readMap(const std::string& bytes) {
  ChunkReader reader(bytes);
  VertexMap map = readHead(reader);
  while (!reader.atEnd()) {
    map.points.push_back(reader.index());
    // The dimension is the file's word: stop at the end of the bytes, not after as many zeros as it claims.
    for (std::uint16_t i = 0; i < map.dimension && !reader.failed(); ++i) map.values.push_back(reader.real());
  }
  if (reader.failed()) return std::nullopt;
  return map;
}

std::string writeMap(const VertexMap& map) {
  ChunkWriter writer;
  writer.longWord(map.type);
  writer.word(map.dimension);
  writer.text(map.name);
  std::size_t value = 0;
  for (const std::uint32_t point : map.points) {
    writer.index(point);
    for (std::uint16_t i = 0; i < map.dimension; ++i, ++value) {
      writer.real(value < map.values.size() ? map.values[value] : 0.0F);
    }
  }
  return writer.take();
}

std::optional<TagChunk> readTags(const std::string& bytes) {
  ChunkReader reader(bytes);
  TagChunk tags;
  tags.type = reader.longWord();
  while (!reader.atEnd()) {
    const std::uint32_t polygon = reader.index();
    tags.pairs.emplace_back(polygon, reader.word());
  }
  if (reader.failed()) return std::nullopt;
  return tags;
}

std::string writeTags(const TagChunk& tags) {
  ChunkWriter writer;
  writer.longWord(tags.type);
  for (const auto& [polygon, text] : tags.pairs) {
    writer.index(polygon);
    writer.word(text);
  }
  return writer.take();
}

}  // namespace standin::records
