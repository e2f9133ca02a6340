#include "rigs/file_tags.h"

#include <map>
#include <utility>

#include "objectfile/chunk_records.h"

namespace standin::rigs {
namespace {

// The numbers of the texts under one type, as they stand behind each other.
using TextNumbers = std::vector<std::uint16_t>;

std::vector<std::string> textsOf(const ObjectFile& object) {
  std::vector<std::string> all;
  for (const Chunk& chunk : object.chunks) {
    if (chunk.id != records::kTags) continue;
    const auto texts = records::readTexts(chunk.bytes);
    if (texts) all.insert(all.end(), texts->begin(), texts->end());
  }
  return all;
}

class TagSearch {
 public:
  explicit TagSearch(const ObjectFile& object) : object_(object), texts_(textsOf(object)) {}

  std::vector<OddTags> all() {
    for (const Chunk& chunk : object_.chunks) {
      if (chunk.id == records::kLayer) enterLayer();
      if (chunk.id == records::kPolygons) enterGroup();
      if (chunk.id == records::kPolygonTags && isAmongSkelegons()) gather(chunk);
    }
    finishGroup();
    return std::move(found_);
  }

 private:
  void enterLayer() {
    finishGroup();
    ++layers_;
    groups_ = 0;
  }

  void enterGroup() {
    finishGroup();
    ++groups_;
  }

  bool isAmongSkelegons() const {
    return layers_ > 0 && groups_ > 0 && object_.layers[layers_ - 1].groups[groups_ - 1].type == lw::kTypeBone;
  }

  void gather(const Chunk& chunk) {
    const auto tags = records::readTags(chunk.bytes);
    if (!tags) return;
    for (const auto& [polygon, text] : tags->pairs) gathered_[polygon][tags->type].push_back(text);
  }

  void finishGroup() {
    for (const auto& [polygon, types] : gathered_) {
      OddTags odd{layers_ - 1, groups_ - 1, polygon, {}, {}};
      for (const auto& [type, numbers] : types) judge(odd, type, numbers);
      if (!odd.repeated.empty() || !odd.textless.empty()) found_.push_back(std::move(odd));
    }
    gathered_.clear();
  }

  void judge(OddTags& odd, std::uint32_t type, const TextNumbers& numbers) const {
    // Of several the first counts, even when it has no text.
    if (numbers.front() >= texts_.size()) {
      odd.textless.push_back({type, numbers.front()});
    } else if (numbers.back() < texts_.size() && texts_[numbers.front()] != texts_[numbers.back()]) {
      odd.repeated.push_back({type, numbers.size(), texts_[numbers.front()], texts_[numbers.back()]});
    }
  }

  const ObjectFile& object_;
  const std::vector<std::string> texts_;
  std::size_t layers_ = 0;
  std::size_t groups_ = 0;                                                  // of the current layer
  std::map<std::uint32_t, std::map<std::uint32_t, TextNumbers>> gathered_;  // of the current group: polygon, type
  std::vector<OddTags> found_;
};

}  // namespace

std::vector<OddTags> oddTagsOf(const ObjectFile& object) { return TagSearch(object).all(); }

}  // namespace standin::rigs
