#include "layout/narrow_path.h"

#include <gtest/gtest.h>

namespace lwp {
namespace {

std::string pathOf(std::size_t units) { return std::string(units, 'p'); }

TEST(ToNarrowPath, IsEmptyForAMissingName) {
  CNarrowPath path;
  path.ToNarrowPath("before.lwo");
  EXPECT_EQ(path.ToNarrowPath(nullptr), "");
}

TEST(ToNarrowPath, TakesPathsThatFillTheBufferWithTheirZero) {
  CNarrowPath path;
  EXPECT_EQ(path.ToNarrowPath(pathOf(258).c_str()), pathOf(258));
  EXPECT_EQ(path.ToNarrowPath(pathOf(259).c_str()), pathOf(259));
}

// The one buffer is not written then; deliberately, the path before stays.
TEST(ToNarrowPath, LeavesThePathBeforeForOneThatIsTooLong) {
  CNarrowPath path;
  path.ToNarrowPath("before.lwo");
  for (const std::size_t units : {260, 261, 4095, 4096, 65536})
    EXPECT_EQ(path.ToNarrowPath(pathOf(units).c_str()), "before.lwo") << units;
}

// Names are taken from the UTF-8 form, so that has to be of the same path.
TEST(ToNarrowPath, KeepsTheUtf8FormOfThePathThatItGives) {
  CNarrowPath path;
  path.ToNarrowPath("ソ/before.lwo");
  EXPECT_EQ(path.utf8(), "ソ/before.lwo");
  path.ToNarrowPath(pathOf(260).c_str());
  EXPECT_EQ(path.utf8(), "ソ/before.lwo");
  path.ToNarrowPath(nullptr);
  EXPECT_EQ(path.utf8(), "");
}

TEST(ToNarrowPath, CountsUnitsNotBytes) {
  CNarrowPath path;
  std::string japanese;
  for (int i = 0; i < 259; ++i) japanese += "ソ";
  EXPECT_NE(path.ToNarrowPath(japanese.c_str()), "");
  EXPECT_EQ(path.ToNarrowPath((japanese + "x").c_str()).size(), path.ToNarrowPath(japanese.c_str()).size());
}

TEST(ToNarrowPath, GivesJapaneseNamesInTheSystemsCodePage) {
  CNarrowPath path;
#if defined(_WIN32)
  EXPECT_EQ(path.ToNarrowPath("ソ.lwo"), "\x83\x5C.lwo");  // code page 932; the second byte is a backslash's
#else
  EXPECT_EQ(path.ToNarrowPath("ソ.lwo"), "ソ.lwo");
#endif
}

}  // namespace
}  // namespace lwp
