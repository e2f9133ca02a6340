// What the conversion needs of an object file: its layers, the skelegons with their tags, and the list of tag texts.
// The object reader fills it; the conversion tool reads it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "reader/object_store.h"

namespace lwp::st {

// A list whose elements are made when they are asked for: get(at) gives element 'at'. Refers to what 'get' refers to.
template <class Get>
class ListView {
 public:
  class Iterator {
   public:
    Iterator(const ListView* list, std::size_t at) : list_(list), at_(at) {}
    auto operator*() const { return (*list_)[at_]; }
    Iterator& operator++() {
      ++at_;
      return *this;
    }
    bool operator==(const Iterator& other) const { return at_ == other.at_; }

   private:
    const ListView* list_;
    std::size_t at_;
  };

  ListView(std::size_t size, Get get) : size_(size), get_(get) {}

  std::size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  auto operator[](std::size_t at) const { return get_(at); }
  Iterator begin() const { return {this, 0}; }
  Iterator end() const { return {this, size_}; }

 private:
  std::size_t size_;
  Get get_;
};

// A layer of an ObjectFileData: to be used while that stands where it is and keeps its contents.
class ObjectLayer {
 public:
  ObjectLayer(const ObjectStore& store, std::size_t layer) : store_(&store), record_(&store.layers[layer]) {}

  std::uint16_t number() const { return record_->number; }
  std::uint16_t flags() const { return record_->flags; }
  Vec12 pivot() const { return record_->pivot; }
  // Never empty: a layer without a name is called Layer1 when its number is 0, and so on.
  std::string_view name() const {
    return std::string_view(store_->layerNames).substr(record_->nameStart, record_->nameLength);
  }
  // The number of the parent layer; 0 also when the file says nothing of one.
  std::uint16_t parent() const { return record_->parent; }

  std::span<const Vec12> points() const {
    return {store_->points.data() + record_->firstPoint, store_->points.data() + next().firstPoint};
  }

  // FACE polygons: the numbers of their points. A file may name points that the layer does not have, or has in no chunk that is
  // read: who looks a number up in points() compares it with points().size() first.
  std::size_t faceCount() const { return next().firstFace - record_->firstFace; }
  std::span<const std::uint32_t> face(std::size_t at) const { return store_->faces[record_->firstFace + at]; }
  auto faces() const {
    return ListView(faceCount(), [layer = *this](std::size_t at) { return layer.face(at); });
  }

  // BONE polygons. Of their point numbers the same holds; their tags may name texts that the tag list lacks.
  std::size_t skelegonCount() const { return next().firstSkelegon - record_->firstSkelegon; }
  SkelegonRecord skelegon(std::size_t at) const { return store_->skelegons[record_->firstSkelegon + at]; }
  auto skelegons() const {
    return ListView(skelegonCount(), [layer = *this](std::size_t at) { return layer.skelegon(at); });
  }

 private:
  const LayerRecord& next() const { return *(record_ + 1); }

  const ObjectStore* store_;
  const LayerRecord* record_;
};

class ObjectFileData {
 public:
  ObjectFileData() = default;
  ObjectFileData(std::string path, ObjectStore store);

  // The path that was read; empty when nothing was read.
  const std::string& path() const { return path_; }

  // The tag texts of the file, in its order.
  auto tags() const {
    return ListView(store_.tags.size(), [this](std::size_t at) { return store_.tags[at]; });
  }

  std::size_t layerCount() const { return store_.layers.empty() ? 0 : store_.layers.size() - 1; }
  ObjectLayer layer(std::size_t at) const { return {store_, at}; }
  auto layers() const {
    return ListView(layerCount(), [this](std::size_t at) { return layer(at); });
  }

  // Gives a layer another name. What was taken of the old names before is then void.
  void renameLayer(std::size_t at, std::string_view name);

  void clear();

 private:
  std::string path_;
  ObjectStore store_;
};

}  // namespace lwp::st
