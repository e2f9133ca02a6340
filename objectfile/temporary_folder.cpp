#include "objectfile/temporary_folder.h"

#include <cstdlib>
#include <random>
#include <stdexcept>
#include <string>
#include <system_error>

#include "objectfile/file_bytes.h"

namespace standin {
namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
constexpr const char* kVariables[] = {"TMP", "TEMP"};
#else
constexpr const char* kVariables[] = {"TMPDIR", "TMP", "TEMP", "TEMPDIR"};
#endif

// The place that the system was told to use. It does not name it when it is missing.
fs::path wantedPlace() {
  for (const char* const variable : kVariables) {
    if (const char* const value = std::getenv(variable); value != nullptr) return value;
  }
  return "/tmp";
}

std::runtime_error noPlace(const fs::path& place, const std::error_code& error) {
  std::error_code ignored;
  // A place that is missing is called "not a directory" by some systems.
  const bool isThere = fs::exists(place, ignored);
  const std::error_code why = isThere ? error : std::make_error_code(std::errc::no_such_file_or_directory);
  return std::runtime_error("there is no place for temporary files: " + utf8Of(place) + ": " + why.message());
}

fs::path newFolder() {
  std::error_code error;
  const fs::path place = fs::temp_directory_path(error);
  if (error) throw noPlace(wantedPlace(), error);
  fs::path folder = place / ("varnel-" + std::to_string(std::random_device()()));
  fs::create_directories(folder, error);
  if (error) throw noPlace(place, error);
  return folder;
}

}  // namespace

TemporaryFolder::TemporaryFolder() : path_(newFolder()) {}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::path() const { return utf8Of(path_); }

std::string TemporaryFolder::file(const std::string& name) const { return utf8Of(path_ / pathFromUtf8(name)); }

}  // namespace standin
