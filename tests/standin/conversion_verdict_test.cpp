// The verdict on a conversion, from what a Layout saw: here a person sends what the tool would.
#include "program/conversion_verdict.h"

#include <gmock/gmock.h>

#include <memory>
#include <sstream>

#include "program/nearest_name.h"
#include "program/progress.h"
#include "standin/panels/folded_text.h"
#include "tests/standin/layout_fixture.h"

namespace standin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// An object of three skelegons, selected.
class Watched : public testing::Test {
 protected:
  Watched() {
    const std::vector<FilePoint> points{{0, 0, 0}, {0, 0, 1}, {0, 0, 2}, {0, 0, 3}};
    const auto layer = skelegonLayer(points, {named(0, 1, "A"), named(1, 2, "B"), named(2, 3, "C")});
    object_ = session_.scene().addObject(oneLayer(layer), "rig.lwo").front();
    session_.host.select({object_});
    watch_ = std::make_unique<ConversionWatch>(session_.host);
  }

  void send(const std::string& command) { session_.host.command(command); }
  void makeBones() {
    send("StatusMsg Orlo:SkelegonOptimize start...");
    send("AutoConfirm 1");
    send("SkelegonsToBones");
  }
  void beginBone(std::size_t bone) {
    send("StatusMsg {0.50}Now setting bone properties...");
    std::ostringstream select;
    select << "SelectItem 0x" << std::hex << object_->bones.at(bone)->number;
    send(select.str());
    send("BoneStrength 0.5");
  }
  void end() { send("StatusMsg Orlo:SkelegonOptimize done."); }

  LayoutSession session_;
  Item* object_ = nullptr;
  std::unique_ptr<ConversionWatch> watch_;
};

TEST_F(Watched, IsSoundWhenEachBoneGotItsSettings) {
  makeBones();
  for (const std::size_t bone : {0U, 1U, 2U}) beginBone(bone);
  end();
  EXPECT_TRUE(watch_->verdict().isSound()) << verdictText(watch_->verdict());
}

TEST_F(Watched, BlamesAFailureOnTheBoneThatWasBeingSet) {
  makeBones();
  for (const std::size_t bone : {0U, 1U, 2U}) {
    beginBone(bone);
    if (bone == 1) send("StatusMsg *** ERROR: createNull() ! ***");
  }
  end();
  EXPECT_THAT(watch_->verdict().partlySet, ElementsAre("B"));
  EXPECT_EQ(watch_->verdict().set, 2U);
}

TEST_F(Watched, DoesNotTakeAHelperForTheBoneThatIsBeingSet) {
  makeBones();
  beginBone(0);
  session_.host.select({object_->bones.at(2)});
  send("BoneStrength 0.5");
  send("StatusMsg *** ERROR: createNull() ! ***");
  end();
  EXPECT_THAT(watch_->verdict().partlySet, ElementsAre("A"));
  EXPECT_THAT(watch_->verdict().notSet, ElementsAre("B", "C"));
}

TEST_F(Watched, BlamesNoBoneForASkelegonThatIsNotFound) {
  makeBones();
  beginBone(0);
  send("StatusMsg {0.50}Now setting bone properties...");
  send("StatusMsg item not found ! (X)");
  EXPECT_THAT(watch_->verdict().partlySet, IsEmpty());
  EXPECT_THAT(verdictText(watch_->verdict()), HasSubstr("  on the status line: item not found ! (X)\n"));
}

TEST_F(Watched, IsCutOffUntilTheToolSaysThatItIsDone) {
  makeBones();
  beginBone(0);
  EXPECT_TRUE(watch_->verdict().wasCutOff);
  EXPECT_THAT(watch_->verdict().partlySet, ElementsAre("A"));
  end();
  EXPECT_FALSE(watch_->verdict().wasCutOff);
  EXPECT_THAT(watch_->verdict().partlySet, IsEmpty());
}

TEST_F(Watched, CountsEqualFailuresOnce) {
  makeBones();
  for (int i = 0; i < 3; ++i) send("StatusMsg item not found ! (X)");
  EXPECT_THAT(watch_->verdict().failures, SizeIs(1));
  EXPECT_THAT(verdictText(watch_->verdict()), HasSubstr("on the status line, 3 times: item not found ! (X)\n"));
}

TEST_F(Watched, LeavesOutTheStatusTextThatRepeatsARefusedCommand) {
  makeBones();
  send("BoneFalloffType 99");
  send("StatusMsg *** ERROR: eval( \"BoneFalloffType 99\" ) !(0) ***");
  EXPECT_THAT(watch_->verdict().refused, SizeIs(1));
  EXPECT_THAT(watch_->verdict().failures, IsEmpty());
}

TEST_F(Watched, NamesOnlySomeOfManyBones) {
  ConversionVerdict verdict;
  for (int i = 0; i < 12; ++i) verdict.notSet.push_back("B" + std::to_string(i));
  EXPECT_THAT(verdictText(verdict), HasSubstr("B8, B9 and 2 more\n"));
}

// ---------------------------------------------------------------------------------------------------------------------

TEST(Progress, WritesOverItselfAndGoes) {
  std::ostringstream stream;
  {
    Progress progress(stream, true);
    progress.tell("half", 0.5);
    progress.tell("half", 0.501);
    progress.tell("頭");
  }
  EXPECT_EQ(stream.str(), "half, 50 %\r          \r頭\r  \r");
}

TEST(Progress, IsSilentWhereNobodyLooks) {
  std::ostringstream stream;
  Progress(stream, false).tell("half", 0.5);
  EXPECT_EQ(stream.str(), "");
}

TEST(NearestName, ForgivesSomeLettersAndKnowsBeginnings) {
  const std::vector<std::string> names{"convert", "commands", "diff", "import", "export"};
  EXPECT_EQ(nearestName("convrt", names), "convert");
  EXPECT_EQ(nearestName("ocnvert", names), "convert");
  EXPECT_EQ(nearestName("comm", names), "commands");
  EXPECT_EQ(nearestName("imprt", names), "import");
}

TEST(NearestName, DoesNotGuessWildly) {
  EXPECT_EQ(nearestName("xyzzy", {"convert", "diff"}), "");
  EXPECT_EQ(nearestName("", {"convert", "diff"}), "");
  EXPECT_EQ(nearestName(std::string(5000, 'd'), {"diff"}), "");
}

TEST(FoldedText, BreaksAtSpacesAndMovesTheRestIn) {
  EXPECT_EQ(folded("  one two three", 9, 4), "  one two\n    three");
  EXPECT_EQ(folded("one two", 7, 4), "one two");
}

TEST(FoldedText, KeepsALongWordWhole) { EXPECT_EQ(folded("a 123456789 b", 5, 2), "a\n  123456789\n  b"); }

TEST(FoldedText, CountsWideLettersTwice) {
  EXPECT_EQ(columnsOf("頭 a"), 4U);
  EXPECT_EQ(folded("頭 足", 4, 0), "頭\n足");
}

}  // namespace
}  // namespace standin
