#include "objectfile/temporary_folder.h"

#include <random>
#include <system_error>

#include "objectfile/file_bytes.h"

namespace standin {

TemporaryFolder::TemporaryFolder()
    : path_(std::filesystem::temp_directory_path() / ("varnel-" + std::to_string(std::random_device()()))) {
  std::filesystem::create_directories(path_);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::path() const { return utf8Of(path_); }

std::string TemporaryFolder::file(const std::string& name) const { return utf8Of(path_ / pathFromUtf8(name)); }

}  // namespace standin
