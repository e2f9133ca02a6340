// Reads an object file as the conversion needs it: its layers, the skelegons with their tags, and the list of tag texts.
// These take at most twice the size of the file, whatever is in that: a polygon without points costs two bytes there, and
// four here. So everything lies in a few lists for the whole object, and polygons are put together when they are asked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "reader/file_streams.h"

namespace lwp::st {

// One tag of a skelegon: its four-character type, and which text of the object's tag list it has. That may lack the text.
struct PolygonTag {
  std::uint32_t type;
  std::uint16_t index;
};

// The numbers of a skelegon's points, head first, and its tags in the order of the file.
struct SkelegonRecord {
  std::vector<std::uint32_t> points;
  std::span<const PolygonTag> tags;
};

// A layer's own values, and where its part of the lists ends, which is where the next layer's begins.
struct LayerRecord {
  Vec12 pivot{};
  std::uint16_t number = 0, flags = 0, parent = 0;
  std::uint32_t nameEnd = 0, pointEnd = 0, faceEnd = 0, skelegonEnd = 0, skelegonPointEnd = 0;
};

struct ObjectStore {
  // The last point number of a polygon bears this mark; none is so high as to bear it by itself.
  static constexpr std::uint32_t kMark = 0x80000000U;
  static constexpr std::uint32_t kFaceWithoutCorners = 0xFFFFFFFFU;  // stands for the numbers of a face that has none

  // Each with a zero behind it. Only every second has its start noted: more would be too much beside texts of one letter.
  std::string texts;
  std::vector<std::uint32_t> textStarts;
  std::size_t textCount = 0;
  // Behind one that is no layer, whose part of every list is empty.
  std::vector<LayerRecord> layers;
  std::string layerNames;
  std::unique_ptr<Vec12[]> points;
  std::unique_ptr<std::uint32_t[]> faces, skelegonPoints;
  std::unique_ptr<PolygonTag[]> tags;
  // Where the tags of skelegon i end there is tagEnds[i + 1], with the mark when it has points. The first one is 0.
  std::vector<std::uint32_t> tagEnds;
};

// A layer of an ObjectFileData: to be used while that stands where it is and keeps its contents.
class ObjectLayer {
 public:
  ObjectLayer(const ObjectStore& store, std::size_t at)
      : store_(&store), before_(&store.layers[at]), record_(&store.layers[at + 1]) {}

  std::uint16_t number() const { return record_->number; }
  std::uint16_t flags() const { return record_->flags; }
  Vec12 pivot() const { return record_->pivot; }
  // Never empty: a layer without a name is called Layer1 when its number is 0, and so on.
  std::string name() const {
    const std::string name = store_->layerNames.substr(before_->nameEnd, record_->nameEnd - before_->nameEnd);
    return name.empty() ? "Layer" + std::to_string(number() + 1) : name;
  }
  std::uint16_t parent() const { return record_->parent; }  // its number; 0 also when the file says nothing of one
  std::span<const Vec12> points() const {
    return {store_->points.get() + before_->pointEnd, store_->points.get() + record_->pointEnd};
  }

  // FACE polygons: the numbers of their points. A file may name points that the layer does not have, or has in no chunk that
  // is read: who looks a number up in points() compares it with points().size() first.
  std::size_t faceCount() const { return faces().size(); }
  std::vector<std::vector<std::uint32_t>> faces() const {
    std::vector<std::vector<std::uint32_t>> faces;
    const std::uint32_t* next = store_->faces.get() + before_->faceEnd;
    while (next != store_->faces.get() + record_->faceEnd) faces.push_back(polygonAt(next));
    return faces;
  }
  // BONE polygons. Of their point numbers the same holds; their tags may name texts that the tag list lacks.
  std::size_t skelegonCount() const { return record_->skelegonEnd - before_->skelegonEnd; }
  std::vector<SkelegonRecord> skelegons() const {
    std::vector<SkelegonRecord> skelegons(skelegonCount());
    const std::uint32_t* next = store_->skelegonPoints.get() + before_->skelegonPointEnd;
    const std::uint32_t* end = store_->tagEnds.data() + before_->skelegonEnd;
    for (SkelegonRecord& skelegon : skelegons) {
      const std::uint32_t first = *end++ & ~ObjectStore::kMark;
      skelegon.tags = std::span(store_->tags.get() + first, (*end & ~ObjectStore::kMark) - first);
      if ((*end & ObjectStore::kMark) != 0) skelegon.points = polygonAt(next);
    }
    return skelegons;
  }

 private:
  // The numbers of one polygon. 'next' goes on behind the marked one.
  static std::vector<std::uint32_t> polygonAt(const std::uint32_t*& next) {
    std::vector<std::uint32_t> numbers;
    do {
      if (*next != ObjectStore::kFaceWithoutCorners) numbers.push_back(*next & ~ObjectStore::kMark);
    } while ((*next++ & ObjectStore::kMark) == 0);
    return numbers;
  }

  const ObjectStore* store_;
  const LayerRecord* before_;
  const LayerRecord* record_;
};

class ObjectFileData {
 public:
  ObjectFileData() = default;
  ObjectFileData(std::string path, ObjectStore store) : path_(std::move(path)), store_(std::move(store)) {}

  const std::string& path() const { return path_; }  // that was read; empty when nothing was read
  // The tag texts of the file, in its order.
  std::size_t tagCount() const { return store_.textCount; }
  std::string_view tag(std::size_t at) const {
    const std::string_view even = store_.texts.data() + store_.textStarts[at / 2];
    return at % 2 == 0 ? even : std::string_view(even.data() + even.size() + 1);
  }
  std::size_t layerCount() const { return store_.layers.empty() ? 0 : store_.layers.size() - 1; }
  ObjectLayer layer(std::size_t at) const { return {store_, at}; }

 private:
  std::string path_;
  ObjectStore store_;
};

// Loads the file of that path, which is in the system's narrow code page, and parses it. True when it is a sound object
// file; else false, and 'data' is empty. Says nothing. The file's bytes are given back before it returns.
bool ReadObjectFile(ObjectFileData& data, std::string narrowPath);

// The same for a file that is in memory; 'path' is only noted. The bytes may go away afterwards.
bool ParseObjectFile(ObjectFileData& data, std::span<const std::byte> file, std::string path);

}  // namespace lwp::st
