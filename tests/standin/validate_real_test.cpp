// The real module on the levels that are no part of the other test programs' work: nothing is found.
#include "tests/standin/validate_fixture.h"

namespace standin::validate {
namespace {

class RealModule : public Validation {};

TEST_F(RealModule, PassesTheFirstLevels) {
  const RunOrder order =
      orderOf(modulePath(), {"file-exports", "file-imports", "descriptor", "servers", "versions", "products", "locales",
                             "local-data", "withheld", "null-lookups", "gone-while-open"});
  for (const CheckResult& result : runChecks(order)) {
    EXPECT_TRUE(result.verdict == Verdict::Pass || result.verdict == Verdict::Skip) << result.check->name;
    EXPECT_TRUE(result.findings.empty()) << result.check->name << ": " << result.findings.at(0).what;
  }
}

TEST_F(RealModule, PassesTheLevelsOfPanelsAndTrips) {
  for (const CheckResult& result :
       runChecks(orderOf(modulePath(), {"opening", "geometry", "resizing", "trip-typical", "trip-property", "trip-renamer",
                                        "trip-selector", "trip-conversion"}))) {
    EXPECT_STREQ(nameOf(result.verdict), "pass") << result.check->name;
    EXPECT_TRUE(result.findings.empty()) << result.check->name << ": " << result.findings.at(0).what;
  }
}

// The conversion makes far more calls than this; each of them is refused in turn.
TEST_F(RealModule, BearsEachRefusedCallOfTheConversion) {
  const CheckResult result = run(modulePath(), "calls-conversion");
  EXPECT_STREQ(nameOf(result.verdict), "pass");
  EXPECT_GT(result.injected, 500U);
  EXPECT_EQ(result.cases, result.injected + 1);
}

// The switches are put back also where there is no memory to format a command.
TEST_F(RealModule, PassesTheConversionWithoutMemory) {
  RunOrder order = orderOf(modulePath(), {"memory-conversion"});
  order.share = 1;
  const CheckResult result = runChecks(order).at(0);
  if (result.verdict == Verdict::Skip) GTEST_SKIP() << result.reason;
  EXPECT_GT(result.injected, 200U);
  EXPECT_TRUE(result.findings.empty()) << result.findings.at(0).what;
}

}  // namespace
}  // namespace standin::validate
