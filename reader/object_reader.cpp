#include "reader/object_reader.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

namespace lwp::st {
namespace {

constexpr std::uint32_t kMark = ObjectStore::kMark;
constexpr std::size_t kMostCorners = 0x03FF;  // the upper six bits beside the number of a polygon's corners are flags

// Reads the polygons of a list: calls start(number of corners) for each, puts the numbers of its points where 'room' begins,
// marks the last, and goes on behind them. That takes no more than a number for each two bytes of the list, and behind these
// room for a polygon of the most corners, which may show to be too long only then. False when one runs past the end.
template <class Start>
bool readPolygons(CFileStream list, std::span<std::uint32_t>& room, Start start) {
  while (!list.atEnd()) {
    std::uint16_t count = 0;
    if (!list.readU2(count)) return false;
    const std::size_t corners = count & kMostCorners;
    start(corners);
    if (!list.readVX(room.first(corners))) return false;
    if (corners > 0) room[corners - 1] |= kMark;
    room = room.subspan(corners);
  }
  return true;
}

// Calls take(skelegon, text) for the pairs of a list of tags, as long as their skelegon is below 'limit'. Returns the rest.
template <class Take>
std::span<const std::byte> readTags(std::span<const std::byte> list, std::size_t limit, Take take) {
  while (!list.empty()) {
    const bool isLong = isLongIndex(list);
    const std::size_t bytes = (isLong ? kBytesOfU4 : kBytesOfU2) + kBytesOfU2;
    if (list.size() < bytes) break;
    const std::uint32_t skelegon = isLong ? loadLongIndex(list.data()) : loadU2(list.data());
    if (skelegon >= limit) break;
    take(skelegon, loadU2(list.data() + bytes - kBytesOfU2));
    list = list.subspan(bytes);
  }
  return list;
}

// What there is of everything, at most. Memory is taken for that once: what is touched for the first time costs more than
// all reading, and lists that grow would touch twice as much of it.
struct Sizes {
  bool add(const Chunk& chunk) {
    ++chunks[chunk.kind];
    bytes[chunk.kind] += chunk.body.size();
    if (chunk.kind != kSkelegons) return true;
    std::array<std::uint32_t, kMostCorners> points{};
    std::span<std::uint32_t> room;
    return readPolygons(CFileStream(chunk.body), room, [&](std::size_t /*corners*/) {
      ++skelegons;
      room = points;
    });
  }

  std::array<std::size_t, kOther> chunks{}, bytes{};
  std::size_t skelegons = 0;
};

// Memory that is not cleared, for it is filled with what is read.
template <class Item>
std::span<Item> roomFor(std::size_t size, std::unique_ptr<Item[]>& memory) {
  memory = std::make_unique_for_overwrite<Item[]>(size);
  return {memory.get(), size};
}

// Reads all chunks. The tags of skelegons, which stand far apart in the file, in a list for each type, are only counted then
// and brought together by a counting sort when all chunks were read.
class CReading {
 public:
  CReading(ObjectStore& store, const Sizes& sizes)
      : store_(store),
        sizes_(sizes),
        points_(roomFor(sizes.bytes[kPoints] / kBytesOfVec12, store.points)),
        faces_(roomFor(sizes.bytes[kFaces] / kBytesOfU2 + kMostCorners, store.faces)),
        skelegonPoints_(
            roomFor(sizes.bytes[kSkelegons] / kBytesOfU2 - sizes.skelegons + kMostCorners, store.skelegonPoints)) {
    store.texts.reserve(sizes.bytes[kTagTexts]);
    store.textStarts.reserve(sizes.bytes[kTagTexts] / (2 * kBytesOfU2) + 1);  // no text has less than two bytes
    store.layers.reserve(sizes.chunks[kLayer] + 1);
    store.layers.emplace_back();
    const std::size_t besideNames = sizes.chunks[kLayer] * (2 * kBytesOfU2 + kBytesOfVec12);
    store.layerNames.reserve(sizes.bytes[kLayer] - std::min(sizes.bytes[kLayer], besideNames));
    store.tagEnds.reserve(sizes.skelegons + 1);
    store.tagEnds.push_back(0);
    tagLists_.reserve(sizes.chunks[kSkelegonTags]);
  }

  bool add(const Chunk& chunk) {
    switch (chunk.kind) {
      case kTagTexts: return addTexts(CFileStream(chunk.body));
      case kLayer: return addLayer(CFileStream(chunk.body));
      case kPoints: return addPoints(chunk.body);
      case kFaces: return addFaces(CFileStream(chunk.body));
      case kSkelegons: return addSkelegons(CFileStream(chunk.body));
      default: return addTags(chunk);
    }
  }

  void placeTags() {
    // The number of a skelegon's tags becomes the place of its next one, which in the end is where they end.
    std::uint32_t tags = 0;
    for (std::uint32_t& end : store_.tagEnds) tags += std::exchange(end, (end & kMark) | tags) & ~kMark;
    const std::span<PolygonTag> placed = roomFor(tags, store_.tags);
    // One list after the other would be a walk through all of the tags for each. Where the lists ascend and have something
    // for most skelegons, these are done some at a time: as many as fit into the smallest cache with some dozens of tags.
    const bool isForMost = sizes_.bytes[kSkelegonTags] >= tagLists_.size() * store_.tagEnds.size();
    const std::size_t step = listsAscend_ && isForMost ? 128 : store_.tagEnds.size();
    for (std::size_t end = step; end < store_.tagEnds.size() + step; end += step) {
      for (TagList& list : tagLists_) {
        const auto place = [placed, type = list.type, next = endsFrom(list.firstSkelegon)](auto skelegon, auto text) {
          placed[next[skelegon]++ & ~kMark] = {type, text};
        };
        if (end > list.firstSkelegon) list.pairs = readTags(list.pairs, end - list.firstSkelegon, place);
      }
    }
  }

 private:
  struct TagList {
    std::uint32_t type, firstSkelegon;  // the first of its layer
    std::span<const std::byte> pairs;
  };

  LayerRecord& layer() { return store_.layers.back(); }
  std::span<std::uint32_t> endsFrom(std::size_t skelegon) { return std::span(store_.tagEnds).subspan(skelegon + 1); }

  bool addTexts(CFileStream body) {
    for (std::string_view text; body.readS0(text); ++store_.textCount) {
      if (store_.textCount % 2 == 0) store_.textStarts.push_back(static_cast<std::uint32_t>(store_.texts.size()));
      store_.texts.append(text).push_back('\0');
    }
    return body.atEnd();
  }

  bool addLayer(CFileStream body) {
    LayerRecord next = layer();  // its part of the lists begins where that of the one before ends
    std::string_view name;
    next.parent = 0;
    if (!body.readU2(next.number) || !body.readU2(next.flags) || !body.readVEC12(next.pivot)) return false;
    if (!body.readS0(name) || !(body.atEnd() || body.readU2(next.parent)) || !body.atEnd()) return false;
    store_.layerNames += name;
    next.nameEnd += static_cast<std::uint32_t>(name.size());
    store_.layers.push_back(next);
    return true;
  }

  bool addPoints(std::span<const std::byte> body) {
    const std::size_t count = body.size() / kBytesOfVec12;
    for (std::size_t i = 0; i < count; ++i) points_[i] = loadVec12(body.data() + i * kBytesOfVec12);
    points_ = points_.subspan(count);
    layer().pointEnd += static_cast<std::uint32_t>(count);
    return body.size() % kBytesOfVec12 == 0;
  }

  bool addFaces(CFileStream body) {
    std::span<std::uint32_t> room = faces_;  // of its own, for a compiler to keep in registers
    const bool isSound = readPolygons(std::move(body), room, [&](std::size_t corners) {
      if (corners > 0) return;
      room[0] = ObjectStore::kFaceWithoutCorners;
      room = room.subspan(1);
    });
    layer().faceEnd += static_cast<std::uint32_t>(faces_.size() - room.size());
    faces_ = room;
    return isSound;
  }

  bool addSkelegons(CFileStream body) {
    return readPolygons(std::move(body), skelegonPoints_, [&](std::size_t points) {
      store_.tagEnds.push_back(points > 0 ? kMark : 0);
      ++layer().skelegonEnd;
      layer().skelegonPointEnd += static_cast<std::uint32_t>(points);
    });
  }

  bool addTags(const Chunk& chunk) {
    const std::uint32_t firstSkelegon = store_.layers.end()[-2].skelegonEnd;  // where those of the layer before end
    tagLists_.push_back({chunk.tagType, firstSkelegon, chunk.body});
    const std::span<std::uint32_t> counts = endsFrom(firstSkelegon);
    std::uint32_t last = 0;
    bool ascends = listsAscend_;
    const auto count = [&](std::uint32_t skelegon, std::uint16_t /*text*/) {
      ++counts[skelegon];
      ascends &= skelegon >= std::exchange(last, skelegon);
    };
    const bool isSound = readTags(chunk.body, counts.size(), count).empty();
    listsAscend_ = ascends;
    return isSound;
  }

  ObjectStore& store_;
  const Sizes& sizes_;
  std::span<Vec12> points_;
  std::span<std::uint32_t> faces_, skelegonPoints_;
  std::vector<TagList> tagLists_;
  bool listsAscend_ = true;  // none names a lower skelegon behind a higher one
};

bool readForm(ObjectFileData& data, CLWOFileStream file, std::string path) {
  if (!file.enterForm()) return false;
  Sizes sizes;
  if (!CLWOFileStream(file.rest()).readChunks([&](const Chunk& chunk) { return sizes.add(chunk); })) return false;
  ObjectStore store;
  CReading reading(store, sizes);
  if (!file.readChunks([&](const Chunk& chunk) { return reading.add(chunk); })) return false;
  reading.placeTags();
  data = ObjectFileData(std::move(path), std::move(store));
  return true;
}

}  // namespace

// A file that does not fit into memory is one that cannot be read.
bool ReadObjectFile(ObjectFileData& data, std::string narrowPath) try {
  data = {};
  CLWOFileStream file;
  return file.load(narrowPath) && readForm(data, std::move(file), std::move(narrowPath));
} catch (const std::bad_alloc&) {
  return false;
}

bool ParseObjectFile(ObjectFileData& data, std::span<const std::byte> file, std::string path) try {
  data = {};
  return readForm(data, CLWOFileStream(file), std::move(path));
} catch (const std::bad_alloc&) {
  return false;
}

}  // namespace lwp::st
