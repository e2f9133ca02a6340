#include "skelegon/numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace skg {
namespace {

TEST(LeadingInteger, ReadsTheNumberAndIgnoresTheRest) {
  EXPECT_EQ(leadingInteger("12 frames"), 12);
  EXPECT_EQ(leadingInteger("-3.9"), -3);
  EXPECT_EQ(leadingInteger("  7"), 7);
  EXPECT_EQ(leadingInteger("+5"), 5);
}

TEST(LeadingInteger, IsZeroWithoutANumber) {
  EXPECT_EQ(leadingInteger(""), 0);
  EXPECT_EQ(leadingInteger("on"), 0);
  EXPECT_EQ(leadingInteger("-"), 0);
  EXPECT_EQ(leadingInteger("+-1"), 0);
}

TEST(LeadingInteger, StopsAtTheLimitsOf32Bits) {
  EXPECT_EQ(leadingInteger("2147483647"), std::numeric_limits<int>::max());
  EXPECT_EQ(leadingInteger("2147483648"), std::numeric_limits<int>::max());
  EXPECT_EQ(leadingInteger("-2147483649"), std::numeric_limits<int>::min());
}

TEST(LeadingReal, ReadsTheNumberAndIgnoresTheRest) {
  EXPECT_EQ(leadingReal("100.000000"), 100.0);
  EXPECT_EQ(leadingReal("-0.5m"), -0.5);
  EXPECT_EQ(leadingReal(" .25"), 0.25);
  EXPECT_EQ(leadingReal("1e3"), 1000.0);
  EXPECT_EQ(leadingReal("80.0"), 80.0);
}

TEST(LeadingReal, IsZeroWithoutADecimalNumber) {
  EXPECT_EQ(leadingReal(""), 0.0);
  EXPECT_EQ(leadingReal("nan"), 0.0);
  EXPECT_EQ(leadingReal("-inf"), 0.0);
  EXPECT_EQ(leadingReal("."), 0.0);
  EXPECT_EQ(leadingReal("0x10"), 0.0);
}

TEST(LeadingReal, IsZeroWhereNoDoubleHoldsTheNumber) { EXPECT_EQ(leadingReal("1e999"), 0.0); }

}  // namespace
}  // namespace skg
