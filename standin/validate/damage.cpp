#include "standin/validate/damage.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <random>
#include <stdexcept>

#include "objectfile/file_bytes.h"

namespace standin::validate {
namespace {

constexpr std::size_t kChunkHead = 8;
constexpr std::size_t kFormHead = 12;

std::string bytesOf(const std::string& path) {
  Outcome<std::string> bytes = readFileBytes(path);
  if (!bytes) throw std::runtime_error(bytes.why());
  return *std::move(bytes);
}

void write(const std::string& path, const std::string& bytes) {
  if (const auto failure = writeFileBytes(path, bytes)) throw std::runtime_error(failure->text);
}

void putNumber(std::string& bytes, std::size_t at, std::uint32_t value, int width = 4) {
  for (int i = 0; i < width; ++i) {
    if (at + static_cast<std::size_t>(i) < bytes.size()) {
      bytes[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> (8 * (width - 1 - i)) & 0xFF);
    }
  }
}

void mendForm(std::string& bytes) {
  if (bytes.size() >= kChunkHead) putNumber(bytes, 4, static_cast<std::uint32_t>(bytes.size() - kChunkHead));
}

std::uint32_t numberAt(const std::string& bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < 4; ++i) value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
  return value;
}

// Where the first chunk of that name begins, by the chunks' own sizes; throws when there is none.
std::size_t chunkAt(const std::string& bytes, std::string_view name) {
  for (std::size_t at = kFormHead; at + kChunkHead <= bytes.size();) {
    if (std::string_view(bytes).substr(at, 4) == name) return at;
    const std::uint32_t size = numberAt(bytes, at + 4);
    at += kChunkHead + size + size % 2;
  }
  throw std::logic_error("the sound file has no chunk " + std::string(name));
}

std::size_t chunkLength(const std::string& bytes, std::size_t at) {
  const std::uint32_t size = numberAt(bytes, at + 4);
  return kChunkHead + size + size % 2;
}

// A kind of damage is a change of the bytes; the form's size is put right afterwards.
using Change = void (*)(std::string& bytes);
template <Change change>
void changeBytes(const std::string& path, std::uint64_t /*seed*/) {
  std::string bytes = bytesOf(path);
  change(bytes);
  mendForm(bytes);
  write(path, bytes);
}
template <Change change>
void changeAll(const std::string& path, std::uint64_t /*seed*/) {
  std::string bytes = bytesOf(path);
  change(bytes);
  write(path, bytes);
}

void missing(const std::string& path, std::uint64_t /*seed*/) { std::filesystem::remove(pathFromUtf8(path)); }

void folderInPlace(const std::string& path, std::uint64_t /*seed*/) {
  std::filesystem::remove(pathFromUtf8(path));
  std::filesystem::create_directory(pathFromUtf8(path));
}

void noise(const std::string& path, std::uint64_t seed) {
  std::mt19937_64 random(seed);
  std::string bytes(5000, '\0');
  for (char& c : bytes) c = static_cast<char>(random() & 0xFF);
  write(path, bytes);
}

void cutTagText(std::string& bytes) {
  const std::size_t at = chunkAt(bytes, "TAGS");
  bytes[at + chunkLength(bytes, at) - 1] = 'x';
  bytes[at + chunkLength(bytes, at) - 2] = 'x';
}

void removeChunk(std::string& bytes, std::string_view name) {
  const std::size_t at = chunkAt(bytes, name);
  bytes.erase(at, chunkLength(bytes, at));
}

void doubleChunk(std::string& bytes, std::string_view name) {
  const std::size_t at = chunkAt(bytes, name);
  bytes.insert(at, bytes.substr(at, chunkLength(bytes, at)));
}

void setSize(std::string& bytes, std::string_view name, std::uint32_t size) {
  putNumber(bytes, chunkAt(bytes, name) + 4, size);
}

void moveToFront(std::string& bytes, std::string_view name) {
  const std::size_t at = chunkAt(bytes, name);
  const std::string chunk = bytes.substr(at, chunkLength(bytes, at));
  bytes.erase(at, chunk.size());
  bytes.insert(kFormHead, chunk);
}

void fillChunk(std::string& bytes, std::string_view name, std::size_t from, char with) {
  const std::size_t at = chunkAt(bytes, name);
  std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(at + kChunkHead + from),
            bytes.begin() + static_cast<std::ptrdiff_t>(at + kChunkHead + numberAt(bytes, at + 4)), with);
}

constexpr std::array kDamages{
    Damage{"no file", missing},
    Damage{"a folder in its place", folderInPlace},
    Damage{"noise", noise},
    Damage{"empty", changeAll<[](std::string& b) { b.clear(); }>},
    Damage{"four bytes", changeAll<[](std::string& b) { b.resize(4); }>},
    Damage{"eleven bytes", changeAll<[](std::string& b) { b.resize(11); }>},
    Damage{"cut in half", changeAll<[](std::string& b) { b.resize(b.size() / 2); }>},
    Damage{"cut in half, with the size put right", changeBytes<[](std::string& b) { b.resize(b.size() / 2); }>},
    Damage{"cut by one byte", changeBytes<[](std::string& b) { b.resize(b.size() - 1); }>},
    Damage{"another form", changeAll<[](std::string& b) { b.replace(0, 4, "FORX"); }>},
    Damage{"another type", changeAll<[](std::string& b) { b.replace(8, 4, "LWOB"); }>},
    Damage{"a form too great", changeAll<[](std::string& b) { putNumber(b, 4, 0xFFFFFFFF); }>},
    Damage{"a form too small", changeAll<[](std::string& b) { putNumber(b, 4, 4); }>},
    Damage{"tags too great", changeBytes<[](std::string& b) { setSize(b, "TAGS", 0xFFFFFFFF); }>},
    Damage{"tags of no size", changeBytes<[](std::string& b) { setSize(b, "TAGS", 0); }>},
    Damage{"tags of odd size", changeBytes<[](std::string& b) { setSize(b, "TAGS", 7); }>},
    Damage{"tags without an end", changeBytes<cutTagText>},
    Damage{"no tags", changeBytes<[](std::string& b) { removeChunk(b, "TAGS"); }>},
    Damage{"tags twice", changeBytes<[](std::string& b) { doubleChunk(b, "TAGS"); }>},
    Damage{"a layer too small", changeBytes<[](std::string& b) { setSize(b, "LAYR", 3); }>},
    Damage{"no layer", changeBytes<[](std::string& b) { removeChunk(b, "LAYR"); }>},
    Damage{"a layer twice", changeBytes<[](std::string& b) { doubleChunk(b, "LAYR"); }>},
    Damage{"a layer's name without an end", changeBytes<[](std::string& b) { fillChunk(b, "LAYR", 16, 'x'); }>},
    Damage{"points of odd size", changeBytes<[](std::string& b) { setSize(b, "PNTS", 13); }>},
    Damage{"no points", changeBytes<[](std::string& b) { removeChunk(b, "PNTS"); }>},
    Damage{"points that are no numbers", changeBytes<[](std::string& b) { fillChunk(b, "PNTS", 0, '\xFF'); }>},
    Damage{"polygons before everything", changeBytes<[](std::string& b) { moveToFront(b, "POLS"); }>},
    Damage{"polygons of points beyond", changeBytes<[](std::string& b) { fillChunk(b, "POLS", 6, '\xFE'); }>},
    Damage{"polygons of full bytes", changeBytes<[](std::string& b) { fillChunk(b, "POLS", 4, '\xFF'); }>},
    Damage{"polygons of no points", changeBytes<[](std::string& b) { fillChunk(b, "POLS", 4, '\0'); }>},
    Damage{"polygons of three bytes", changeBytes<[](std::string& b) { setSize(b, "POLS", 3); }>},
    Damage{"polygon tags before everything", changeBytes<[](std::string& b) { moveToFront(b, "PTAG"); }>},
    Damage{"polygon tags of polygons beyond", changeBytes<[](std::string& b) { fillChunk(b, "PTAG", 4, '\x7F'); }>},
    Damage{"polygon tags of full bytes", changeBytes<[](std::string& b) { fillChunk(b, "PTAG", 4, '\xFF'); }>},
    Damage{"polygon tags of five bytes", changeBytes<[](std::string& b) { setSize(b, "PTAG", 5); }>},
};
static_assert(kDamages.size() >= 20);

}  // namespace

std::span<const Damage> damages() { return kDamages; }

void mutate(const std::string& path, std::uint64_t seed) {
  std::mt19937_64 random(seed);
  std::string bytes = bytesOf(path);
  const auto place = [&] { return static_cast<std::size_t>(random() % bytes.size()); };
  const std::size_t changes = 1 + random() % 8;
  for (std::size_t i = 0; i < changes; ++i) {
    switch (random() % 5) {
      case 0: bytes[place()] = static_cast<char>(random() & 0xFF); break;
      case 1: bytes[place()] = '\xFF'; break;
      case 2: bytes[place()] = '\0'; break;
      case 3: bytes.erase(place(), 1 + random() % 16); break;
      default: {
        const std::size_t from = place();
        bytes.insert(place(), bytes.substr(from, 1 + random() % 64));
      }
    }
  }
  mendForm(bytes);
  write(path, bytes);
}

}  // namespace standin::validate
