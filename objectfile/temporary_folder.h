// A folder of its own for files that are made on the way; gone at the end.
#pragma once

#include <filesystem>
#include <string>

namespace standin {

class TemporaryFolder {
 public:
  // Throws std::runtime_error, with the place and the system's words, where none can be made.
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  // UTF-8.
  std::string path() const;
  std::string file(const std::string& name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace standin
