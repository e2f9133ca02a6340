// The texts of commands and messages: as printf formats them, with a decimal point whatever the locale of the process is.
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

#include "host/lwtool2_eval.h"
#include "skelegon/numbers.h"
#include "standin/core/comma_locale.h"

namespace lw {
namespace {

using standin::CommaLocale;

std::string asPrintf(double value) {
  std::array<char, 512> text{};
  std::snprintf(text.data(), text.size(), "%.10f", value);
  return text.data();
}

TEST(CommaLocale, PutsACommaIntoNumbersOfTheSystemAndBackAPoint) {
  {
    const CommaLocale locale;
    EXPECT_EQ(asPrintf(0.5), "0,5000000000");
  }
  EXPECT_EQ(asPrintf(0.5), "0.5000000000");
}

TEST(FormatString, FormatsRealsWithAPointInACommaLocale) {
  const CommaLocale locale;
  EXPECT_EQ(FormatString("BoneStrength %.10f", 1.0), "BoneStrength 1.0000000000");
  EXPECT_EQ(FormatString("{%.2f}", 0.125), "{0.12}");
  EXPECT_EQ(FormatString("%f", -1234567.5), "-1234567.500000");
}

TEST(FormatString, FormatsIntegersWithoutSeparatorsInACommaLocale) {
  const CommaLocale locale;
  EXPECT_EQ(FormatString("%d 0x%x", -1234567, 0xFEDCBA98U), "-1234567 0xfedcba98");
}

TEST(Numbers, AreReadWithAPointInACommaLocale) {
  const CommaLocale locale;
  EXPECT_EQ(skg::leadingReal("0.5"), 0.5);
  EXPECT_EQ(skg::leadingReal("1,5"), 1.0);
  EXPECT_EQ(skg::leadingInteger("1.234"), 1);
}

TEST(FormatString, FormatsRealsAsPrintfDoes) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 20'000; ++i) {
    // Of every size, not of every 64 bits: the largest are hundreds of digits long.
    const double value =
        std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())), static_cast<int>(random() % 100) - 90);
    ASSERT_EQ(FormatString("%.10f", value), asPrintf(value)) << std::bit_cast<std::uint64_t>(value);
  }
}

TEST(FormatString, FormatsTheRealsAtTheEndsAsPrintfDoes) {
  using Limits = std::numeric_limits<double>;
  for (const double value :
       {0.0, -0.0, 0.5e-10, 1.5e-10, 2.5e-10, 0.00000000005, 1e22, -1e23, Limits::min(), Limits::denorm_min(), Limits::max(),
        Limits::lowest(), Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
    EXPECT_EQ(FormatString("%.10f", value), asPrintf(value));
  }
}

TEST(FormatString, IsEmptyWhenTwoRealsDoNotFit) {
  constexpr double kLongest = std::numeric_limits<double>::max();  // 309 digits
  EXPECT_EQ(FormatString("%.10f", kLongest).size(), 320u);
  EXPECT_EQ(FormatString("XLimits %.10f %.10f", kLongest, kLongest), "");
}

TEST(FormatString, KnowsWidthAndZeros) {
  EXPECT_EQ(FormatString("%d.%02d", 1, 5), "1.05");
  EXPECT_EQ(FormatString("%02d|%04d|%4d", 20, -3, 7), "20|-003|   7");
  EXPECT_EQ(FormatString("%4s|%02x|%6.1f", "ab", 0xAU, 2.5), "  ab|0a|   2.5");
  EXPECT_EQ(FormatString("100 %%"), "100 %");
}

TEST(FormatString, FillsTheBufferToTheLastByte) {
  EXPECT_EQ(FormatString("%511d", 7).size(), 511u);
  EXPECT_EQ(FormatString("%512d", 7), "");
  EXPECT_EQ(FormatString("%s%d", std::string(510, 'x').c_str(), 7).size(), 511u);
  EXPECT_EQ(FormatString("%s%d", std::string(510, 'x').c_str(), 77), "");
  EXPECT_EQ(FormatString("%sx", std::string(511, 'x').c_str()), "");
}

// What no text of the module asks for is an error, and an error gives the empty text.
TEST(FormatString, IsEmptyForAFormatThatItDoesNotKnow) {
  EXPECT_EQ(FormatString("x %g", 1.5), "");
  EXPECT_EQ(FormatString("x %c", 'a'), "");
  EXPECT_EQ(FormatString("x %.2s", "abc"), "");
  EXPECT_EQ(FormatString("x %-5d", 1), "");
}

}  // namespace
}  // namespace lw
