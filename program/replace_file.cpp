#include "program/replace_file.h"

#include <filesystem>
#include <random>
#include <system_error>

#include "objectfile/file_bytes.h"
#include "program/support.h"

namespace standin {
namespace {

namespace fs = std::filesystem;

// In the same folder, since a rename across file systems would be a copy.
fs::path besides(const fs::path& path) {
  fs::path name = path.filename();
  name += ".varnel-" + std::to_string(std::random_device()());
  return path.parent_path() / name;
}

std::optional<Failure> writeThrough(const fs::path& path, const std::string& bytes, std::optional<fs::perms> permissions) {
  const fs::path temporary = besides(path);
  std::optional<Failure> failure = writeFileBytes(utf8Of(temporary), bytes);
  std::error_code error;
  if (!failure && permissions) fs::permissions(temporary, *permissions, error);
  if (!failure && !error) fs::rename(temporary, path, error);
  if (!failure && error) failure = Failure{"cannot write " + utf8Of(path) + ": " + error.message()};
  if (failure) fs::remove(temporary, error);
  return failure;
}

}  // namespace

std::optional<Failure> writeNewFile(const std::string& path, const std::string& bytes) {
  std::error_code error;
  const fs::file_status status = fs::symlink_status(pathFromUtf8(path), error);
  if (fs::exists(status)) return Failure{path + " exists and is not written over"};
  return writeThrough(pathFromUtf8(path), bytes, {});
}

std::optional<Failure> replaceFile(const std::string& path, const std::string& bytes) {
  std::error_code error;
  const fs::path target = fs::canonical(pathFromUtf8(path), error);
  if (error) return Failure{"cannot write " + path + ": " + error.message()};
  const fs::file_status status = fs::status(target, error);
  if (!fs::is_regular_file(status)) return Failure{"cannot write " + path + ": it is no file"};
  return writeThrough(target, bytes, status.permissions());
}

}  // namespace standin
