#include <chrono>

#include "tests/probe/probe_fixture.h"

namespace standin {
namespace {

TEST_F(Probing, WritesAFileInModelerAndBreaksNoRule) {
  const MeasuredHost measured = inModeler();
  EXPECT_EQ(measured.complaints, "");
  ASSERT_TRUE(nlohmann::json::accept(measured.facts)) << measured.last;
  const auto file = nlohmann::json::parse(measured.facts);
  EXPECT_EQ(file.at("format"), "varnel host facts");
  EXPECT_EQ(file.at("program"), "Modeler");
  EXPECT_EQ(file.at("host").at("release"), "15.0");
}

TEST_F(Probing, WritesAFileInLayoutAndBreaksNoRule) {
  const MeasuredHost measured = inLayout();
  EXPECT_EQ(measured.complaints, "");
  ASSERT_TRUE(nlohmann::json::accept(measured.facts)) << measured.last;
  EXPECT_EQ(nlohmann::json::parse(measured.facts).at("program"), "Layout");
}

TEST_F(Probing, KnowsAModuleThatIsNotTheProbe) {
  const std::string other = modulePath();
  try {
    TemporaryFolder folder;
    static_cast<void>(measuredModeler(other, {}, folder.path()));
    FAIL() << "it was measured with";
  } catch (const std::runtime_error& error) {
    EXPECT_EQ(error.what(), other + " is not the probe: it has no command \"Varnel:HostFacts\"");
  }
}

std::string dayOf(std::chrono::system_clock::time_point now) {
  const std::chrono::year_month_day day(std::chrono::floor<std::chrono::days>(now));
  const auto digits = [](unsigned number) { return (number < 10 ? "0" : "") + std::to_string(number); };
  return std::to_string(static_cast<int>(day.year())) + "-" + digits(static_cast<unsigned>(day.month())) + "-" +
         digits(static_cast<unsigned>(day.day()));
}

TEST_F(Probing, TheFileTellsTheDayAndTheProbesVersion) {
  const std::string before = dayOf(std::chrono::system_clock::now());
  const auto file = nlohmann::json::parse(inModeler().facts);
  const std::string after = dayOf(std::chrono::system_clock::now());
  EXPECT_TRUE(file.at("date") == before || file.at("date") == after) << file.at("date");
  EXPECT_EQ(file.at("probe"), std::to_string(VARNEL_VERSION_MAJOR) + "." + std::to_string(VARNEL_VERSION_MINOR));
}

}  // namespace
}  // namespace standin
