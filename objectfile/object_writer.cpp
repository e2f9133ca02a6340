// Object to bytes. An object that came from a file is written along that file's chunks: each is kept as it is while the
// object still says the same, rebuilt when it does not, left out when its content is gone; new content is added where a
// program that wrote the whole object would have put it.
#include <algorithm>
#include <map>
#include <set>
#include <span>
#include <unordered_map>

#include "objectfile/chunk_records.h"
#include "objectfile/object_file.h"

namespace standin {
namespace {

using Chunks = std::vector<Chunk>;
using ChunkSpan = std::span<const Chunk>;

// The texts of TAGS: those of the file keep their numbers, further ones follow.
class TextTable {
 public:
  explicit TextTable(const Chunks& file) {
    for (const Chunk& chunk : file) {
      if (chunk.id != records::kTags) continue;
      if (const auto texts = records::readTexts(chunk.bytes)) {
        for (const std::string& text : *texts) add(text);
      }
    }
    added_ = texts_.size();
  }

  std::size_t number(const std::string& text) {
    const auto found = numbers_.find(text);
    return found != numbers_.end() ? found->second : add(text);
  }
  const std::string& operator[](std::size_t number) const { return texts_[number]; }
  std::size_t size() const { return texts_.size(); }

  // Puts the further texts into the form's last TAGS chunk, or into a new one at the front.
  void addTo(Chunks& out) const {
    if (added_ == texts_.size()) return;
    const std::string further = records::writeTexts({texts_.begin() + static_cast<std::ptrdiff_t>(added_), texts_.end()});
    const auto last = std::find_if(out.rbegin(), out.rend(), [](const Chunk& chunk) { return chunk.id == records::kTags; });
    if (last == out.rend()) {
      out.insert(out.begin(), Chunk{records::kTags, further});
    } else {
      last->bytes += further;
    }
  }

 private:
  std::size_t add(const std::string& text) {
    numbers_.emplace(text, texts_.size());
    texts_.push_back(text);
    return texts_.size() - 1;
  }

  std::vector<std::string> texts_;
  std::unordered_map<std::string, std::size_t> numbers_;
  std::size_t added_ = 0;
};

// What a group's polygons say under each tag type: polygon and text, in polygon order.
struct GroupTags {
  std::vector<std::uint32_t> types;  // in the order in which they first appear
  std::map<std::uint32_t, std::vector<std::pair<std::uint32_t, const std::string*>>> texts;

  explicit GroupTags(const PolygonGroup& group) {
    for (std::uint32_t i = 0; i < group.polygons.size(); ++i) {
      for (const PolygonTag& tag : group.polygons[i].tags) {
        auto& list = texts[tag.type];
        if (list.empty()) types.push_back(tag.type);
        list.emplace_back(i, &tag.text);
      }
    }
  }
};

bool isLayerData(std::uint32_t id) {
  return id == records::kLayer || id == records::kPoints || id == records::kBounds || id == records::kMap ||
         id == records::kMapOptions || id == records::kPolygonMap || id == records::kPolygons || id == records::kPolygonTags;
}

Chunk pointsChunk(const ObjectLayer& layer, std::size_t first, std::size_t count) {
  return {records::kPoints, records::writePoints(layer.points.data() + first, count)};
}

// Writes one layer along the chunks that the file had for it; for a new layer there are none.
class LayerWriter {
 public:
  LayerWriter(const ObjectLayer& layer, ChunkSpan file, TextTable& texts, Chunks& out)
      : layer_(layer), file_(file), texts_(texts), out_(out) {
    matchMaps();
    comparePoints();
  }

  // Empty when all went well.
  std::string write() {
    if (file_.empty()) out_.push_back({records::kLayer, records::writeLayer(layer_)});
    for (std::size_t i = 0; i < file_.size() && why_.empty(); ++i) writeChunk(i);
    finishGroup();
    if (file_.empty()) writeFirstPoints();
    writeNewMaps();
    for (; group_ < layer_.groups.size(); ++group_) writeNewGroup(layer_.groups[group_]);
    return why_;
  }

 private:
  // Two maps of one type and name in one layer: the first chunk goes with the first map.
  void matchMaps() {
    std::vector<bool> taken(layer_.maps.size(), false);
    for (std::size_t i = 0; i < file_.size(); ++i) {
      if (file_[i].id != records::kMap) continue;
      const auto said = records::readMap(file_[i].bytes);
      for (std::size_t m = 0; said && m < layer_.maps.size(); ++m) {
        if (taken[m] || layer_.maps[m].type != said->type || layer_.maps[m].name != said->name) continue;
        taken[m] = true;
        mapOfChunk_[i] = m;
        break;
      }
    }
    for (std::size_t m = 0; m < layer_.maps.size(); ++m) {
      if (!taken[m]) newMaps_.push_back(m);
    }
  }

  void comparePoints() {
    std::string said;
    for (std::size_t i = 0; i < file_.size(); ++i) {
      if (file_[i].id != records::kPoints) continue;
      said += file_[i].bytes;
      lastPoints_ = i;
    }
    pointsChanged_ = said != records::writePoints(layer_.points.data(), layer_.points.size());
  }

  void writeChunk(std::size_t i) {
    const Chunk& chunk = file_[i];
    switch (chunk.id) {
      case records::kLayer: return writeLayerChunk(chunk);
      case records::kPoints: return writePoints(i);
      case records::kBounds:
        out_.push_back(pointsChanged_ ? Chunk{records::kBounds, records::writeBounds(layer_.points)} : chunk);
        return;
      case records::kMap: return writeMap(i);
      case records::kPolygons: return writePolygons(chunk);
      case records::kPolygonTags: return writeTags(chunk);
      case records::kPolygonMap: return writePolygonMap(chunk);
      default: out_.push_back(chunk);
    }
  }

  void writeLayerChunk(const Chunk& chunk) {
    const auto said = records::readLayer(chunk.bytes);
    const std::string now = records::writeLayer(layer_);
    out_.push_back(said && records::writeLayer(*said) == now ? chunk : Chunk{chunk.id, now});
    if (lastPoints_ == kNone) writeFirstPoints();
  }

  void writeFirstPoints() {
    if (layer_.points.empty()) return;
    out_.push_back(pointsChunk(layer_, 0, layer_.points.size()));
    out_.push_back({records::kBounds, records::writeBounds(layer_.points)});
  }

  // The last chunk of points takes those that were added.
  void writePoints(std::size_t i) {
    constexpr std::size_t kPointSize = 12;
    const std::size_t left = layer_.points.size() - pointsDone_;
    const std::size_t count = i == lastPoints_ ? left : file_[i].bytes.size() / kPointSize;
    if (count > left || (i == lastPoints_ && count < file_[i].bytes.size() / kPointSize)) {
      why_ = "points of a file's layer were removed";
      return;
    }
    out_.push_back(pointsChunk(layer_, pointsDone_, count));
    pointsDone_ += count;
  }

  void writeMap(std::size_t i) {
    const auto said = records::readMap(file_[i].bytes);
    const auto match = mapOfChunk_.find(i);
    if (match == mapOfChunk_.end()) {
      if (said) removedMaps_.emplace(said->type, said->name);
      dropMapOptions();
      return;
    }
    const std::string now = records::writeMap(layer_.maps[match->second]);
    out_.push_back(said && records::writeMap(*said) == now ? file_[i] : Chunk{records::kMap, now});
  }

  // Options stand before the map that they are for, and go with it.
  void dropMapOptions() {
    if (!out_.empty() && out_.back().id == records::kMapOptions) out_.pop_back();
  }

  void writeNewMaps() {
    for (const std::size_t m : newMaps_) out_.push_back({records::kMap, records::writeMap(layer_.maps[m])});
    newMaps_.clear();
  }

  void writePolygons(const Chunk& chunk) {
    writeNewMaps();
    finishGroup();
    if (group_ == layer_.groups.size()) {
      why_ = "polygon groups of a file's layer were removed";
      return;
    }
    const PolygonGroup& group = layer_.groups[group_++];
    const auto said = records::readPolygons(chunk.bytes);
    groupGone_ = group.polygons.empty() && said && !said->polygons.empty();
    if (groupGone_) return;
    groupRenumbered_ = !startsWith(group, said->polygons);
    const std::string now = records::writePolygons(group);
    out_.push_back(records::writePolygons(*said) == now ? chunk : Chunk{chunk.id, now});
    openGroup(group, chunk);
  }

  static bool startsWith(const PolygonGroup& group, const std::vector<ObjectPolygon>& said) {
    const auto same = [](const ObjectPolygon& a, const ObjectPolygon& b) {
      return a.points == b.points && a.flags == b.flags;
    };
    return group.polygons.size() >= said.size() && std::equal(said.begin(), said.end(), group.polygons.begin(), same);
  }

  // Decides for each tag type that the file has for this group whether its chunks can stay.
  void openGroup(const PolygonGroup& group, const Chunk& polygons) {
    tags_.emplace(group);
    tagPosition_ = out_.size();
    std::map<std::uint32_t, std::map<std::uint32_t, std::uint16_t>> said;
    const auto start = static_cast<std::size_t>(&polygons - file_.data());
    for (std::size_t i = start + 1; i < file_.size() && file_[i].id != records::kPolygons; ++i) {
      if (file_[i].id != records::kPolygonTags) continue;
      const auto chunk = records::readTags(file_[i].bytes);
      auto& texts = said[chunk->type];
      for (const auto& [polygon, text] : chunk->pairs) texts[polygon] = text;
    }
    keptTypes_.clear();
    writtenTypes_.clear();
    for (const auto& [type, texts] : said) {
      const auto& now = tags_->texts[type];
      const auto same = [&](const auto& a, const auto& b) { return a.first == b.first && texts_[a.second] == *b.second; };
      if (std::equal(texts.begin(), texts.end(), now.begin(), now.end(), same)) keptTypes_.insert(type);
    }
  }

  void writeTags(const Chunk& chunk) {
    if (groupGone_) return;
    const std::uint32_t type = records::readTags(chunk.bytes)->type;
    if (keptTypes_.count(type) != 0) {
      out_.push_back(chunk);
      tagPosition_ = out_.size();
      writtenTypes_.insert(type);
    } else if (writtenTypes_.insert(type).second && !tags_->texts[type].empty()) {
      out_.push_back(tagChunk(type));
      tagPosition_ = out_.size();
    }
  }

  Chunk tagChunk(std::uint32_t type) {
    records::TagChunk tags{type, {}};
    for (const auto& [polygon, text] : tags_->texts[type]) {
      const std::size_t number = texts_.number(*text);
      if (number >= records::kMostTexts) why_ = "more different tag texts than the file format can number";
      tags.pairs.emplace_back(polygon, static_cast<std::uint16_t>(number));
    }
    return {records::kPolygonTags, records::writeTags(tags)};
  }

  // Tag types that the file did not have for the group.
  void finishGroup() {
    if (!tags_) return;
    for (const std::uint32_t type : tags_->types) {
      if (writtenTypes_.count(type) != 0) continue;
      out_.insert(out_.begin() + static_cast<std::ptrdiff_t>(tagPosition_), tagChunk(type));
      ++tagPosition_;
    }
    tags_.reset();
  }

  void writeNewGroup(const PolygonGroup& group) {
    if (group.polygons.empty()) return;
    out_.push_back({records::kPolygons, records::writePolygons(group)});
    tags_.emplace(group);
    tagPosition_ = out_.size();
    writtenTypes_.clear();
    finishGroup();
  }

  // Values by polygon number: carried, not understood.
  void writePolygonMap(const Chunk& chunk) {
    const auto head = records::readMapHead(chunk.bytes);
    if (groupGone_ || (head && removedMaps_.count({head->type, head->name}) != 0)) return dropMapOptions();
    if (groupRenumbered_) {
      why_ = "polygons were removed to which a vertex map refers by number";
      return;
    }
    out_.push_back(chunk);
  }

  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  const ObjectLayer& layer_;
  ChunkSpan file_;
  TextTable& texts_;
  Chunks& out_;
  std::string why_;

  std::map<std::size_t, std::size_t> mapOfChunk_;
  std::vector<std::size_t> newMaps_;
  std::set<std::pair<std::uint32_t, std::string>> removedMaps_;

  std::size_t lastPoints_ = kNone;
  std::size_t pointsDone_ = 0;
  bool pointsChanged_ = false;

  std::size_t group_ = 0;
  bool groupGone_ = false;
  bool groupRenumbered_ = false;
  std::optional<GroupTags> tags_;
  std::size_t tagPosition_ = 0;
  std::set<std::uint32_t> keptTypes_;
  std::set<std::uint32_t> writtenTypes_;
};

std::string unwritable(const ObjectLayer& layer) {
  if (layer.points.size() > std::size_t{kLargestIndex} + 1) return "more points than the file format can number";
  const auto missing = [&](std::uint32_t point) { return point >= layer.points.size(); };
  for (const PolygonGroup& group : layer.groups) {
    if (group.polygons.size() > std::size_t{kLargestIndex} + 1) return "more polygons than the file format can number";
    for (const ObjectPolygon& polygon : group.polygons) {
      if (polygon.points.size() > records::kMostPolygonPoints)
        return "a polygon has more points than the file format can count";
      if (std::any_of(polygon.points.begin(), polygon.points.end(), missing)) {
        return "a polygon names a point that its layer does not have";
      }
    }
  }
  for (const VertexMap& map : layer.maps) {
    if (std::any_of(map.points.begin(), map.points.end(), missing)) {
      return "a vertex map names a point that its layer does not have";
    }
  }
  return {};
}

void append(Chunks& out, ChunkSpan chunks) { out.insert(out.end(), chunks.begin(), chunks.end()); }

// The chunks of the file by layer: [0] stands before the first layer, [1] is the first layer's, and so on.
std::vector<ChunkSpan> splitByLayer(const Chunks& chunks) {
  std::vector<ChunkSpan> parts(1);
  std::size_t start = 0;
  for (std::size_t i = 0; i <= chunks.size(); ++i) {
    if (i < chunks.size() && chunks[i].id != records::kLayer) continue;
    parts.back() = ChunkSpan(chunks).subspan(start, i - start);
    start = i;
    if (i < chunks.size()) parts.emplace_back();
  }
  return parts;
}

Outcome<Form> buildForm(const ObjectFile& object) {
  Form form{object.form, {}};
  TextTable texts(object.chunks);
  const std::vector<ChunkSpan> parts = splitByLayer(object.chunks);
  if (parts.size() - 1 > object.layers.size()) return Failure{"layers of a file were removed"};
  append(form.chunks, parts[0]);

  ChunkSpan tail;  // what follows the last layer of the file: surfaces and the like, after any new layers too
  for (std::size_t i = 0; i < object.layers.size(); ++i) {
    if (std::string why = unwritable(object.layers[i]); !why.empty()) return Failure{std::move(why)};
    ChunkSpan data;
    if (i + 1 < parts.size()) {
      append(form.chunks, tail);
      data = parts[i + 1];
      tail = {};
      const auto last = std::find_if(data.rbegin(), data.rend(), [](const Chunk& chunk) { return isLayerData(chunk.id); });
      const auto count = static_cast<std::size_t>(data.rend() - last);
      tail = data.subspan(count);
      data = data.first(count);
    }
    LayerWriter writer(object.layers[i], data, texts, form.chunks);
    if (std::string why = writer.write(); !why.empty()) return Failure{std::move(why)};
  }
  append(form.chunks, tail);
  texts.addTo(form.chunks);
  return form;
}

}  // namespace

Outcome<std::string> serializeObject(const ObjectFile& object) {
  const Outcome<Form> form = buildForm(object);
  if (!form) return Failure{form.why()};
  return joinForm(*form);
}

}  // namespace standin
