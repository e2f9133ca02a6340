#include "reader/object_file_data.h"

namespace lwp::st {

void TagTexts::reserve(std::size_t bytes) {
  constexpr std::size_t kBytesOfTwoTexts = 4;
  texts_.reserve(bytes);
  starts_.reserve(bytes / kBytesOfTwoTexts + 1);
}

void TagTexts::add(std::string_view text) {
  if (count_ % 2 == 0) starts_.push_back(static_cast<std::uint32_t>(texts_.size()));
  texts_.append(text).push_back('\0');
  ++count_;
}

std::string_view TagTexts::operator[](std::size_t at) const {
  const std::string_view even = texts_.data() + starts_[at / 2];
  return at % 2 == 0 ? even : std::string_view(even.data() + even.size() + 1);
}

std::string ObjectLayer::name() const {
  const std::string name = store_->layerNames.substr(before_->nameEnd, record_->nameEnd - before_->nameEnd);
  return name.empty() ? "Layer" + std::to_string(number() + 1) : name;
}

std::span<const Vec12> ObjectLayer::points() const {
  return {store_->points.get() + before_->pointEnd, store_->points.get() + record_->pointEnd};
}

namespace {

// The numbers of one polygon, up to the marked one. 'next' goes on behind it.
std::vector<std::uint32_t> readPolygon(const std::uint32_t*& next) {
  std::vector<std::uint32_t> numbers;
  do numbers.push_back(*next & ~ObjectStore::kMark);
  while ((*next++ & ObjectStore::kMark) == 0);
  return numbers;
}

}  // namespace

std::vector<std::vector<std::uint32_t>> ObjectLayer::faces() const {
  std::vector<std::vector<std::uint32_t>> faces(faceCount());
  const std::uint32_t* next = store_->faces.get() + before_->faceEnd;
  for (std::vector<std::uint32_t>& face : faces) {
    if (*next != ObjectStore::kFaceWithoutCorners) {
      face = readPolygon(next);
    } else {
      ++next;
    }
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
    if ((*end & ObjectStore::kMark) != 0) skelegon.points = readPolygon(next);
  }
  return skelegons;
}

}  // namespace lwp::st
