#include "reader/CFileStream.h"

#include <algorithm>
#include <fstream>
#include <locale>
#include <utility>

namespace lwp::st {

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
  *this = {};
  std::ifstream file;
  file.imbue(std::locale::classic());  // a locale set in the host's process may convert what is read
  file.open(narrowPath, std::ios::binary | std::ios::ate);
  // A folder opens as a file on some systems; its length is then senseless or reading it fails.
  const std::streamoff length = file ? std::streamoff{file.tellg()} : -1;
  if (length < 0 || static_cast<std::uintmax_t>(length) > kLongestFile) return false;
  file.seekg(0);

  const auto size = static_cast<std::size_t>(length);
  auto bytes = std::make_unique_for_overwrite<std::byte[]>(size);
  if (!readInBlocks(file, std::span(bytes.get(), size))) return false;
  file_ = std::move(bytes);
  bytes_ = {file_.get(), size};
  return true;
}

bool CFileStream::readS0(std::string_view& text) {
  const std::span<const std::byte> bytes = rest();
  const auto zero = std::find(bytes.begin(), bytes.end(), std::byte{});
  const auto length = static_cast<std::size_t>(zero - bytes.begin());
  const std::size_t padded = length + (length % 2 == 0 ? 2 : 1);
  if (padded > bytes.size()) return false;
  text = {reinterpret_cast<const char*>(bytes.data()), length};
  position_ += static_cast<std::uint32_t>(padded);
  return true;
}

bool CFileStream::readWindow(std::uint32_t size, CFileStream& window) {
  if (size > left()) return false;
  window = CFileStream(rest().first(size));
  position_ += size;
  return true;
}

}  // namespace lwp::st
