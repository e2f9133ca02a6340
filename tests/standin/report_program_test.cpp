// The command that writes reports, as a user types it.
#include "objectfile/rig_builder.h"
#include "tests/standin/program_fixture.h"

namespace standin {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

class WrittenReports : public TypedLines {
 protected:
  void SetUp() override { makeRigs(); }

  static void writeRig(const std::string& path, const RigBuilder& builder) {
    EXPECT_FALSE(writeObject(builder.object(), path));
  }
  static std::size_t picturesIn(const std::string& page) {
    std::size_t count = 0;
    for (std::size_t at = page.find("<svg"); at != std::string::npos; at = page.find("<svg", at + 1)) ++count;
    return count;
  }
};

TEST_F(WrittenReports, ShowAShippedRigBeforeAndAfterItsConversion) {
  ASSERT_EQ(type("varnel report rigs/lizard.lwo -o report --lang en"), 0) << error;
  EXPECT_THAT(out, testing::MatchesRegex("report.lizard\\.html\n"));
  const std::string page = bytesOf("report/lizard.html");
  EXPECT_EQ(picturesIn(page), 8U);
  EXPECT_THAT(page, HasSubstr("all went well"));
  EXPECT_THAT(page, HasSubstr("<dt>Bones set</dt><dd>24 / 24</dd>"));
  EXPECT_THAT(page, HasSubstr("<summary><b>Tail_01</b>"));
  EXPECT_THAT(page, HasSubstr("BoneFalloffType 3\n"));
  EXPECT_THAT(page, HasSubstr("Root_initpos"));
  EXPECT_THAT(page, HasSubstr("10–250 m will arrive as 0.1–2.5 m"));
  EXPECT_FALSE(fs::exists("report/index.html"));
}

TEST_F(WrittenReports, AreTheSameWheneverTheyAreMade) {
  ASSERT_EQ(type("varnel report rigs/lizard.lwo -o first"), 0) << error;
  ASSERT_EQ(type("varnel report rigs/lizard.lwo -o second"), 0) << error;
  EXPECT_TRUE(bytesOf("first/lizard.html") == bytesOf("second/lizard.html"));
}

TEST_F(WrittenReports, OfSeveralRigsHaveAnIndexAtTheEnd) {
  ASSERT_EQ(type("varnel report --shipped rigs/lizard.lwo -o report --lang ja"), 0) << error;
  EXPECT_THAT(out, testing::EndsWith("index.html\n"));
  const std::string index = bytesOf("report/index.html");
  EXPECT_THAT(index, HasSubstr("<a href=\"lizard.html\">lizard.lwo</a>"));
  EXPECT_THAT(index, HasSubstr("<a href=\"lizard-2.html\">rigs/lizard.lwo</a>"));
  EXPECT_THAT(index, HasSubstr("<a href=\"%e4%ba%ba%e5%bd%a2.html\">人形.lwo</a>"));
  EXPECT_TRUE(fs::exists(pathFromUtf8("report/人形.html")));
  EXPECT_THAT(bytesOf("report/lizard-2.html"), HasSubstr("<a href=\"index.html\">"));
}

TEST_F(WrittenReports, LinkToPagesWhoseNamesCannotStandInLinks) {
  fs::copy_file("rigs/lizard.lwo", pathFromUtf8("50% #1 & \xC3\xA9.lwo"));
  ASSERT_EQ(type("varnel report \"50% #1 & \xC3\xA9.lwo\" rigs/lizard.lwo -o report"), 0) << error;
  EXPECT_THAT(bytesOf("report/index.html"), HasSubstr("<a href=\"50%25%20%231%20%26%20%c3%a9.html\">50% #1 &amp; "));
}

TEST_F(WrittenReports, LeaveOutAFileThatCannotBeReadAndSaySo) {
  write("broken.lwo", "no object at all");
  EXPECT_EQ(type("varnel report broken.lwo rigs/lizard.lwo -o report --lang en"), 2);
  EXPECT_THAT(error, testing::StartsWith("varnel: broken.lwo: "));
  EXPECT_EQ(std::count(error.begin(), error.end(), '\n'), 1) << error;
  EXPECT_FALSE(fs::exists("report/broken.html"));
  EXPECT_THAT(bytesOf("report/lizard.html"), HasSubstr("Tail_06"));
  EXPECT_THAT(bytesOf("report/index.html"), HasSubstr("not read: broken.lwo: "));
}

TEST_F(WrittenReports, AreNotWrittenOverUnaskedAndThenNoneIs) {
  fs::create_directory("report");
  write("report/人形.html", "mine");
  expectRefused("varnel report rigs/lizard.lwo rigs/人形.lwo -o report", "人形.html exists and is not written over");
  EXPECT_FALSE(fs::exists("report/lizard.html"));
  EXPECT_EQ(bytesOf("report/人形.html"), "mine");
  EXPECT_EQ(type("varnel report rigs/lizard.lwo rigs/人形.lwo -o report --force"), 0) << error;
  EXPECT_THAT(bytesOf("report/人形.html"), HasSubstr("<html"));
}

TEST_F(WrittenReports, CompareWithAnotherStateOfTheRig) {
  exportAnotherStrength("rigs/lizard.lwo", "lizard.json");
  ASSERT_EQ(type("varnel import rigs/lizard.lwo lizard.json -o lizard-2.lwo"), 0) << error;
  ASSERT_EQ(type("varnel report lizard-2.lwo --against rigs/lizard.lwo -o report --lang en"), 0) << error;
  const std::string page = bytesOf("report/lizard-2.html");
  EXPECT_THAT(page, HasSubstr("<h2>Changes since lizard.lwo</h2>"));
  EXPECT_THAT(page, HasSubstr("<td>Strength</td><td>50 %</td><td>12.5 %</td>"));
  EXPECT_EQ(picturesIn(page), 16U);
}

// Where a skelegon has another place in the file than it had, each picture marks its own.
TEST_F(WrittenReports, MarkTheSameSkelegonInBothStates) {
  RigBuilder before;
  before.root("Left", {0, 0, 0}, {0, 1, 0});
  before.root("Right", {1, 0, 0}, {1, 1, 0});
  writeRig("before.lwo", before);
  RigBuilder after;
  after.settings(after.root("Right", {1, 0, 0}, {1, 1, 0}), {{31, "50.000000"}});
  after.root("Left", {0, 0, 0}, {0, 1, 0});
  writeRig("after.lwo", after);
  ASSERT_EQ(type("varnel report after.lwo --against before.lwo -o report --lang en"), 0) << error;
  const std::string page = bytesOf("report/after.html");
  const std::string changes = page.substr(0, page.find("<section id=\"pictures\">"));
  EXPECT_THAT(changes, HasSubstr("Right: Strength</title>"));
  EXPECT_THAT(changes, Not(HasSubstr("Left: ")));
}

TEST_F(WrittenReports, AreNotBegunWhenThereIsNothingToCompareWith) {
  expectRefused("varnel report rigs/lizard.lwo --against missing.lwo -o report", "missing.lwo");
  EXPECT_FALSE(fs::exists("report"));
}

TEST_F(WrittenReports, LeadToTheManualFromWhereTheyLie) {
  fs::create_directories("the manual/en");
  write("the manual/en/surprises.html", "");
  ASSERT_EQ(type("varnel report rigs/lizard.lwo -o a/b --lang en --manual \"the manual\""), 0) << error;
  EXPECT_THAT(bytesOf("a/b/lizard.html"), HasSubstr("href=\"../../the%20manual/en/surprises.html#limited-range\""));
  ASSERT_EQ(type("varnel report rigs/lizard.lwo -o c --lang ja --manual https://example.org/m"), 0) << error;
  EXPECT_THAT(bytesOf("c/lizard.html"), HasSubstr("href=\"https://example.org/m/ja/surprises.html#limited-range\""));
  expectRefused("varnel report rigs/lizard.lwo -o d --manual rigs", "there is no manual in rigs");
}

TEST_F(WrittenReports, TellOfARigThatCannotBeConverted) {
  RigBuilder builder;
  builder.layer(0, "Mesh");
  builder.box({0, 0, 0}, {1, 1, 1});
  writeRig("mesh.lwo", builder);
  EXPECT_EQ(type("varnel report mesh.lwo -o report --lang en"), 0) << error;
  EXPECT_THAT(bytesOf("report/mesh.html"), HasSubstr("it has no skelegons"));
  EXPECT_EQ(type("varnel report rigs/lizard.lwo -o report --lang en --module missing.p"), 2);
  EXPECT_THAT(error, HasSubstr("rigs/lizard.lwo: "));
  const std::string page = bytesOf("report/lizard.html");
  EXPECT_THAT(page, HasSubstr("not converted"));
  EXPECT_THAT(page, HasSubstr("Tail_06"));
}

TEST_F(WrittenReports, AreWholeForARigOfOddNamesAndPlaces) {
  RigBuilder builder;
  builder.layer(0, "<&\">");
  builder.root("<script>\x01&\"'", {0, 0, 0}, {0, 0, 0});
  builder.root("", {1e30F, -1e30F, 0}, {0, 0, 1e-30F});
  builder.between(0, 1, std::nullopt);
  writeRig("odd.lwo", builder);
  EXPECT_EQ(type("varnel report odd.lwo -o report"), 0) << error;
  const std::string page = bytesOf("report/odd.html");
  EXPECT_THAT(page, Not(HasSubstr("<script")));
  EXPECT_THAT(page, Not(HasSubstr("\x01")));
  EXPECT_THAT(page, Not(HasSubstr("nan")));
  EXPECT_THAT(page, Not(HasSubstr("inf\"")));
  EXPECT_THAT(page, testing::EndsWith("</html>\n"));
}

TEST_F(WrittenReports, NeedAFolder) {
  expectRefused("varnel report rigs/lizard.lwo -o rigs/lizard.lwo", "lizard.lwo cannot be made");
  EXPECT_EQ(type("varnel report rigs/lizard.lwo"), 2);
  EXPECT_EQ(type("varnel report -o report"), 2);
  EXPECT_THAT(error, HasSubstr("no files"));
}

}  // namespace
}  // namespace standin
