// A file in memory with a reading position in it: the primitives that object files are made of, and the walk over the chunks
// of one. Every chunk gets a stream of its own, so that nothing reads past what it was given.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <limits>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace lwp::st {

// Three floats: a position or a pivot.
struct Vec12 {
  float x, y, z;
  friend bool operator==(const Vec12&, const Vec12&) = default;
};

// Numbers as object files hold them: the highest byte first, on any boundary. Each function takes the address of as many
// bytes as its type has there, and puts them together with shifts: right on every machine, and compiled to one swapped load.
inline constexpr std::size_t kBytesOfU2 = 2, kBytesOfU4 = 4, kBytesOfVec12 = 12;

inline std::uint16_t loadU2(const std::byte* from) {
  return static_cast<std::uint16_t>((std::to_integer<unsigned>(from[0]) << 8U) | std::to_integer<unsigned>(from[1]));
}
inline std::uint32_t loadU4(const std::byte* from) { return (std::uint32_t{loadU2(from)} << 16U) | loadU2(from + 2); }
inline float loadF4(const std::byte* from) { return std::bit_cast<float>(loadU4(from)); }
inline Vec12 loadVec12(const std::byte* from) { return {loadF4(from), loadF4(from + 4), loadF4(from + 8)}; }

// A point or polygon number takes two bytes, or four when the first is 0xFF; that one is then dropped.
inline bool isLongIndex(std::span<const std::byte> bytes) { return bytes.front() == std::byte{0xFF}; }
inline std::uint32_t loadLongIndex(const std::byte* from) { return loadU4(from) & 0x00FFFFFFU; }

// Bytes that one read asks for. Windows counts those of a read with 31 bits and refuses more.
inline constexpr std::size_t kBytesPerRead = 67'108'864;
// Fills 'bytes' from where the file stands, with at most 'perRead' bytes in each read. False when the file has fewer.
bool readInBlocks(std::istream& file, std::span<std::byte> bytes, std::size_t perRead = kBytesPerRead);

class CFileStream {
 public:
  // The reading position has 32 bits, as the sizes in the file have.
  static constexpr std::size_t kLongestFile = std::numeric_limits<std::uint32_t>::max();

  CFileStream() = default;
  // Reads bytes that somebody else keeps for as long as the stream is used. More than kLongestFile count as none.
  explicit CFileStream(std::span<const std::byte> bytes)
      : bytes_(bytes.size() <= kLongestFile ? bytes : std::span<const std::byte>()) {}
  // Loads the whole file into memory of the stream's own and stands at its start. 'narrowPath' is in the system's narrow
  // code page. False, and nothing loaded, when the file cannot be opened or read, or is too long.
  bool load(const std::string& narrowPath);

  std::uint32_t position() const { return position_; }
  std::uint32_t left() const { return static_cast<std::uint32_t>(bytes_.size()) - position_; }
  bool atEnd() const { return left() == 0; }
  std::span<const std::byte> rest() const { return bytes_.subspan(position_); }  // what was not read yet

  // Each reads one value and goes on behind it. False when the bytes are not there: then the position is not touched.
  bool readU2(std::uint16_t& value) { return read(value, loadU2, kBytesOfU2); }
  bool readU4(std::uint32_t& value) { return read(value, loadU4, kBytesOfU4); }
  bool readF4(float& value) { return read(value, loadF4, kBytesOfU4); }
  bool readVEC12(Vec12& value) { return read(value, loadVec12, kBytesOfVec12); }
  // A text up to its zero, padded to even length. 'text' refers to the stream's bytes.
  bool readS0(std::string_view& text) {
    const std::span<const std::byte> bytes = rest();
    const auto length = static_cast<std::size_t>(std::find(bytes.begin(), bytes.end(), std::byte{}) - bytes.begin());
    const std::size_t padded = length + (length % 2 == 0 ? 2 : 1);
    if (padded > bytes.size()) return false;
    text = {reinterpret_cast<const char*>(bytes.data()), length};
    position_ += static_cast<std::uint32_t>(padded);
    return true;
  }
  // A point or polygon number, or a row of them.
  bool readVX(std::uint32_t& index) { return readVX(std::span(&index, 1)); }
  bool readVX(std::span<std::uint32_t> indices) {
    // Nearly everywhere there are bytes for the longest form of all, and no number has to ask.
    const bool areAllThere = left() >= indices.size() * kBytesOfU4;
    std::span<const std::byte> bytes = rest();
    for (std::uint32_t& index : indices) {
      if (!areAllThere && bytes.size() < (bytes.empty() || !isLongIndex(bytes) ? kBytesOfU2 : kBytesOfU4)) return false;
      if (isLongIndex(bytes)) [[likely]] {
        index = loadLongIndex(bytes.data());
        bytes = bytes.subspan(kBytesOfU4);
      } else {
        index = loadU2(bytes.data());
        bytes = bytes.subspan(kBytesOfU2);
      }
    }
    position_ = static_cast<std::uint32_t>(bytes_.size() - bytes.size());
    return true;
  }
  // The next 'size' bytes as a stream of their own, which refers to this stream's bytes.
  bool readWindow(std::uint32_t size, CFileStream& window) {
    if (size > left()) return false;
    window = CFileStream(rest().first(size));
    position_ += size;
    return true;
  }

 private:
  template <class Value>
  bool read(Value& value, Value (*load)(const std::byte*), std::uint32_t bytes) {
    if (bytes > left()) return false;
    value = load(bytes_.data() + position_);
    position_ += bytes;
    return true;
  }

  std::unique_ptr<std::byte[]> file_;
  std::span<const std::byte> bytes_;
  std::uint32_t position_ = 0;
};

// The chunks that are of use. Points, polygons and tags belong to the layer that came last; there is one.
enum ChunkKind : std::size_t { kTagTexts, kLayer, kPoints, kFaces, kSkelegons, kSkelegonTags, kOther };

// The body of one chunk: of polygons and their tags, what follows the type. Tags are of 'tagType'.
struct Chunk {
  ChunkKind kind;
  std::span<const std::byte> body;
  std::uint32_t tagType = 0;
};

// An object file as a run of chunks.
class CLWOFileStream : public CFileStream {
 public:
  using CFileStream::CFileStream;

  // Goes into the form that the file consists of, to its first chunk. False for no object, or one not as long as it says.
  bool enterForm();
  // [inside the form] Hands every chunk of use to 'take', in the order of the file; it answers whether the chunk is sound.
  // True when all were and the last ended at the end of the form.
  bool readChunks(const std::function<bool(const Chunk& chunk)>& take);
};

}  // namespace lwp::st
