// What the reports say.
#include <gtest/gtest.h>

#include "standin/validate/ladder_report.h"

namespace standin::validate {
namespace {

std::vector<CheckResult> twoResults() {
  CheckResult good;
  good.check = checkNamed("descriptor");
  good.cases = 3;
  CheckResult bad;
  bad.check = checkNamed("walks");
  bad.verdict = Verdict::Crash;
  bad.cases = 40;
  bad.injected = 7;
  bad.findings.push_back({Verdict::Crash, 12, "walk 12; action 5", "signal 11 <script>"});
  return {good, bad};
}

ReportHead someHead() { return {"some.p", "a host", "today", 77, 1}; }

bool holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

TEST(ValidationReport, NamesCheckVerdictAndPlace) {
  const std::string text = reportText(someHead(), twoResults());
  EXPECT_TRUE(holds(text, "pass   descriptor")) << text;
  EXPECT_TRUE(holds(text, "crash  walks")) << text;
  EXPECT_TRUE(holds(text, "crash at step 12 (walk 12; action 5): signal 11")) << text;
  EXPECT_TRUE(holds(text, "seed    77")) << text;
}

TEST(ValidationReport, NamesTheHostUnlessItIsTheDefault) {
  ReportHead head = someHead();
  EXPECT_FALSE(holds(reportText(head, {}), "on      "));
  head.host = "sets=fire";
  EXPECT_TRUE(holds(reportText(head, {}), "on      sets=fire\n"));
  EXPECT_TRUE(holds(reportPage(head, {}), "on      sets=fire\n"));
}

TEST(ValidationReport, CountsByLevelAndInAll) {
  const std::string text = reportText(someHead(), twoResults());
  EXPECT_TRUE(holds(text, " 8 walks             0     0     1     0     0        40         7")) << text;
  EXPECT_TRUE(holds(text, "all                  1     0     1     0     0        43         7")) << text;
}

TEST(ValidationReport, SaysThatRefusalsAreOnPurpose) {
  CheckResult result;
  result.check = checkNamed("calls-property");
  result.injected = 12;
  EXPECT_TRUE(holds(resultText(result), "12 refused on purpose")) << resultText(result);
  EXPECT_TRUE(holds(reportText(someHead(), twoResults()), "put in: on purpose")) << reportText(someHead(), twoResults());
}

TEST(ValidationReport, MakesAPageOfItsOwn) {
  const std::string page = reportPage(someHead(), twoResults());
  EXPECT_TRUE(holds(page, "not sound"));
  EXPECT_TRUE(holds(page, "signal 11 &lt;script&gt;"));
  EXPECT_FALSE(holds(page, "<script"));
  EXPECT_FALSE(holds(page, "http"));
}

TEST(ValidationReport, SaysWhyACheckWasSkipped) {
  CheckResult skipped;
  skipped.check = checkNamed("file-exports");
  skipped.verdict = Verdict::Skip;
  skipped.reason = "no such file here";
  EXPECT_TRUE(holds(resultText(skipped), "skipped: no such file here"));
  EXPECT_TRUE(holds(reportPage(someHead(), {{skipped}}), "no such file here"));
}

TEST(ValidationReport, IsSoundOnlyWithoutFindings) {
  std::vector<CheckResult> results = twoResults();
  EXPECT_FALSE(isSound(results));
  results.pop_back();
  EXPECT_TRUE(isSound(results));
}

TEST(Checks, HaveNamesOfTheirOwnAndCoverEveryLevel) {
  std::vector<int> perLevel(kLastLevel + 1);
  for (const Check& check : allChecks()) {
    EXPECT_EQ(checkNamed(check.name), &check) << check.name;
    ++perLevel.at(static_cast<std::size_t>(check.level));
  }
  for (int level = kFirstLevel; level <= kLastLevel; ++level)
    EXPECT_GT(perLevel[static_cast<std::size_t>(level)], 0) << level;
}

}  // namespace
}  // namespace standin::validate
