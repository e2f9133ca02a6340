// The reader of Windows files' tables.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "standin/validate/pe_file.h"
#include "tests/standin/validate_fixture.h"

namespace standin::validate {
namespace {

void put(std::string& bytes, std::size_t at, std::uint64_t value, int width) {
  for (int i = 0; i < width; ++i) bytes[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> (8 * i) & 0xFF);
}

void putText(std::string& bytes, std::size_t at, std::string_view text) {
  std::copy(text.begin(), text.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

// A library of one section that lies at 0x1000 and in the file at 0x200. It exports "alpha" and imports from "beta.dll".
std::string smallLibrary() {
  constexpr std::size_t header = 0x40;
  constexpr std::size_t optional = header + 24;
  constexpr std::size_t section = optional + 240;
  constexpr std::size_t body = 0x200;
  std::string bytes(0x400, '\0');
  putText(bytes, 0, "MZ");
  put(bytes, 0x3C, header, 4);
  putText(bytes, header, "PE");
  put(bytes, header + 6, 1, 2);           // sections
  put(bytes, header + 20, 240, 2);        // size of the optional header
  put(bytes, header + 22, 0x2000, 2);     // a library
  put(bytes, optional, 0x20B, 2);         // 64-bit
  put(bytes, optional + 112, 0x1000, 4);  // exports
  put(bytes, optional + 120, 0x1080, 4);  // imports
  put(bytes, section + 12, 0x1000, 4);
  put(bytes, section + 16, 0x200, 4);
  put(bytes, section + 20, body, 4);
  put(bytes, body + 24, 1, 4);       // one name
  put(bytes, body + 32, 0x1040, 4);  // list of names
  put(bytes, body + 0x40, 0x1050, 4);
  putText(bytes, body + 0x50, "alpha");
  put(bytes, body + 0x80 + 12, 0x1100, 4);
  putText(bytes, body + 0x100, "beta.dll");
  return bytes;
}

TEST(PeFile, TellsExportsAndImports) {
  const Outcome<PeFile> file = readPe(smallLibrary());
  ASSERT_TRUE(static_cast<bool>(file)) << file.why();
  EXPECT_TRUE(file->isLibrary);
  EXPECT_EQ(file->exports, std::vector<std::string>{"alpha"});
  EXPECT_EQ(file->libraries, std::vector<std::string>{"beta.dll"});
}

TEST(PeFile, RefusesWhatIsNone) {
  EXPECT_FALSE(static_cast<bool>(readPe("")));
  EXPECT_FALSE(
      static_cast<bool>(readPe("\x7F"
                               "ELF")));
  EXPECT_FALSE(static_cast<bool>(readPe("MZ")));
}

TEST(PeFile, ReadsNothingBeyondItsEndWhereverItIsCut) {
  const std::string whole = smallLibrary();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    // A copy of just that size, so that the sanitizers see a read beyond.
    const std::vector<char> part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    const auto file = readPe({part.data(), part.size()});
    if (file && size < 0x308) {
      EXPECT_LT(file->exports.size() + file->libraries.size(), 2U) << size;
    }
  }
}

TEST(PeFile, EndsWithAnyBytesChanged) {
  std::mt19937 random(1);
  for (int i = 0; i < 5000; ++i) {
    std::string bytes = smallLibrary();
    for (int change = 0; change < 4; ++change) bytes[random() % bytes.size()] = static_cast<char>(random());
    static_cast<void>(readPe(bytes));
  }
}

}  // namespace
}  // namespace standin::validate
