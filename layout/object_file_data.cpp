#include "layout/object_file_data.h"

#include <utility>

namespace lwp::st {

ObjectFileData::ObjectFileData(std::string path, ObjectStore store) : m_path(std::move(path)), m_store(std::move(store)) {}

void ObjectFileData::renameLayer(std::size_t at, std::string_view name) {
  // The old name stays in the block, unused: layers are renamed once in a run at most.
  LayerRecord& record = m_store.layers[at];
  const auto start = static_cast<std::uint32_t>(m_store.layerNames.size());
  m_store.layerNames.append(name);
  record.nameStart = start;
  record.nameLength = static_cast<std::uint32_t>(name.size());
}

void ObjectFileData::clear() { *this = ObjectFileData(); }

}  // namespace lwp::st
