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
    return std::move(reader.m_object);
  }

 private:
  struct Unsound {};

  explicit PlainObjectReader(std::span<const std::byte> file) : m_file(file), m_end(file.size()) {}

  static void require(bool isSo) {
    if (!isSo) throw Unsound();
  }

  // A number of that many bytes; they have to lie before the end of the chunk.
  std::uint32_t number(std::size_t bytes) {
    require(bytes <= m_end - m_at);
    std::uint32_t value = 0;
    for (; bytes > 0; --bytes) value = value * 256 + std::to_integer<std::uint32_t>(m_file[m_at++]);
    return value;
  }
  std::uint32_t index() {
    require(m_at < m_end);
    if (m_file[m_at] != std::byte{255}) return number(2);
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
    require(number(4) == m_file.size() - 8);
    const std::string type = id();
    require(type == "LWO2" || type == "LWO3");
    while (m_at < m_file.size()) {
      m_end = m_file.size();
      const std::string chunk = id();
      const std::uint32_t size = number(4);
      require(size <= m_end - m_at);
      const std::size_t next = m_at + size;
      m_end = next;
      readChunk(chunk);
      m_at = next;
    }
    for (const PlainLayer& layer : m_object.layers) requirePoints(layer);
  }

  void readChunk(const std::string& chunk) {
    if (chunk == "TAGS") {
      while (m_at < m_end) m_object.tags.push_back(text());
    } else if (chunk == "LAYR") {
      readLayer();
    } else if (chunk == "PNTS" || chunk == "POLS" || chunk == "PTAG") {
      require(!m_object.layers.empty());
      if (chunk == "PNTS") {
        while (m_at < m_end) m_object.layers.back().points.push_back(vector());
      } else if (chunk == "POLS") {
        readPolygons();
      } else if (m_polygons == "BONE") {
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
    if (m_at < m_end) layer.parent = number(2);
    require(m_at == m_end);
    m_object.layers.push_back(std::move(layer));
    m_polygons.clear();
  }

  void readPolygons() {
    m_polygons = id();
    PlainLayer& layer = m_object.layers.back();
    if (m_polygons == "FACE") {
      while (m_at < m_end) layer.faces.push_back(polygon());
    } else if (m_polygons == "BONE") {
      while (m_at < m_end) layer.skelegons.push_back({polygon(), {}});
    }
  }

  void readTags() {
    std::vector<PlainSkelegon>& skelegons = m_object.layers.back().skelegons;
    const std::uint32_t type = number(4);
    while (m_at < m_end) {
      const std::uint32_t skelegon = index();
      const auto tag = static_cast<std::uint16_t>(number(2));
      require(skelegon < skelegons.size());
      skelegons[skelegon].tags.emplace_back(type, tag);
    }
  }

  static void requirePoints(const PlainLayer& layer) {
    const auto requireAll = [&](const std::vector<std::uint32_t>& points) {
      for (const std::uint32_t point : points) require(point < layer.points.size());
    };
    for (const auto& face : layer.faces) requireAll(face);
    for (const auto& skelegon : layer.skelegons) requireAll(skelegon.points);
  }

  std::span<const std::byte> m_file;
  std::size_t m_at = 0;
  std::size_t m_end;
  std::string m_polygons;
  PlainObject m_object;
};

}  // namespace varnel::test
