// What the tests of the object reader share.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tests/unit/object_bytes.h"
#include "tests/unit/read_object.h"

namespace varnel::test {

constexpr const char* kPath = "C:\\Objects\\Robot.lwo";

constexpr std::uint32_t idOf(std::string_view four) {
  std::uint32_t id = 0;
  for (const char character : four) id = id << 8U | static_cast<unsigned char>(character);
  return id;
}

// What was read of a file, and whether it was taken as sound. Data of a sound object is there beforehand, so that a test
// sees whether a refused file leaves it.
struct Reading {
  bool isSound = false;
  ObjectFileData data;

  explicit Reading(std::span<const std::byte> file) {
    const std::vector<std::byte> before = ObjectBytes().tags({"before"}).layer(0, "before").file();
    ParseObjectFile(data, before, "before.lwo");
    isSound = ParseObjectFile(data, file, kPath);
  }
  explicit Reading(const ObjectBytes& object) : Reading(object.file()) {}
};

inline testing::AssertionResult isRefused(const Reading& reading) {
  if (reading.isSound) return testing::AssertionFailure() << "taken as sound";
  if (!isEmpty(reading.data)) return testing::AssertionFailure() << "refused, but the data is not empty";
  return testing::AssertionSuccess();
}

// True when the reader and the plain reader agree on a file.
inline testing::AssertionResult readersAgree(std::span<const std::byte> file) {
  const Reading reading(file);
  const std::optional<PlainObject> expected = PlainObjectReader::read(file);
  if (!expected) return isRefused(reading);
  if (!reading.isSound) return testing::AssertionFailure() << "refused, though it is sound";
  if (plainObject(reading.data) != *expected) return testing::AssertionFailure() << "read differently";
  return testing::AssertionSuccess();
}

// Two layers with everything that is read and something that is not.
inline ObjectBytes smallRig() {
  return ObjectBytes()
      .tags({"Default", "Bone01", "Bone02", "odd", ""})
      .layer(0, "Body")
      .points(4)
      .polygons("FACE", {{0, 1, 2}, {0, 1, 2, 3}, {3, 2}})
      .polygonTags("SURF", {{0, 0}, {1, 0}})
      .chunk("SURF", Bytes().s0("Default").s0("").id("COLR").u2(0))
      .layer(1, "", 0)
      .points(3)
      .polygons("BONE", {{0, 1}, {1, 2}})
      .polygonTags("BONE", {{0, 1}, {1, 2}})
      .polygonTags("sg1A", {{1, 3}});
}

// A file of the test's own, removed at the end.
class TemporaryFile {
 public:
  explicit TemporaryFile(std::span<const std::byte> bytes)
      : path_(std::filesystem::temp_directory_path() /
              ("varnel-reader-test-" + std::to_string(std::random_device()()) + ".lwo")) {
    std::ofstream(path_, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }

  std::string path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace varnel::test
