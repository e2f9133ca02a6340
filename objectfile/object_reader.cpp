// Bytes to object. A damaged file is refused whole, with a sentence.
#include <algorithm>
#include <new>

#include "objectfile/chunk_records.h"
#include "objectfile/object_file.h"

namespace standin {
namespace {

class ObjectReader {
 public:
  explicit ObjectReader(TextlessTags textless) : textless_(textless) {}

  // Empty when all went well.
  std::string read(const std::vector<Chunk>& chunks) {
    // Texts first: tags refer to them, wherever their chunk stands.
    for (const Chunk& chunk : chunks) {
      if (chunk.id == records::kTags && !readTexts(chunk)) return damaged(chunk);
    }
    for (const Chunk& chunk : chunks) {
      if (!readChunk(chunk)) return why_.empty() ? damaged(chunk) : why_;
    }
    return {};
  }

  std::vector<ObjectLayer> takeLayers() { return std::move(layers_); }

 private:
  static std::string damaged(const Chunk& chunk) { return "chunk " + chunkName(chunk.id) + " is damaged"; }

  bool refuse(std::string why) {
    why_ = std::move(why);
    return false;
  }

  bool refuseTag(const char* what, std::size_t number, std::size_t count) {
    return refuse("a tag in layer " + std::to_string(layers_.back().number) + " names " + what + " " +
                  std::to_string(number) + ", which is not there (" + std::to_string(count) + " " + what +
                  "s, counted from 0)");
  }

  bool readChunk(const Chunk& chunk) {
    if (chunk.id == records::kLayer) return readLayer(chunk);
    const bool known = chunk.id == records::kPoints || chunk.id == records::kPolygons || chunk.id == records::kPolygonTags ||
                       chunk.id == records::kMap;
    if (!known) return true;
    if (layers_.empty()) return refuse("chunk " + chunkName(chunk.id) + " stands before the first layer");
    if (chunk.id == records::kPoints) return readPoints(chunk);
    if (chunk.id == records::kPolygons) return readPolygons(chunk);
    if (chunk.id == records::kPolygonTags) return readTags(chunk);
    return readMap(chunk);
  }

  bool readTexts(const Chunk& chunk) {
    const auto texts = records::readTexts(chunk.bytes);
    if (!texts) return false;
    texts_.insert(texts_.end(), texts->begin(), texts->end());
    return true;
  }

  bool readLayer(const Chunk& chunk) {
    auto layer = records::readLayer(chunk.bytes);
    if (!layer) return false;
    layers_.push_back(std::move(*layer));
    return true;
  }

  bool readPoints(const Chunk& chunk) {
    const auto points = records::readPoints(chunk.bytes);
    if (!points) return false;
    std::vector<FilePoint>& all = layers_.back().points;
    all.insert(all.end(), points->begin(), points->end());
    return true;
  }

  bool readPolygons(const Chunk& chunk) {
    auto group = records::readPolygons(chunk.bytes);
    if (!group) return false;
    ObjectLayer& layer = layers_.back();
    for (const ObjectPolygon& polygon : group->polygons) {
      const auto missing = [&](std::uint32_t point) { return point >= layer.points.size(); };
      if (std::any_of(polygon.points.begin(), polygon.points.end(), missing)) {
        return refuse("a polygon names a point that its layer does not have");
      }
    }
    layer.groups.push_back(std::move(*group));
    return true;
  }

  bool readTags(const Chunk& chunk) {
    const auto tags = records::readTags(chunk.bytes);
    if (!tags) return false;
    ObjectLayer& layer = layers_.back();
    if (layer.groups.empty()) return refuse("polygon tags stand before the polygons of their layer");
    std::vector<ObjectPolygon>& polygons = layer.groups.back().polygons;
    for (const auto& [polygon, text] : tags->pairs) {
      if (polygon >= polygons.size()) return refuseTag("polygon", polygon, polygons.size());
      if (text < texts_.size()) {
        polygons[polygon].setTag(tags->type, texts_[text]);
      } else if (textless_ == TextlessTags::Refuse) {
        return refuseTag("text", text, texts_.size());
      }
    }
    return true;
  }

  bool readMap(const Chunk& chunk) {
    auto map = records::readMap(chunk.bytes);
    if (!map) return false;
    ObjectLayer& layer = layers_.back();
    const auto missing = [&](std::uint32_t point) { return point >= layer.points.size(); };
    if (std::any_of(map->points.begin(), map->points.end(), missing)) {
      return refuse("a vertex map names a point that its layer does not have");
    }
    layer.maps.push_back(std::move(*map));
    return true;
  }

  const TextlessTags textless_;
  std::vector<std::string> texts_;
  std::vector<ObjectLayer> layers_;
  std::string why_;
};

Outcome<ObjectFile> parse(std::string_view bytes, TextlessTags textless) {
  Outcome<Form> form = splitForm(bytes);
  if (!form) return Failure{form.why()};
  if (form->type != kFormObject2 && form->type != kFormObject3) {
    return Failure{"form type " + chunkName(form->type) + " is not one that is read (LWO2, LWO3)"};
  }
  ObjectReader reader(textless);
  if (std::string why = reader.read(form->chunks); !why.empty()) return Failure{std::move(why)};
  return ObjectFile{form->type, reader.takeLayers(), std::move(form->chunks)};
}

}  // namespace

Outcome<ObjectFile> parseObject(std::string_view bytes, TextlessTags textless) {
  try {
    return parse(bytes, textless);
  } catch (const std::bad_alloc&) {
    return Failure{wordsOf(std::errc::not_enough_memory)};
  }
}

}  // namespace standin
