#include "objectfile/object_file.h"

#include <algorithm>

#include "objectfile/file_bytes.h"
#include "objectfile/whole_file.h"

namespace standin {

const std::string* ObjectPolygon::tag(std::uint32_t type) const {
  const auto found = std::find_if(tags.begin(), tags.end(), [&](const PolygonTag& tag) { return tag.type == type; });
  return found == tags.end() ? nullptr : &found->text;
}

void ObjectPolygon::setTag(std::uint32_t type, std::string text) {
  const auto found = std::find_if(tags.begin(), tags.end(), [&](const PolygonTag& tag) { return tag.type == type; });
  if (found == tags.end()) {
    tags.push_back({type, std::move(text)});
  } else {
    found->text = std::move(text);
  }
}

void ObjectPolygon::removeTag(std::uint32_t type) {
  std::erase_if(tags, [&](const PolygonTag& tag) { return tag.type == type; });
}

PolygonGroup& ObjectLayer::group(std::uint32_t type) {
  const auto found = std::find_if(groups.rbegin(), groups.rend(), [&](const PolygonGroup& g) { return g.type == type; });
  if (found != groups.rend()) return *found;
  groups.push_back({type, {}});
  return groups.back();
}

std::size_t ObjectLayer::polygonCount(std::uint32_t type) const {
  std::size_t count = 0;
  for (const PolygonGroup& group : groups) {
    if (group.type == type) count += group.polygons.size();
  }
  return count;
}

Outcome<ObjectFile> readObject(const std::string& path, TextlessTags textless) {
  const Outcome<std::string> bytes = readFileBytes(path);
  if (!bytes) return Failure{bytes.why()};
  Outcome<ObjectFile> object = parseObject(*bytes, textless);
  if (!object) return Failure{path + ": " + object.why()};
  return object;
}

std::optional<Failure> writeObject(const ObjectFile& object, const std::string& path) {
  const Outcome<std::string> bytes = serializeObject(object);
  if (!bytes) return Failure{path + ": " + bytes.why()};
  return writeWholeFile(path, *bytes, Existing::Replace);
}

}  // namespace standin
