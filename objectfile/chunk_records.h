// What stands inside the chunks that the stand-in knows, one pair of functions per chunk. Shared by reader and writer: the
// writer compares what a chunk says with what the object says, and leaves the chunk alone when they agree.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "objectfile/object_file.h"

namespace standin::records {

inline constexpr std::uint32_t kTags = lw::fourCharacters('T', 'A', 'G', 'S');
inline constexpr std::uint32_t kLayer = lw::fourCharacters('L', 'A', 'Y', 'R');
inline constexpr std::uint32_t kPoints = lw::fourCharacters('P', 'N', 'T', 'S');
inline constexpr std::uint32_t kBounds = lw::fourCharacters('B', 'B', 'O', 'X');
inline constexpr std::uint32_t kMap = lw::fourCharacters('V', 'M', 'A', 'P');
inline constexpr std::uint32_t kMapOptions = lw::fourCharacters('V', 'M', 'P', 'A');
inline constexpr std::uint32_t kPolygonMap = lw::fourCharacters('V', 'M', 'A', 'D');
inline constexpr std::uint32_t kPolygons = lw::fourCharacters('P', 'O', 'L', 'S');
inline constexpr std::uint32_t kPolygonTags = lw::fourCharacters('P', 'T', 'A', 'G');

inline constexpr std::size_t kMostPolygonPoints = 0x3FF;
inline constexpr std::size_t kMostTexts = 0x10000;

using TagPair = std::pair<std::uint32_t, std::uint16_t>;  // polygon, text

// Each gives nothing when the bytes do not hold what the chunk should.
std::optional<std::vector<std::string>> readTexts(const std::string& bytes);
std::optional<ObjectLayer> readLayer(const std::string& bytes);
std::optional<std::vector<FilePoint>> readPoints(const std::string& bytes);
std::optional<PolygonGroup> readPolygons(const std::string& bytes);
std::optional<VertexMap> readMap(const std::string& bytes);
// Type, dimension and name only; good for the maps by polygon too.
std::optional<VertexMap> readMapHead(const std::string& bytes);
struct TagChunk {
  std::uint32_t type = 0;
  std::vector<TagPair> pairs;
};
std::optional<TagChunk> readTags(const std::string& bytes);

std::string writeTexts(const std::vector<std::string>& texts);
std::string writeLayer(const ObjectLayer& layer);
std::string writePoints(const FilePoint* first, std::size_t count);
std::string writeBounds(const std::vector<FilePoint>& points);
std::string writePolygons(const PolygonGroup& group);
std::string writeMap(const VertexMap& map);
std::string writeTags(const TagChunk& tags);

}  // namespace standin::records
