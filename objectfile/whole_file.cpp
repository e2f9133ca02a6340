#include "objectfile/whole_file.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

#include "objectfile/file_bytes.h"

namespace standin {
namespace {

namespace fs = std::filesystem;

Failure cannotWrite(const std::string& path, const std::string& why) { return Failure{"cannot write " + path + ": " + why}; }

// In the same folder, since a rename across file systems would be a copy. It leaves the file's own name out, which may be
// as long as the system allows.
fs::path besides(const fs::path& path) { return path.parent_path() / (".varnel-" + std::to_string(std::random_device()())); }

// The temporary name is nobody's concern: failures tell of the file that was to be written.
std::optional<Failure> writeThrough(const fs::path& path, const std::string& bytes, std::optional<fs::perms> permissions) {
  const fs::path temporary = besides(path);
  std::optional<Failure> failure = writeFileBytes(utf8Of(temporary), bytes, utf8Of(path));
  std::error_code error;
  if (!failure && permissions) fs::permissions(temporary, *permissions, error);
  if (!failure && !error) fs::rename(temporary, path, error);
  if (!failure && error) failure = cannotWrite(utf8Of(path), error.message());
  if (failure) fs::remove(temporary, error);
  return failure;
}

// Why the file itself must not be written; empty when it may. The administrator, whom the system lets write everything, is
// held to what the permissions say.
std::string whyProtected(const fs::path& path, fs::perms permissions) {
  constexpr fs::perms kWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if ((permissions & kWrite) == fs::perms::none) return "it is read-only";
  errno = 0;
  const std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
  return file ? std::string() : std::generic_category().message(errno);
}

// The file itself where the path is a link.
Outcome<fs::path> replaceable(const std::string& path) {
  std::error_code error;
  const fs::path target = fs::canonical(pathFromUtf8(path), error);
  if (error) return cannotWrite(path, error.message());
  const fs::file_status status = fs::status(target, error);
  if (!fs::is_regular_file(status)) return cannotWrite(path, "it is no file");
  if (const std::string why = whyProtected(target, status.permissions()); !why.empty()) return cannotWrite(path, why);
  return target;
}

// A link that leads nowhere is something, too.
bool isThere(const std::string& path) {
  std::error_code error;
  return fs::exists(fs::symlink_status(pathFromUtf8(path), error));
}

}  // namespace

std::optional<Failure> refusedFiles(const std::vector<std::string>& paths, Existing existing) {
  const auto found = std::find_if(paths.begin(), paths.end(), isThere);
  if (existing == Existing::Replace || found == paths.end()) return {};
  return Failure{*found + " exists and is not written over; --force writes over it"};
}

std::optional<Failure> refusedAsRead(const std::vector<std::string>& paths, const std::vector<std::string>& read) {
  for (const std::string& path : paths) {
    for (const std::string& source : read) {
      std::error_code error;  // where one of them is not there, they are not the same
      if (fs::equivalent(pathFromUtf8(path), pathFromUtf8(source), error)) {
        return Failure{path + " is read, and is not written over"};
      }
    }
  }
  return {};
}

std::optional<Failure> refusedFolder(const std::string& folder) {
  const fs::path trial = besides(pathFromUtf8(folder) / "trial");
  std::optional<Failure> failure = writeFileBytes(utf8Of(trial), {}, folder);
  std::error_code ignored;
  if (!failure) fs::remove(trial, ignored);
  return failure;
}

std::optional<Failure> refusedReplacement(const std::string& path) {
  const Outcome<fs::path> target = replaceable(path);
  return target ? std::optional<Failure>() : Failure{target.why()};
}

std::optional<Failure> writeWholeFile(const std::string& path, const std::string& bytes, Existing existing) {
  if (auto refused = refusedFiles({path}, existing)) return refused;
  return isThere(path) ? replaceFile(path, bytes) : writeThrough(pathFromUtf8(path), bytes, {});
}

std::optional<Failure> replaceFile(const std::string& path, const std::string& bytes) {
  const Outcome<fs::path> target = replaceable(path);
  if (!target) return Failure{target.why()};
  std::error_code ignored;
  return writeThrough(*target, bytes, fs::status(*target, ignored).permissions());
}

}  // namespace standin
