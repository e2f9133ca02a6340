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

}  // namespace
}  // namespace standin
