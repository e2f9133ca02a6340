#include "reader/CLWOFileStream.h"

#include <utility>

namespace lwp::st {

namespace {

constexpr std::uint32_t kForm = chunkId("FORM");
constexpr std::uint32_t kObject2 = chunkId("LWO2");
constexpr std::uint32_t kObject3 = chunkId("LWO3");
constexpr std::uint32_t kTagTexts = chunkId("TAGS");
constexpr std::uint32_t kLayer = chunkId("LAYR");
constexpr std::uint32_t kPoints = chunkId("PNTS");
constexpr std::uint32_t kPolygons = chunkId("POLS");
constexpr std::uint32_t kPolygonTags = chunkId("PTAG");
constexpr std::uint32_t kFaces = chunkId("FACE");
constexpr std::uint32_t kSkelegons = chunkId("BONE");

}  // namespace

bool CLWOFileStream::enterForm() {
  std::uint32_t id = 0;
  std::uint32_t size = 0;
  std::uint32_t type = 0;
  if (!readU4(id) || id != kForm) return false;
  if (!readU4(size) || size != left()) return false;
  return readU4(type) && (type == kObject2 || type == kObject3);
}

bool CLWOFileStream::readChunks(ObjectChunks& chunks) {
  Place place;
  while (!atEnd()) {
    std::uint32_t id = 0;
    std::uint32_t size = 0;
    CFileStream body;
    // The next chunk follows at once, also behind an odd size: writers keep sizes even, and no byte is skipped here.
    if (!readU4(id) || !readU4(size) || !readWindow(size, body)) return false;
    if (!readChunk(id, std::move(body), place, chunks)) return false;
  }
  return true;
}

bool CLWOFileStream::readChunk(std::uint32_t id, CFileStream body, Place& place, ObjectChunks& chunks) {
  switch (id) {
    case kTagTexts: return chunks.takeTagTexts(std::move(body));
    case kLayer: place = {true, Polygons::None}; return chunks.takeLayer(std::move(body));
    case kPoints: return place.isInLayer && chunks.takePoints(std::move(body));
    case kPolygons: return place.isInLayer && readPolygons(std::move(body), place, chunks);
    case kPolygonTags: return place.isInLayer && readPolygonTags(std::move(body), place, chunks);
    default: return true;
  }
}

bool CLWOFileStream::readPolygons(CFileStream body, Place& place, ObjectChunks& chunks) {
  std::uint32_t type = 0;
  if (!body.readU4(type)) return false;
  switch (type) {
    case kFaces: place.polygons = Polygons::Faces; return chunks.takeFaces(std::move(body));
    case kSkelegons: place.polygons = Polygons::Skelegons; return chunks.takeSkelegons(std::move(body));
    default: place.polygons = Polygons::Others; return true;
  }
}

bool CLWOFileStream::readPolygonTags(CFileStream body, const Place& place, ObjectChunks& chunks) {
  // Only the tags of skelegons are of use; those of other polygons are passed over unread.
  if (place.polygons != Polygons::Skelegons) return true;
  std::uint32_t type = 0;
  return body.readU4(type) && chunks.takeSkelegonTags(type, std::move(body));
}

}  // namespace lwp::st
