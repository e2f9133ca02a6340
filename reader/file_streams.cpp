#include "reader/file_streams.h"

#include <fstream>
#include <locale>
#include <utility>

namespace lwp::st {

bool readInBlocks(std::istream& file, std::span<std::byte> bytes, std::size_t perRead) {
  while (!bytes.empty()) {
    const std::span<std::byte> block = bytes.first(std::min(perRead, bytes.size()));
    if (!file.read(reinterpret_cast<char*>(block.data()), static_cast<std::streamsize>(block.size()))) return false;
    bytes = bytes.subspan(block.size());
  }
  return true;
}

bool CFileStream::load(const std::string& narrowPath) {
  *this = {};
  std::ifstream file;
  file.imbue(std::locale::classic());  // a locale set in the host's process may convert what is read
  file.open(narrowPath, std::ios::binary | std::ios::ate);
  // A folder opens as a file on some systems; its length is then senseless or reading it fails.
  const std::streamoff length = file ? std::streamoff{file.tellg()} : -1;
  if (length < 0 || static_cast<std::uintmax_t>(length) > kLongestFile) return false;
  file.seekg(0);
  const auto size = static_cast<std::size_t>(length);
  auto bytes = std::make_unique_for_overwrite<std::byte[]>(size);
  if (!readInBlocks(file, std::span(bytes.get(), size))) return false;
  file_ = std::move(bytes);
  bytes_ = {file_.get(), size};
  return true;
}

namespace {

// The four characters of an identifier as the number that the file holds.
constexpr std::uint32_t id(const char (&text)[5]) {
  std::uint32_t id = 0;
  for (std::size_t i = 0; i < 4; ++i) id = (id << 8U) | static_cast<unsigned char>(text[i]);
  return id;
}

// 'polygons' is the type of the polygons that came last in this layer.
ChunkKind kindOf(std::uint32_t chunk, std::uint32_t polygons) {
  switch (chunk) {
    case id("TAGS"): return kTagTexts;
    case id("LAYR"): return kLayer;
    case id("PNTS"): return kPoints;
    case id("POLS"): return polygons == id("FACE") ? kFaces : polygons == id("BONE") ? kSkelegons : kOther;
    // Only the tags of skelegons are of use; those of other polygons are passed over unread.
    case id("PTAG"): return polygons == id("BONE") ? kSkelegonTags : kOther;
    default: return kOther;
  }
}

}  // namespace

bool CLWOFileStream::enterForm() {
  std::uint32_t form = 0, size = 0, type = 0;
  return readU4(form) && form == id("FORM") && readU4(size) && size == left() && readU4(type) &&
         (type == id("LWO2") || type == id("LWO3"));
}

bool CLWOFileStream::readChunks(const std::function<bool(const Chunk&)>& take) {
  bool isInLayer = false;
  std::uint32_t polygonType = 0;
  while (!atEnd()) {
    std::uint32_t chunkId = 0, size = 0, tagType = 0;
    CFileStream body;
    // The next chunk follows at once, also behind an odd size: writers keep sizes even, and no byte is skipped here.
    if (!readU4(chunkId) || !readU4(size) || !readWindow(size, body)) return false;
    if (!isInLayer && (chunkId == id("PNTS") || chunkId == id("POLS") || chunkId == id("PTAG"))) return false;
    if (chunkId == id("LAYR")) polygonType = 0;
    isInLayer |= chunkId == id("LAYR");
    if (chunkId == id("POLS") && !body.readU4(polygonType)) return false;
    const ChunkKind kind = kindOf(chunkId, polygonType);
    if (kind == kSkelegonTags && !body.readU4(tagType)) return false;
    if (kind != kOther && !take({kind, body.rest(), tagType})) return false;
  }
  return true;
}

}  // namespace lwp::st
