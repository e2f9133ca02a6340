// What the probe writes of Layout for people to read, as the stand-in's Layout gives it.
#include "tests/probe/probe_fixture.h"

namespace standin {
namespace {

class LayoutFigure : public Probing {
 protected:
  std::string figure(const std::string& name) { return figureIn(inLayout().facts, name); }
};

TEST_F(LayoutFigure, TellsWhatACommandDidByTheQueryBeforeAndBehindIt) {
  EXPECT_EQ(figure("BoneFalloffType 3"), "before 4; answered 1, then 2");
}

TEST_F(LayoutFigure, TellsTheUnitOfLimitsByWhatTheQueryGives) {
  EXPECT_EQ(figure("HLimits -0.5000000000 45.0000000000"),
            "before off from -3.141593 to 3.141593; answered 1, then off from -0.008726646 to 0.7853982");
}

TEST_F(LayoutFigure, TellsAToggleThereAndBack) {
  EXPECT_EQ(figure("BoneWeightMapOnly"),
            "before flags 0x5; answered 1, then flags 0x1d; again: answered 1, then flags 0x15");
}

TEST_F(LayoutFigure, TellsTheAnswerAloneWhereNoQueryShowsMore) {
  EXPECT_EQ(figure("PathAlignMaxLookSteps 20.0000000000"), "answered 1");
}

TEST_F(LayoutFigure, TellsACommandThatTheHostRefused) {
  EXPECT_EQ(figure("ItemColor 15"), "before 14; answered 0, then 14");
}

TEST_F(LayoutFigure, TellsWhichOfTwoNamesABoneGets) {
  EXPECT_NE(figure("item and bones of a file with one layer").find("became \"ProbeLast\", \"Bone\""), std::string::npos);
}

TEST_F(LayoutFigure, TellsWhatTheHostMadeOfLettersBeyondAscii) {
  EXPECT_NE(figure("encoding of commands").find("\"VarnelProbe\xE6\x97\xA5\xE6\x9C\xAC\""), std::string::npos);
}

}  // namespace
}  // namespace standin
