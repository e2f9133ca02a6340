#include "reader/stored_properties.h"

#include <vector>

namespace lwp {

skg::SkelegonProperties storedProperties(const st::ObjectFileData& data, const st::SkelegonRecord& skelegon) {
  std::vector<skg::StoredTag> tags;
  tags.reserve(skelegon.tags.size());
  for (const st::PolygonTag& tag : skelegon.tags) {
    const bool isThere = tag.index < data.tagCount();
    tags.push_back({tag.type, isThere ? std::optional<std::string_view>(data.tag(tag.index)) : std::nullopt});
  }
  return skg::propertiesFromFile(tags);
}

std::string withObjectName(std::string_view text, std::string_view objectName) {
  constexpr std::string_view kPlaceholder = "[file]:";
  std::string result;
  for (std::size_t found = text.find(kPlaceholder); found != std::string_view::npos; found = text.find(kPlaceholder)) {
    result.append(text.substr(0, found)).append(objectName).append(":");
    text.remove_prefix(found + kPlaceholder.size());
  }
  return result.append(text);
}

void putObjectName(skg::SkelegonProperties& properties, std::string_view objectName) {
  for (std::string& text : properties.texts()) text = withObjectName(text, objectName);
}

}  // namespace lwp
