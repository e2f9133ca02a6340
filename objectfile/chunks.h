// The container of object files: chunks of an identifier, a size and bytes; and the numbers and texts inside them.
// All numbers are big-endian.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "objectfile/outcome.h"

namespace standin {

// Kept whole, the pad byte included, so that a chunk that nobody touches is written exactly as it was read.
struct Chunk {
  std::uint32_t id = 0;
  std::string bytes;
  char pad = 0;  // the byte after a chunk of odd size, not counted in the size
};

struct Form {
  std::uint32_t type = 0;
  std::vector<Chunk> chunks;
};

Outcome<Form> splitForm(std::string_view file);
// Fails when the form would not fit its 32-bit size.
Outcome<std::string> joinForm(const Form& form);

// "LAYR", with anything unprintable as '?'.
std::string chunkName(std::uint32_t id);

// Reads from the front of a chunk. Once anything runs past the end, every further read gives zero or empty and failed() is
// true: read a whole record, then ask.
class ChunkReader {
 public:
  explicit ChunkReader(std::string_view bytes) : rest_(bytes) {}

  std::uint16_t word();
  std::uint32_t longWord();
  float real();
  std::uint32_t index();  // two bytes, or four when the first is 0xFF
  std::string text();     // zero-terminated, padded to even length

  bool atEnd() const { return rest_.empty(); }
  std::size_t left() const { return rest_.size(); }
  bool failed() const { return failed_; }

 private:
  std::string_view take(std::size_t count);

  std::string_view rest_;
  bool failed_ = false;
};

class ChunkWriter {
 public:
  void word(std::uint16_t value);
  void longWord(std::uint32_t value);
  void real(float value);
  void index(std::uint32_t value);
  void text(std::string_view value);

  std::string take() { return std::move(bytes_); }

 private:
  std::string bytes_;
};

inline constexpr std::uint32_t kLargestIndex = 0x00FFFFFF;

}  // namespace standin
