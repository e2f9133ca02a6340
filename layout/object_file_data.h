// What the conversion needs of an object file: its layers, the skelegons with their tags, and the list of tag texts.
// The object reader fills it; the conversion tool reads it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "layout/object_store.h"

namespace lwp::st {

// A list whose elements are made when they are asked for: get(at) gives element 'at'. Refers to what 'get' refers to.
template <class Get>
class ListView {
 public:
  class Iterator {
   public:
    Iterator(const ListView* list, std::size_t at) : m_list(list), m_at(at) {}
    auto operator*() const { return (*m_list)[m_at]; }
    Iterator& operator++() {
      ++m_at;
      return *this;
    }
    bool operator==(const Iterator& other) const { return m_at == other.m_at; }

   private:
    const ListView* m_list;
    std::size_t m_at;
  };

  ListView(std::size_t size, Get get) : m_size(size), m_get(get) {}

  std::size_t size() const { return m_size; }
  bool empty() const { return m_size == 0; }
  auto operator[](std::size_t at) const { return m_get(at); }
  Iterator begin() const { return {this, 0}; }
  Iterator end() const { return {this, m_size}; }

 private:
  std::size_t m_size;
  Get m_get;
};

// A layer of an ObjectFileData: to be used while that stands where it is and keeps its contents.
class ObjectLayer {
 public:
  ObjectLayer(const ObjectStore& store, std::size_t layer) : m_store(&store), m_record(&store.layers[layer]) {}

  std::uint16_t number() const { return m_record->number; }
  std::uint16_t flags() const { return m_record->flags; }
  Vec12 pivot() const { return m_record->pivot; }
  // Never empty: a layer without a name is called Layer1 when its number is 0, and so on.
  std::string_view name() const {
    return std::string_view(m_store->layerNames).substr(m_record->nameStart, m_record->nameLength);
  }
  // The number of the parent layer; 0 also when the file says nothing of one.
  std::uint16_t parent() const { return m_record->parent; }

  std::span<const Vec12> points() const {
    return {m_store->points.data() + m_record->firstPoint, m_store->points.data() + next().firstPoint};
  }

  // FACE polygons: the numbers of their points, all below points().size().
  std::size_t faceCount() const { return next().firstFace - m_record->firstFace; }
  std::span<const std::uint32_t> face(std::size_t at) const { return m_store->faces[m_record->firstFace + at]; }
  auto faces() const {
    return ListView(faceCount(), [layer = *this](std::size_t at) { return layer.face(at); });
  }

  // BONE polygons. Their point numbers are below points().size(); their tags may name texts that the tag list lacks.
  std::size_t skelegonCount() const { return next().firstSkelegon - m_record->firstSkelegon; }
  SkelegonRecord skelegon(std::size_t at) const { return m_store->skelegons[m_record->firstSkelegon + at]; }
  auto skelegons() const {
    return ListView(skelegonCount(), [layer = *this](std::size_t at) { return layer.skelegon(at); });
  }

 private:
  const LayerRecord& next() const { return *(m_record + 1); }

  const ObjectStore* m_store;
  const LayerRecord* m_record;
};

class ObjectFileData {
 public:
  ObjectFileData() = default;
  ObjectFileData(std::string path, ObjectStore store);

  // The path that was read; empty when nothing was read.
  const std::string& path() const { return m_path; }

  // The tag texts of the file, in its order.
  auto tags() const {
    return ListView(m_store.tags.size(), [this](std::size_t at) { return m_store.tags[at]; });
  }

  std::size_t layerCount() const { return m_store.layers.empty() ? 0 : m_store.layers.size() - 1; }
  ObjectLayer layer(std::size_t at) const { return {m_store, at}; }
  auto layers() const {
    return ListView(layerCount(), [this](std::size_t at) { return layer(at); });
  }

  // Gives a layer another name. What was taken of the old names before is then void.
  void renameLayer(std::size_t at, std::string_view name);

  void clear();

 private:
  std::string m_path;
  ObjectStore m_store;
};

}  // namespace lwp::st
