// What becomes of a conversion, as the commands "convert" and "commands" tell it: by words and by the exit code.
#include <gmock/gmock.h>

#include <sstream>

#include "objectfile/sample_rigs.h"
#include "standin/panels/folded_text.h"
#include "tests/standin/program_fixture.h"
#include "tests/standin/rigs_fixture.h"

namespace standin {
namespace {

using rigs::SoundRig;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr std::uint8_t kUseBonesFrom = 12;
constexpr std::uint8_t kFalloff = 13;
constexpr std::uint8_t kTarget = 52;

// Its target is a null that the conversion makes.
SoundRig wellRig() {
  SoundRig rig;
  rig.set(rig.hand, kTarget, "Reach");
  return rig;
}

// Both commands end with the same verdict, each on the stream that its other output leaves free.
class ConversionRun : public TypedLines, public testing::WithParamInterface<const char*> {
 protected:
  int convert(const ObjectFile& object, const std::string& name = "rig.lwo") {
    EXPECT_FALSE(writeObject(object, name));
    const int result = type(std::string("varnel ") + GetParam() + " " + name);
    verdict_ = std::string(GetParam()) == "convert" ? out : error;
    verdict_.erase(0, verdict_.find("verdict: "));
    return result;
  }

  std::string verdict_;
};

TEST_P(ConversionRun, OfASoundRigEndsWithZero) {
  EXPECT_EQ(convert(wellRig().object()), 0) << out << error;
  EXPECT_EQ(verdict_, "verdict: all went well\n  objects converted: 1 of 1\n  bones set: 2 of 2\n");
}

TEST_P(ConversionRun, ThatATextCutsOffNamesTheBonesThatGotNothing) {
  SoundRig rig = wellRig();
  rig.builder.tag(rig.root, lw::kTagBoneWeight, std::string(494, 'x'));
  EXPECT_EQ(convert(rig.object()), 1);
  EXPECT_THAT(verdict_, AllOf(StartsWith("verdict: not all went well\n"), HasSubstr("bones set: 0 of 2\n"),
                              HasSubstr("bones set only in part: Root\n"), HasSubstr("bones without settings: Hand\n"),
                              HasSubstr("the run was cut off")));
}

TEST_P(ConversionRun, WithBonesFromNobodySetsNoBone) {
  SoundRig rig = wellRig();
  rig.set(rig.root, kUseBonesFrom, "Nobody");
  EXPECT_EQ(convert(rig.object()), 1);
  EXPECT_THAT(verdict_, AllOf(HasSubstr("objects converted: 1 of 1\n"), HasSubstr("bones set: 0 of 2\n"),
                              HasSubstr("on the status line: bone_set_params(): !(Root)\n")));
}

TEST_P(ConversionRun, OfAFileInCapitalsSaysWhyItIsPassedOver) {
  EXPECT_EQ(convert(wellRig().object(), "rig.LWO"), 1);
  EXPECT_THAT(verdict_,
              AllOf(HasSubstr("objects converted: 0 of 1\n"),
                    HasSubstr("passed over: rig, since its file's name does not end in .lwo, in small letters\n")));
}

TEST_P(ConversionRun, NamesRefusedCommandsAndCountsThem) {
  SoundRig rig = wellRig();
  rig.set(rig.root, kFalloff, "20");
  rig.set(rig.hand, kFalloff, "20");
  EXPECT_EQ(convert(rig.object()), 1);
  EXPECT_THAT(verdict_, AllOf(HasSubstr("refused by Layout: BoneFalloffType, 2 times: "),
                              HasSubstr("bones set only in part: Root, Hand\n"), Not(HasSubstr("on the status line"))));
}

// Layout shows helper items in a way that bones have not.
TEST_P(ConversionRun, WithABoneForATargetTellsWhatLayoutRefused) {
  EXPECT_EQ(convert(SoundRig().object()), 1);
  EXPECT_THAT(verdict_,
              AllOf(HasSubstr("bones set only in part: Hand\n"), HasSubstr("refused by Layout: ItemVisibility: ")));
}

TEST_P(ConversionRun, OfAMeshBesideTheRigIsNoTrouble) {
  SoundRig rig = wellRig();
  rig.builder.layer(1, "Skin").box({0, 0, 0}, {1, 1, 1});
  EXPECT_EQ(convert(rig.object()), 0) << verdict_;
  EXPECT_THAT(verdict_, AllOf(HasSubstr("objects converted: 1 of 2\n"),
                              HasSubstr("passed over: rig:Skin, since it has no skelegons\n")));
}

TEST_P(ConversionRun, OfNothingButAMeshIsNotWell) {
  RigBuilder mesh;
  mesh.box({0, 0, 0}, {1, 1, 1});
  EXPECT_EQ(convert(mesh.object()), 1);
  EXPECT_THAT(verdict_, HasSubstr("objects converted: 0 of 1\n"));
}

TEST_P(ConversionRun, LeavesABoneWithoutANameWithoutSettings) {
  SoundRig rig = wellRig();
  rig.builder.between(rig.hand.tail, rig.root.head, std::nullopt);
  EXPECT_EQ(convert(rig.object()), 1);
  EXPECT_THAT(verdict_, AllOf(HasSubstr("bones set: 2 of 3\n"), HasSubstr("bones without settings: Bone\n")));
}

INSTANTIATE_TEST_SUITE_P(By, ConversionRun, testing::Values("convert", "commands"),
                         [](const auto& info) { return std::string(info.param); });

class ConvertCommand : public TypedLines {
 protected:
  void convert(const std::string& options = {}) {
    EXPECT_FALSE(writeObject(wellRig().object(), "rig.lwo"));
    EXPECT_EQ(type("varnel convert rig.lwo --lang en " + options), 0) << error;
  }
};

TEST_F(ConvertCommand, CountsWhatDiffersUnlessItIsAskedForMore) {
  convert();
  EXPECT_THAT(out, AllOf(HasSubstr("strength: on 1 item\n"), Not(HasSubstr("strength: 80 %"))));
  EXPECT_THAT(out, HasSubstr("Root  (length 1)  [5 settings]\n"));
}

TEST_F(ConvertCommand, ShowsEachSettingOnALineWhenItIsAskedForAll) {
  convert("--full");
  EXPECT_THAT(out, AllOf(HasSubstr("- strength: 80 %\n"), HasSubstr("- weight map: Root\n"), Not(HasSubstr("on 1 item"))));
}

TEST_F(ConvertCommand, KeepsToAHundredColumns) {
  ASSERT_EQ(type("varnel convert --shipped --full --lang en"), 0) << error;
  std::istringstream lines(out);
  std::size_t count = 0;
  for (std::string line; std::getline(lines, line); ++count) EXPECT_LE(columnsOf(line), 100U) << line;
  EXPECT_GT(count, 100U);
}

TEST_F(ConvertCommand, KeepsItsErrorStreamForErrors) {
  convert();
  EXPECT_THAT(error, IsEmpty());
}

TEST_F(ConvertCommand, ShowsNamesBesideNumbersInItsTranscript) {
  convert("--transcript");
  EXPECT_THAT(out, HasSubstr("    SelectItem 0x40000000  -- Root\n"));
}

class CommandsCommand : public TypedLines {
 protected:
  void SetUp() override { EXPECT_FALSE(writeObject(wellRig().object(), "rig.lwo")); }
};

TEST_F(CommandsCommand, NamesTheItemBesideItsNumber) {
  EXPECT_EQ(type("varnel commands rig.lwo"), 0) << error;
  EXPECT_THAT(out, HasSubstr("\nSelectItem 0x40000001  -- Hand\n"));
  EXPECT_THAT(out, HasSubstr("\nTargetItem 0x10000001  -- Reach\n"));
  EXPECT_THAT(out, HasSubstr("\nBoneStrength 0.8000000000\n"));
}

TEST_F(CommandsCommand, GivesTheNameAsAMemberOfItsOwnInJson) {
  EXPECT_EQ(type("varnel commands --json rig.lwo"), 0) << error;
  EXPECT_THAT(out, HasSubstr("\"item\": \"Hand\""));
  EXPECT_THAT(out, Not(HasSubstr("  -- ")));
}

}  // namespace
}  // namespace standin
