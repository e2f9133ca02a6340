// The conversion in a process whose numbers have a decimal comma: the host reads commands with a point all the same.
#include "standin/core/comma_locale.h"

#include <algorithm>

#include "tests/tools/conversion_fixture.h"

namespace standin {
namespace {

class ConversionInACommaLocale : public ConversionTest {
 protected:
  bool sent(const std::string& command) const {
    const std::vector<std::string> all = commands();
    return std::find(all.begin(), all.end(), command) != all.end();
  }

 private:
  CommaLocale locale_;
};

TEST_F(ConversionInACommaLocale, SendsRealsWithAPoint) {
  convert(load(twoBones({{31, "250.000000"}, {76, "3"}, {77, "1"}, {78, "-0.250000"}, {79, "1.500000"}})));
  EXPECT_TRUE(sent("BoneStrength 2.5000000000"));
  EXPECT_TRUE(sent("XLimits -0.2500000000 1.5000000000"));
  EXPECT_EQ(item("Bone").bone.strength, 2.5);
}

TEST_F(ConversionInACommaLocale, TellsItsProgress) {
  convert(load(twoBones({})));
  EXPECT_TRUE(sent("StatusMsg {0.50}Now setting bone properties..."));
}

}  // namespace
}  // namespace standin
