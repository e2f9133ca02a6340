#include "reader/CFileStream.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <locale>
#include <utility>

namespace lwp::st {

namespace {

// A folder opens as a file on some systems; its length is then senseless or reading it fails.
std::streamoff lengthOf(std::ifstream& file) {
  file.seekg(0, std::ios::end);
  const std::streamoff length = file.tellg();
  file.seekg(0, std::ios::beg);
  return file ? length : -1;
}

}  // namespace

bool readInBlocks(std::istream& file, std::span<std::byte> bytes, std::size_t perRead) {
  while (!bytes.empty()) {
    const std::span<std::byte> block = bytes.first(std::min(perRead, bytes.size()));
    if (!file.read(reinterpret_cast<char*>(block.data()), static_cast<std::streamsize>(block.size()))) return false;
    bytes = bytes.subspan(block.size());
  }
  return true;
}

CFileStream::CFileStream(std::span<const std::byte> bytes)
    : bytes_(bytes.size() <= kLongestFile ? bytes : std::span<const std::byte>()) {}

bool CFileStream::load(const std::string& narrowPath) {
  file_.reset();
  bytes_ = {};
  position_ = 0;

  std::ifstream file;
  file.imbue(std::locale::classic());  // a locale set in the host's process may convert what is read
  file.open(narrowPath, std::ios::binary);
  if (!file) return false;
  const std::streamoff length = lengthOf(file);
  if (length < 0 || static_cast<std::uintmax_t>(length) > kLongestFile) return false;

  const auto size = static_cast<std::size_t>(length);
  auto bytes = std::make_unique_for_overwrite<std::byte[]>(size);
  if (!readInBlocks(file, std::span(bytes.get(), size))) return false;
  file_ = std::move(bytes);
  bytes_ = {file_.get(), size};
  return true;
}

bool CFileStream::readF4(float& value) {
  const std::byte* at = take(kBytesOfU4);
  if (at == nullptr) return false;
  value = loadF4(at);
  return true;
}

bool CFileStream::readVEC12(Vec12& value) {
  const std::byte* at = take(kBytesOfVec12);
  if (at == nullptr) return false;
  value = loadVec12(at);
  return true;
}

bool CFileStream::readS0(std::string_view& text) {
  if (atEnd()) return false;
  const auto* start = reinterpret_cast<const char*>(bytes_.data() + position_);
  const void* zero = std::memchr(start, 0, left());
  if (zero == nullptr) return false;
  const auto length = static_cast<std::size_t>(static_cast<const char*>(zero) - start);
  const std::size_t withZero = length + 1;
  if (take(withZero + withZero % 2) == nullptr) return false;
  text = {start, length};
  return true;
}

bool CFileStream::readWindow(std::uint32_t size, CFileStream& window) {
  const std::byte* at = take(size);
  if (at == nullptr) return false;
  window = CFileStream(std::span(at, size));
  return true;
}

}  // namespace lwp::st
