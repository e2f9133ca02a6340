#include "reader/object_file_data.h"

namespace lwp::st {

namespace {

// The numbers of one polygon, up to the marked one. 'next' goes on behind it.
std::vector<std::uint32_t> polygonAt(const std::uint32_t*& next) {
  std::vector<std::uint32_t> numbers;
  do {
    numbers.push_back(*next & ~ObjectStore::kMark);
  } while ((*next++ & ObjectStore::kMark) == 0);
  return numbers;
}

}  // namespace

std::string ObjectLayer::name() const {
  const std::string name = store_->layerNames.substr(before_->nameEnd, record_->nameEnd - before_->nameEnd);
  return name.empty() ? "Layer" + std::to_string(number() + 1) : name;
}

std::span<const Vec12> ObjectLayer::points() const {
  return {store_->points.get() + before_->pointEnd, store_->points.get() + record_->pointEnd};
}

std::vector<std::vector<std::uint32_t>> ObjectLayer::faces() const {
  std::vector<std::vector<std::uint32_t>> faces(faceCount());
  const std::uint32_t* next = store_->faces.get() + before_->faceEnd;
  for (std::vector<std::uint32_t>& face : faces) {
    const bool hasCorners = *next != ObjectStore::kFaceWithoutCorners;
    face = polygonAt(next);
    if (!hasCorners) face.clear();
  }
  return faces;
}

std::vector<SkelegonRecord> ObjectLayer::skelegons() const {
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

std::string_view ObjectFileData::tag(std::size_t at) const {
  const std::string_view even = store_.texts.data() + store_.textStarts[at / 2];
  return at % 2 == 0 ? even : std::string_view(even.data() + even.size() + 1);
}

}  // namespace lwp::st
