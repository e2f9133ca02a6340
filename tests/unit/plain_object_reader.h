// A second reader of object files, to compare the real one with: written for shortness, one list for everything, with no
// thought of speed or memory. It takes no code from the real one.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace varnel::test {

struct PlainSkelegon {
  std::vector<std::uint32_t> points;
  std::vector<std::pair<std::uint32_t, std::uint16_t>> tags;
  bool operator==(const PlainSkelegon&) const = default;
};

struct PlainLayer {
  std::uint32_t number = 0;
  std::uint32_t flags = 0;
  std::uint32_t parent = 0;
  // Floats as the bits of the file, so that values that are no numbers compare too.
  std::array<std::uint32_t, 3> pivot{};
  std::string name;
  std::vector<std::array<std::uint32_t, 3>> points;
  std::vector<std::vector<std::uint32_t>> faces;
  std::vector<PlainSkelegon> skelegons;
  bool operator==(const PlainLayer&) const = default;
};

struct PlainObject {
  std::vector<std::string> tags;
  std::vector<PlainLayer> layers;
  bool operator==(const PlainObject&) const = default;
};

class PlainObjectReader {
 public:
  // The object, or none when the file is not sound.
  static std::optional<PlainObject> read(std::span<const std::byte> file) {
    PlainObjectReader reader(file);
    try {
      reader.readForm();
    } catch (const Unsound&) {
      return std::nullopt;
    }
    return std::move(reader.object_);
  }

 private:
  struct Unsound {};

  explicit PlainObjectReader(std::span<const std::byte> file) : file_(file), end_(file.size()) {}

  static void require(bool isSo) {
    if (!isSo) throw Unsound();
  }

  // A number of that many bytes; they have to lie before the end of the chunk.
  std::uint32_t number(std::size_t bytes) {
    require(bytes <= end_ - at_);
    std::uint32_t value = 0;
    for (; bytes > 0; --bytes) value = value * 256 + std::to_integer<std::uint32_t>(file_[at_++]);
    return value;
  }
  std::uint32_t index() {
    require(at_ < end_);
    if (file_[at_] != std::byte{255}) return number(2);
    return number(4) % 0x1000000U;
  }
  std::string text() {
    std::string result;
    std::uint32_t character = number(1);
    for (; character != 0; character = number(1)) result += static_cast<char>(character);
    if (result.size() % 2 == 0) number(1);
    return result;
  }
  std::array<std::uint32_t, 3> vector() {
    std::array<std::uint32_t, 3> result{};
    for (std::uint32_t& value : result) value = number(4);
    return result;
  }
  std::vector<std::uint32_t> polygon() {
    std::vector<std::uint32_t> points(number(2) % 1024);
    for (std::uint32_t& point : points) point = index();
    return points;
  }
  std::string id() {
    std::string result;
    for (int i = 0; i < 4; ++i) result += static_cast<char>(number(1));
    return result;
  }

  void readForm() {
    require(id() == "FORM");
    require(number(4) == file_.size() - 8);
    const std::string type = id();
    require(type == "LWO2" || type == "LWO3");
    while (at_ < file_.size()) {
      end_ = file_.size();
      const std::string chunk = id();
      const std::uint32_t size = number(4);
      require(size <= end_ - at_);
      const std::size_t next = at_ + size;
      end_ = next;
      readChunk(chunk);
      at_ = next;
    }
  }

  void readChunk(const std::string& chunk) {
    if (chunk == "TAGS") {
      while (at_ < end_) object_.tags.push_back(text());
    } else if (chunk == "LAYR") {
      readLayer();
    } else if (chunk == "PNTS" || chunk == "POLS" || chunk == "PTAG") {
      require(!object_.layers.empty());
      if (chunk == "PNTS") {
        while (at_ < end_) object_.layers.back().points.push_back(vector());
      } else if (chunk == "POLS") {
        readPolygons();
      } else if (polygons_ == "BONE") {
        readTags();
      }
    }
  }

  void readLayer() {
    PlainLayer layer;
    layer.number = number(2);
    layer.flags = number(2);
    layer.pivot = vector();
    layer.name = text();
    if (layer.name.empty()) layer.name = "Layer" + std::to_string(layer.number + 1);
    if (at_ < end_) layer.parent = number(2);
    require(at_ == end_);
    object_.layers.push_back(std::move(layer));
    polygons_.clear();
  }

  void readPolygons() {
    polygons_ = id();
    PlainLayer& layer = object_.layers.back();
    if (polygons_ == "FACE") {
      while (at_ < end_) layer.faces.push_back(polygon());
    } else if (polygons_ == "BONE") {
      while (at_ < end_) layer.skelegons.push_back({polygon(), {}});
    }
  }

  void readTags() {
    std::vector<PlainSkelegon>& skelegons = object_.layers.back().skelegons;
    const std::uint32_t type = number(4);
    while (at_ < end_) {
      const std::uint32_t skelegon = index();
      const auto tag = static_cast<std::uint16_t>(number(2));
      require(skelegon < skelegons.size());
      skelegons[skelegon].tags.emplace_back(type, tag);
    }
  }

  std::span<const std::byte> file_;
  std::size_t at_ = 0;
  std::size_t end_;
  std::string polygons_;
  PlainObject object_;
};

}  // namespace varnel::test
