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

TEST_F(LayoutFigure, TellsEachCommandByItsOwnQuery) {
  struct Row {
    const char* name;
    const char* seen;
  };
  const std::string facts = inLayout().facts;
  for (const Row& row : {
           Row{"ApplyServer CustomObjHandler LW_ItemShape", "before none; answered 1, then \"LW_ItemShape\""},
           Row{"ItemVisibility 7", "before 6; answered 1, then 7"},
           Row{"BoneWeightMapName ProbeWeight", "before null; answered 1, then \"ProbeWeight\""},
           Row{"BoneStrength 0,2500000000", "before 0.5; answered 0, then 0.5"},
           Row{"BoneSource 0x10000003", "before none; answered 1, then \"varnel-probe:Probe\""},
           Row{"TargetItem 0x10000000", "before none; answered 1, then \"VarnelProbeA\""},
           Row{"PoleItem 0x10000000", "before none; answered 1, then \"VarnelProbeA\""},
           Row{"GoalItem 0x10000000", "before none; answered 1, then \"VarnelProbeA\""},
           Row{"RotationItem 0x10000000", "before none; answered 1, then \"VarnelProbeA\""},
           Row{"SoftIKMin 0.1000000000",
               "before kind 1, distance 2, from 0.25 to 0.75; answered 1, then kind 1, distance 2, from "
               "0.1 to 0.75"},
           Row{"XController 6", "before 0; answered 1, then 6"},
           Row{"BController 6", "before 0; answered 1, then 6"},
           Row{"LimitSX",
               "before off from 0 to 1; answered 1, then on from 0 to 1; again: answered 1, then off from 0 to 1"},
       }) {
    EXPECT_EQ(figureIn(facts, row.name), row.seen) << row.name;
  }
}

TEST_F(LayoutFigure, TellsWhatTheSceneHolds) {
  struct Row {
    const char* name;
    const char* seen;
  };
  const std::string facts = inLayout().facts;
  for (const Row& row : {
           Row{"switches of the program", "parent in place off, IK on, motion controllers on"},
           Row{"EnableMC", "while it is on, EnableMC 1 leaves it, and EnableMC 0 switches it"},
           Row{"items of a file with two layers",
               "the items of varnel-probe.lwo, with a layer \"Probe\" and one without a name: \"varnel-probe:Probe\" holds "
               "layer 0, \"varnel-probe:Layer2\" holds layer 1"},
           Row{"bones of skelegons",
               "\"ProbeRoot\" below \"varnel-probe:Probe\", at (0, 0, 0), colour 8; \"ProbeLeft\" below \"ProbeRoot\", at "
               "(0, "
               "0, 1), colour 11; \"ProbeRight\" below \"ProbeRoot\", at (0, 0, 1), colour 8; \"ProbeTip\" below "
               "\"ProbeLeft\", at (0, 0, 1.414214), colour 8, weight map \"ProbeWeight\""},
       }) {
    EXPECT_EQ(figureIn(facts, row.name), row.seen) << row.name;
  }
}

TEST_F(LayoutFigure, TellsWhatTheHostMadeOfLettersBeyondAscii) {
  const std::string seen = figure("encoding of commands");
  EXPECT_NE(seen.find("\"VarnelProbe\xE6\x97\xA5\xE6\x9C\xAC\""), std::string::npos) << seen;
#if !defined(_WIN32)
  EXPECT_NE(seen.find("as the bytes E6 97 A5 E6 9C AC made"), std::string::npos) << seen;
#endif
}

}  // namespace
}  // namespace standin
