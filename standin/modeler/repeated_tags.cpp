#include "standin/modeler/repeated_tags.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

#include "objectfile/chunk_records.h"

namespace standin {
namespace {

struct FileTag {
  std::size_t chunk;  // place among the file's
  std::size_t group;  // of polygons, counted through the file
  std::uint32_t type;
  records::TagPair pair;
};

std::vector<FileTag> tagsOf(const std::vector<Chunk>& chunks) {
  std::vector<FileTag> all;
  std::size_t group = 0;
  for (std::size_t i = 0; i < chunks.size(); ++i) {
    if (chunks[i].id == records::kPolygons) ++group;
    if (chunks[i].id != records::kPolygonTags) continue;
    const auto tags = records::readTags(chunks[i].bytes);
    if (!tags) continue;
    for (const records::TagPair& pair : tags->pairs) all.push_back({i, group, tags->type, pair});
  }
  return all;
}

// What is left when each type and polygon keeps the tag that comes first.
std::vector<FileTag> withoutRepeated(const std::vector<FileTag>& tags) {
  std::set<std::tuple<std::size_t, std::uint32_t, std::uint32_t>> seen;
  std::vector<FileTag> kept;
  for (const FileTag& tag : tags) {
    if (seen.emplace(tag.group, tag.type, tag.pair.first).second) kept.push_back(tag);
  }
  return kept;
}

void writeTags(std::vector<Chunk>& chunks, const std::vector<FileTag>& tags) {
  for (std::size_t i = 0; i < chunks.size(); ++i) {
    if (chunks[i].id != records::kPolygonTags) continue;
    auto chunk = records::readTags(chunks[i].bytes);
    if (!chunk) continue;
    chunk->pairs.clear();
    for (const FileTag& tag : tags) {
      if (tag.chunk == i) chunk->pairs.push_back(tag.pair);
    }
    chunks[i].bytes = records::writeTags(*chunk);
  }
}

}  // namespace

Outcome<ObjectFile> withOneOfEachTag(ObjectFile object, bool theFirst) {
  std::vector<FileTag> all = tagsOf(object.chunks);
  if (!theFirst) std::reverse(all.begin(), all.end());
  std::vector<FileTag> kept = withoutRepeated(all);
  if (kept.size() == all.size()) return object;
  if (!theFirst) std::reverse(kept.begin(), kept.end());
  writeTags(object.chunks, kept);
  const Outcome<std::string> bytes = joinForm({object.form, std::move(object.chunks)});
  if (!bytes) return Failure{bytes.why()};
  return parseObject(*bytes);
}

}  // namespace standin
