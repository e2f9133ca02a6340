#include "objectfile/file_bytes.h"

#include <fstream>
#include <ios>
#include <system_error>

namespace standin {

std::filesystem::path pathFromUtf8(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

std::string utf8Of(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

Outcome<std::string> readFileBytes(const std::string& path) {
  std::ifstream file(pathFromUtf8(path), std::ios::binary | std::ios::ate);
  if (!file) return Failure{"cannot open " + path};
  const std::streamoff size = file.tellg();
  if (size < 0) return Failure{"cannot read " + path};
  std::string bytes(static_cast<std::size_t>(size), '\0');
  file.seekg(0);
  file.read(bytes.data(), size);
  if (!file) return Failure{"cannot read " + path};
  return bytes;
}

std::optional<Failure> writeFileBytes(const std::string& path, const std::string& bytes) {
  std::ofstream file(pathFromUtf8(path), std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) return Failure{"cannot write " + path};
  return std::nullopt;
}

}  // namespace standin
