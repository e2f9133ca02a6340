// Object files (LWO2 and LWO3) as the stand-in host opens and saves them.
//
// An ObjectFile is plain data: change layers, points, polygons, tags and weight maps at will, then write it. It also carries
// the chunks of the file it came from. Whatever the stand-in does not know (surfaces, clips, envelopes, ...) is written back
// where it stood, and every chunk whose content nobody changed comes out byte for byte as it was.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "interface/lightwave.h"
#include "objectfile/chunks.h"
#include "objectfile/outcome.h"

namespace standin {

inline constexpr std::uint32_t kFormObject2 = lw::fourCharacters('L', 'W', 'O', '2');
inline constexpr std::uint32_t kFormObject3 = lw::fourCharacters('L', 'W', 'O', '3');
inline constexpr std::uint32_t kTagSurface = lw::fourCharacters('S', 'U', 'R', 'F');
// The tag type under which a skelegon stores the bone setting of a number: 's', 'g', '1' and the number as a byte.
constexpr std::uint32_t settingTag(std::uint8_t number) {
  return lw::fourCharacters('s', 'g', '1', static_cast<char>(number));
}

using FilePoint = std::array<float, 3>;

struct PolygonTag {
  std::uint32_t type = 0;
  std::string text;
  bool operator==(const PolygonTag&) const = default;
};

struct ObjectPolygon {
  std::vector<std::uint32_t> points;
  std::uint16_t flags = 0;       // 0 to 63; what they mean depends on the polygon's type
  std::vector<PolygonTag> tags;  // one of a type at most

  // Null when the polygon has no tag of the type; an empty text is a tag too.
  const std::string* tag(std::uint32_t type) const;
  void setTag(std::uint32_t type, std::string text);
  void removeTag(std::uint32_t type);
};

// The polygons of one POLS chunk.
struct PolygonGroup {
  std::uint32_t type = lw::kTypeFace;
  std::vector<ObjectPolygon> polygons;
};

struct VertexMap {
  std::uint32_t type = lw::kMapWeight;
  std::string name;
  std::uint16_t dimension = 1;
  std::vector<std::uint32_t> points;
  std::vector<float> values;  // `dimension` for each point
};

struct ObjectLayer {
  std::uint16_t number = 0;  // 0 for the first layer
  std::uint16_t flags = 0;   // bit 0: hidden
  FilePoint pivot{};
  std::string name;
  std::optional<std::uint16_t> parent;
  std::vector<FilePoint> points;  // relative to the pivot
  std::vector<PolygonGroup> groups;
  std::vector<VertexMap> maps;

  // The last group of the type; a new one at the end when there is none.
  PolygonGroup& group(std::uint32_t type);
  std::size_t polygonCount(std::uint32_t type) const;
};

struct ObjectFile {
  std::uint32_t form = kFormObject2;
  std::vector<ObjectLayer> layers;  // in the file's order; groups and layers are only ever added at the end
  std::vector<Chunk> chunks;        // of the file it was read from; empty for an object made in code
};

// What to do with a tag whose text the file does not have.
enum class TextlessTags { Refuse, LeaveOut };

Outcome<ObjectFile> parseObject(std::string_view bytes, TextlessTags textless = TextlessTags::Refuse);
Outcome<ObjectFile> readObject(const std::string& path, TextlessTags textless = TextlessTags::Refuse);

Outcome<std::string> serializeObject(const ObjectFile& object);
// Empty when the file was written, else the failure, after which the file is what it was.
std::optional<Failure> writeObject(const ObjectFile& object, const std::string& path);

}  // namespace standin
