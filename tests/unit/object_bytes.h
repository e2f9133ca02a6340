// Makes object files in memory, byte by byte, for tests and benchmarks of their reader. Sizes and padding are right unless
// a test asks for something else; nothing is checked.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varnel::test {

// Bytes with the highest first. Every member adds its value at the end.
class Bytes {
 public:
  Bytes& u1(unsigned value) {
    bytes_.push_back(static_cast<std::byte>(value));
    return *this;
  }
  Bytes& u2(unsigned value) { return u1(value >> 8U).u1(value & 0xFFU); }
  Bytes& u4(std::uint32_t value) { return u2(value >> 16U).u2(value & 0xFFFFU); }
  Bytes& f4(float value) { return u4(std::bit_cast<std::uint32_t>(value)); }
  Bytes& vec12(float x, float y, float z) { return f4(x).f4(y).f4(z); }
  Bytes& id(std::string_view four) { return text(four); }
  // The characters alone.
  Bytes& text(std::string_view characters) {
    for (const char character : characters) u1(static_cast<unsigned char>(character));
    return *this;
  }
  // With a zero, made even.
  Bytes& s0(std::string_view characters) {
    text(characters).u1(0);
    return characters.size() % 2 == 0 ? u1(0) : *this;
  }
  // The shorter form where it can be.
  Bytes& vx(std::uint32_t index) { return index < 0xFF00U ? u2(index) : longVx(index); }
  Bytes& longVx(std::uint32_t index) { return u4(0xFF000000U + index); }
  Bytes& append(const Bytes& other) {
    bytes_.insert(bytes_.end(), other.bytes_.begin(), other.bytes_.end());
    return *this;
  }

  std::size_t size() const { return bytes_.size(); }
  std::span<const std::byte> span() const { return bytes_; }
  std::vector<std::byte>& bytes() { return bytes_; }
  const std::vector<std::byte>& bytes() const { return bytes_; }

  void reserve(std::size_t size) { bytes_.reserve(size); }

 private:
  std::vector<std::byte> bytes_;
};

// One polygon of a POLS chunk.
inline void addPolygon(Bytes& list, std::span<const std::uint32_t> points) {
  list.u2(static_cast<unsigned>(points.size()));
  for (const std::uint32_t point : points) list.vx(point);
}

// (polygon, text) of a PTAG chunk.
using TagPair = std::pair<std::uint32_t, unsigned>;

// A file, chunk after chunk.
class ObjectBytes {
 public:
  explicit ObjectBytes(std::string_view formType = "LWO2") : formType_(formType) {}

  ObjectBytes& chunk(std::string_view id, const Bytes& body) {
    body_.id(id).u4(static_cast<std::uint32_t>(body.size())).append(body);
    return *this;
  }
  ObjectBytes& tags(std::initializer_list<std::string_view> texts) {
    Bytes body;
    for (const std::string_view text : texts) body.s0(text);
    return chunk("TAGS", body);
  }
  ObjectBytes& layer(unsigned number, std::string_view name) {
    return chunk("LAYR", Bytes().u2(number).u2(0).vec12(0, 0, 0).s0(name));
  }
  ObjectBytes& layer(unsigned number, std::string_view name, unsigned parent) {
    return chunk("LAYR", Bytes().u2(number).u2(0).vec12(0, 0, 0).s0(name).u2(parent));
  }
  // As many points, the n-th at (n, 0, 0).
  ObjectBytes& points(unsigned count) {
    Bytes body;
    for (unsigned i = 0; i < count; ++i) body.vec12(static_cast<float>(i), 0, 0);
    return chunk("PNTS", body);
  }
  ObjectBytes& polygons(std::string_view type, std::initializer_list<std::vector<std::uint32_t>> polygons) {
    Bytes body;
    body.id(type);
    for (const std::vector<std::uint32_t>& polygon : polygons) addPolygon(body, polygon);
    return chunk("POLS", body);
  }
  ObjectBytes& polygonTags(std::string_view type, std::initializer_list<TagPair> pairs) {
    Bytes body;
    body.id(type);
    for (const auto& [polygon, text] : pairs) body.vx(polygon).u2(text);
    return chunk("PTAG", body);
  }

  // The whole file, with the size that it has, or one that differs from it.
  std::vector<std::byte> file(std::int32_t sizeError = 0) const {
    Bytes file;
    file.reserve(body_.size() + 12);
    file.id("FORM").u4(static_cast<std::uint32_t>(static_cast<std::int64_t>(body_.size()) + 4 + sizeError));
    return std::move(file.id(formType_).append(body_).bytes());
  }

 private:
  std::string formType_;
  Bytes body_;
};

}  // namespace varnel::test
