#include "objectfile/file_bytes.h"

#include <cerrno>
#include <fstream>
#include <ios>
#include <new>
#include <stdexcept>
#include <system_error>

namespace standin {
namespace {

Failure cannot(const char* what, const std::string& path, const std::string& why) {
  return Failure{std::string("cannot ") + what + " " + path + (why.empty() ? "" : ": ") + why};
}

// Why the last call to the system failed, in its words: a stream only tells that it did.
std::string wordsOfTheSystem() { return errno == 0 ? std::string() : std::generic_category().message(errno); }

Outcome<std::string> readAll(std::ifstream& file, const std::string& path) {
  const std::streamoff size = file.tellg();
  if (size < 0) return cannot("read", path, wordsOfTheSystem());
  std::string bytes(static_cast<std::size_t>(size), '\0');
  file.seekg(0);
  file.read(bytes.data(), size);
  if (!file) return cannot("read", path, wordsOfTheSystem());
  return bytes;
}

}  // namespace

std::filesystem::path pathFromUtf8(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

std::string utf8Of(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

Outcome<std::string> readFileBytes(const std::string& path) {
  // Some systems open a folder like a file, of whatever size.
  std::error_code error;
  if (std::filesystem::is_directory(pathFromUtf8(path), error)) {
    return cannot("read", path, wordsOf(std::errc::is_a_directory));
  }
  errno = 0;
  std::ifstream file(pathFromUtf8(path), std::ios::binary | std::ios::ate);
  if (!file) return cannot("open", path, wordsOfTheSystem());
  try {
    return readAll(file, path);
  } catch (const std::bad_alloc&) {
    return cannot("read", path, wordsOf(std::errc::not_enough_memory));
  } catch (const std::length_error&) {  // more than any memory
    return cannot("read", path, wordsOf(std::errc::not_enough_memory));
  }
}

std::optional<Failure> writeFileBytes(const std::string& path, const std::string& bytes, const std::string& shownAs) {
  errno = 0;
  std::ofstream file(pathFromUtf8(path), std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) return cannot("write", shownAs.empty() ? path : shownAs, wordsOfTheSystem());
  return std::nullopt;
}

}  // namespace standin
