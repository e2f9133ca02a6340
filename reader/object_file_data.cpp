#include "reader/object_file_data.h"

#include <utility>

namespace lwp::st {

ObjectFileData::ObjectFileData(std::string path, ObjectStore store) : path_(std::move(path)), store_(std::move(store)) {}

void ObjectFileData::renameLayer(std::size_t at, std::string_view name) {
  // The old name stays in the block, unused: layers are renamed once in a run at most.
  LayerRecord& record = store_.layers[at];
  const auto start = static_cast<std::uint32_t>(store_.layerNames.size());
  store_.layerNames.append(name);
  record.nameStart = start;
  record.nameLength = static_cast<std::uint32_t>(name.size());
}

void ObjectFileData::clear() { *this = ObjectFileData(); }

}  // namespace lwp::st
