// A file in memory and a reading position in it: the primitives that object files are made of.
// The object reader gives every chunk a stream of its own, so that nothing reads past what it was given.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <limits>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "reader/big_endian.h"

namespace lwp::st {

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
  explicit CFileStream(std::span<const std::byte> bytes);

  // Loads the whole file into memory of the stream's own and stands at its start. 'narrowPath' is in the system's narrow
  // code page. False, and nothing loaded, when the file cannot be opened or read, or is too long.
  bool load(const std::string& narrowPath);

  std::uint32_t position() const { return position_; }
  std::uint32_t left() const { return static_cast<std::uint32_t>(bytes_.size()) - position_; }
  bool atEnd() const { return left() == 0; }
  // What was not read yet.
  std::span<const std::byte> rest() const { return bytes_.subspan(position_); }

  // Each reads one value and goes on behind it. False when the bytes are not there: then neither the position nor the
  // value is touched.
  bool readU2(std::uint16_t& value);
  bool readU4(std::uint32_t& value);
  bool readF4(float& value);
  bool readVEC12(Vec12& value);
  // A text up to its zero, padded to even length. 'text' refers to the stream's bytes.
  bool readS0(std::string_view& text);
  // A point or polygon number of two or four bytes.
  bool readVX(std::uint32_t& index);
  // The next 'size' bytes as a stream of their own, which refers to this stream's bytes.
  bool readWindow(std::uint32_t size, CFileStream& window);

 private:
  // The address of the next 'size' bytes, which are passed; null when there are fewer.
  const std::byte* take(std::size_t size);

  std::unique_ptr<std::byte[]> file_;
  std::span<const std::byte> bytes_;
  std::uint32_t position_ = 0;
};

inline const std::byte* CFileStream::take(std::size_t size) {
  if (size > left()) return nullptr;
  const std::byte* at = bytes_.data() + position_;
  position_ += static_cast<std::uint32_t>(size);
  return at;
}

inline bool CFileStream::readU2(std::uint16_t& value) {
  const std::byte* at = take(kBytesOfU2);
  if (at == nullptr) return false;
  value = loadU2(at);
  return true;
}

inline bool CFileStream::readU4(std::uint32_t& value) {
  const std::byte* at = take(kBytesOfU4);
  if (at == nullptr) return false;
  value = loadU4(at);
  return true;
}

inline bool CFileStream::readVX(std::uint32_t& index) {
  if (atEnd()) return false;
  const std::size_t size = bytesOfIndexAt(bytes_.data() + position_);
  const std::byte* at = take(size);
  if (at == nullptr) return false;
  index = size == kBytesOfLongIndex ? loadLongIndex(at) : loadU2(at);
  return true;
}

}  // namespace lwp::st
