#include "reader/stored_properties.h"

#include <gtest/gtest.h>

namespace lwp {
namespace {

TEST(WithObjectName, PutsNameAndColonForThePlaceholder) { EXPECT_EQ(withObjectName("[file]:Goal", "Robot"), "Robot:Goal"); }

TEST(WithObjectName, ReplacesEveryPlaceholder) { EXPECT_EQ(withObjectName("[file]:[file]:X", "Robot"), "Robot:Robot:X"); }

TEST(WithObjectName, DoesNotSearchWhatItPutIn) {
  EXPECT_EQ(withObjectName("[file]:X", "[file]"), "[file]:X");
  EXPECT_EQ(withObjectName("[file][file]::X", "a"), "[file]a::X");
}

TEST(WithObjectName, LeavesOtherTextsAlone) {
  EXPECT_EQ(withObjectName("", "Robot"), "");
  EXPECT_EQ(withObjectName("[File]:X file: [file]", "Robot"), "[File]:X file: [file]");
}

TEST(PutObjectName, ReachesEverySlot) {
  skg::SkelegonProperties properties;
  for (std::string& text : properties.texts()) text = "[file]:";
  putObjectName(properties, "R");
  for (const std::string& text : properties.texts()) EXPECT_EQ(text, "R:");
}

}  // namespace
}  // namespace lwp
