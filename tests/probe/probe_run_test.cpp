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

}  // namespace
}  // namespace standin
