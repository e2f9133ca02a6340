// Objects that others wrote. They stand beside the project, not in it; without them their tests are skipped.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "objectfile/file_bytes.h"

namespace standin {

inline std::filesystem::path samplesFolder() {
  const char* const given = std::getenv("VARNEL_SAMPLES");
  if (given != nullptr && *given != '\0') return given;
  return pathFromUtf8(VARNEL_REPOSITORY).parent_path() / "shared" / "samples";
}

// The paths of the objects in one of its folders, in order. UTF-8.
inline std::vector<std::string> sampleObjects(const std::string& folder) {
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::directory_iterator(samplesFolder() / folder)) {
    if (entry.path().extension() == ".lwo") paths.push_back(utf8Of(entry.path()));
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

class OnSamples : public testing::Test {
 protected:
  void SetUp() override {
    if (!std::filesystem::exists(samplesFolder())) GTEST_SKIP() << "no sample objects at " << samplesFolder();
  }
};

}  // namespace standin
