// What an object file says of a skelegon's tags that an ObjectPolygon cannot say: it has one text for each type, and no tag
// without a text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "objectfile/object_file.h"

namespace standin::rigs {

// A type that the file stores several times on one polygon, with different texts at the ends. The conversion takes the
// first, Modeler perhaps the last.
struct RepeatedTag {
  std::uint32_t type = 0;
  std::size_t times = 0;
  std::string first;
  std::string last;
};

// A tag whose text is beyond the texts of the file. The conversion looks no further for its type, as if none were stored.
struct TextlessTag {
  std::uint32_t type = 0;
  std::size_t text = 0;  // its number, from 0
};

struct OddTags {
  // Where the polygon stands in the object.
  std::size_t layer = 0;
  std::size_t group = 0;
  std::size_t polygon = 0;

  std::vector<RepeatedTag> repeated;
  std::vector<TextlessTag> textless;
};

// The polygons of type BONE that have such tags, in the order of the file. None for an object that was made in code.
std::vector<OddTags> oddTagsOf(const ObjectFile& object);

}  // namespace standin::rigs
