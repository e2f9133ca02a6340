#include "objectfile/chunks.h"

#include <bit>
#include <limits>

#include "interface/lightwave.h"

namespace standin {
namespace {

constexpr std::uint32_t kForm = lw::fourCharacters('F', 'O', 'R', 'M');
constexpr std::uint32_t kFirstLongIndex = 0xFF00;
constexpr std::uint32_t kLongIndexMark = 0xFF000000;

std::uint32_t bigEndian(std::string_view bytes) {
  std::uint32_t value = 0;
  for (const char byte : bytes) value = value << 8 | static_cast<unsigned char>(byte);
  return value;
}

}  // namespace

std::string chunkName(std::uint32_t id) {
  std::string name;
  for (int shift = 24; shift >= 0; shift -= 8) {
    const char c = static_cast<char>(id >> shift & 0xFF);
    name += c >= ' ' && c <= '~' ? c : '?';
  }
  return name;
}

Outcome<Form> splitForm(std::string_view file) {
  ChunkReader head(file.substr(0, 12));
  const std::uint32_t id = head.longWord();
  const std::uint32_t size = head.longWord();
  Form form{head.longWord(), {}};
  if (head.failed()) return Failure{"shorter than the head of an object file"};
  if (id != kForm) return Failure{"not an IFF file"};
  if (size != file.size() - 8) return Failure{"the form's size does not fit the file's length"};

  for (std::string_view rest = file.substr(12); !rest.empty();) {
    if (rest.size() < 8) return Failure{"cut within a chunk's head"};
    Chunk chunk;
    chunk.id = bigEndian(rest.substr(0, 4));
    const std::size_t length = bigEndian(rest.substr(4, 4));
    rest.remove_prefix(8);
    const std::size_t padded = length + (length & 1);
    if (padded > rest.size()) return Failure{"chunk " + chunkName(chunk.id) + " runs past the end of the file"};
    chunk.bytes = rest.substr(0, length);
    if (padded != length) chunk.pad = rest[length];
    rest.remove_prefix(padded);
    form.chunks.push_back(std::move(chunk));
  }
  return form;
}

Outcome<std::string> joinForm(const Form& form) {
  std::size_t size = 4;
  for (const Chunk& chunk : form.chunks) size += 8 + chunk.bytes.size() + (chunk.bytes.size() & 1);
  if (size > std::numeric_limits<std::uint32_t>::max()) return Failure{"the object is too large for its file format"};

  const auto number = [](std::size_t value) {
    ChunkWriter writer;
    writer.longWord(static_cast<std::uint32_t>(value));
    return writer.take();
  };
  std::string file;
  file.reserve(size + 8);
  file += number(kForm) + number(size) + number(form.type);
  for (const Chunk& chunk : form.chunks) {
    file += number(chunk.id) + number(chunk.bytes.size());
    file += chunk.bytes;
    if ((chunk.bytes.size() & 1) != 0) file += chunk.pad;
  }
  return file;
}

std::string_view ChunkReader::take(std::size_t count) {
  if (count > rest_.size()) {
    failed_ = true;
    rest_ = {};
    return {};
  }
  const std::string_view taken = rest_.substr(0, count);
  rest_.remove_prefix(count);
  return taken;
}

std::uint16_t ChunkReader::word() { return static_cast<std::uint16_t>(bigEndian(take(2))); }
std::uint32_t ChunkReader::longWord() { return bigEndian(take(4)); }
float ChunkReader::real() { return std::bit_cast<float>(longWord()); }

std::uint32_t ChunkReader::index() {
  if (!rest_.empty() && rest_[0] == '\xFF') return longWord() & ~kLongIndexMark;
  return word();
}

std::string ChunkReader::text() {
  const std::size_t length = rest_.find('\0');
  if (length == std::string_view::npos) {
    take(rest_.size() + 1);
    return {};
  }
  const std::string_view padded = take(length + 1 + (length + 1) % 2);
  return std::string(padded.substr(0, failed_ ? 0 : length));
}

void ChunkWriter::word(std::uint16_t value) {
  bytes_ += static_cast<char>(value >> 8);
  bytes_ += static_cast<char>(value & 0xFF);
}

void ChunkWriter::longWord(std::uint32_t value) {
  word(static_cast<std::uint16_t>(value >> 16));
  word(static_cast<std::uint16_t>(value & 0xFFFF));
}

void ChunkWriter::real(float value) { longWord(std::bit_cast<std::uint32_t>(value)); }

void ChunkWriter::index(std::uint32_t value) {
  if (value < kFirstLongIndex) {
    word(static_cast<std::uint16_t>(value));
  } else {
    longWord(value | kLongIndexMark);
  }
}

void ChunkWriter::text(std::string_view value) {
  bytes_ += value;
  bytes_ += '\0';
  if (value.size() % 2 == 0) bytes_ += '\0';
}

}  // namespace standin
