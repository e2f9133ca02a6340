// The command picture as it is typed.
#include "objectfile/sample_rigs.h"
#include "program/conversion.h"
#include "tests/standin/program_fixture.h"
#include "tests/standin/views_fixture.h"

namespace standin {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class PictureCommand : public TypedLines {
 protected:
  void SetUp() override { makeRigs(); }

  static void expectNear(const Vec3& a, const std::vector<double>& b, const std::string& what) {
    ASSERT_EQ(b.size(), 3U) << what;
    for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(a[i], b[i], 1e-5) << what;
  }

  // The scene that the module makes of the file, beside its picture.
  void expectAsInTheScene(const std::string& file) {
    ASSERT_EQ(type("varnel picture --after --lang en " + file + " after.svg"), 0) << error;
    const views::Shown shown(bytesOf("after.svg"));
    Progress progress;
    const ConversionOptions options;
    Conversion conversion(file, options, progress);
    conversion.open();
    conversion.run(progress);
    Scene& scene = conversion.host().scene();
    std::size_t bones = 0;
    std::size_t nulls = 0;
    for (Item* object : scene.objects()) {
      if (object->isNull()) ++nulls;
      for (Item* bone : object->bones) {
        const Placement& placement = scene.placement(*bone, 0);
        const views::DrawnBone drawn = shown.bone(scene.nameOf(*bone));
        expectNear(placement.position, drawn.head, drawn.title);
        expectNear(placement.position + placement.axes.columns[2] * bone->rest.length, drawn.tail, drawn.title);
        ++bones;
      }
    }
    EXPECT_EQ(shown.bones().size(), bones);
    EXPECT_EQ(shown.with("data-at").size(), nulls);
    conversion.end();
  }
};

TEST_F(PictureCommand, ShowsTheLizardAsItIsAfterTheConversion) { expectAsInTheScene("rigs/lizard.lwo"); }

TEST_F(PictureCommand, BeforeAndAfterBonesLieAtTheSamePlacesWhereNothingMovesThem) {
  ASSERT_FALSE(writeObject(makeChainRig(5, 0), "chain.lwo"));
  ASSERT_EQ(type("varnel picture chain.lwo before.svg"), 0) << error;
  ASSERT_EQ(type("varnel picture --after chain.lwo after.svg"), 0) << error;
  const views::Shown before(bytesOf("before.svg"));
  const views::Shown after(bytesOf("after.svg"));
  ASSERT_EQ(before.bones().size(), 5U);
  for (const views::DrawnBone& bone : before.bones()) {
    std::vector<double> head = after.bone(bone.title).head;
    expectNear({head.at(0), head.at(1), head.at(2)}, bone.head, bone.title);
  }
}

TEST_F(PictureCommand, TellsWhatHelperItemsAre) {
  ASSERT_EQ(type("varnel picture --after --lang en rigs/lizard.lwo lizard.svg"), 0) << error;
  const views::Shown shown(bytesOf("lizard.svg"));
  for (const char* const text :
       {"Head_tar (target)", "Root_initpos (initial position)", "Neck_pos (position)", "Jaw_scl (scale)"}) {
    EXPECT_THAT(shown.textsOf("text"), Contains(text));
  }
}

TEST_F(PictureCommand, MarksWhatInspectCallsAProblem) {
  RigBuilder builder;
  const auto bone = builder.root("Bone", {0, 0, 0}, {0, 1, 0});
  builder.settings(bone, {{31, "strong"}, {129, "Red"}});
  ASSERT_FALSE(writeObject(builder.object(), "poor.lwo"));
  ASSERT_EQ(type("varnel picture --lang en poor.lwo poor.svg"), 0) << error;
  EXPECT_THAT(views::Shown(bytesOf("poor.svg")).textsOf("title"), Contains(HasSubstr("Bone: ")));
  type("varnel picture --after --lang en poor.lwo after.svg");
  EXPECT_THAT(views::Shown(bytesOf("after.svg")).textsOf("title"), Contains(HasSubstr("Bone: ")));
}

// The scene has them as they are stored, in the Japanese code page.
TEST_F(PictureCommand, NamesBonesAndHelperItemsReadablyAfterTheConversion) {
  RigBuilder builder;
  const auto head = builder.root("\x93\xaa", {0, 0, 0}, {0, 1, 0});
  builder.settings(head, {{52, "\x93\xaa_tar"}});
  ASSERT_FALSE(writeObject(builder.object(), "head.lwo"));
  type("varnel picture --after --lang en head.lwo head.svg");
  const views::Shown shown(bytesOf("head.svg"));
  EXPECT_THAT(shown.textsOf("text"), Contains("頭"));
  EXPECT_THAT(shown.textsOf("title"), Contains(HasSubstr("頭_tar")));
}

TEST_F(PictureCommand, GoesToTheOutputWithoutAFile) {
  ASSERT_EQ(type("varnel picture --lang ja --view top rigs/lizard.lwo"), 0) << error;
  EXPECT_THAT(views::Shown(out).textsOf("text"), Contains("上面"));
}

TEST_F(PictureCommand, DrawsLayersByNameAndNumber) {
  for (const char* const layer : {"Tail", "1"}) {
    ASSERT_EQ(type(std::string("varnel picture rigs/lizard.lwo --layer ") + layer), 0) << error;
    const views::Shown shown(out);
    EXPECT_THAT(shown.bones(), Not(IsEmpty()));
    for (const views::DrawnBone& bone : shown.bones()) EXPECT_THAT(bone.title, HasSubstr("Tail"));
  }
  expectRefused("varnel picture rigs/lizard.lwo --layer Wing", "no layer has the name or number Wing");
}

TEST_F(PictureCommand, WritesOverNothingUnlessForced) {
  write("there.svg", "mine");
  expectRefused("varnel picture rigs/lizard.lwo there.svg", "there.svg");
  EXPECT_EQ(bytesOf("there.svg"), "mine");
  EXPECT_EQ(type("varnel picture rigs/lizard.lwo -o there.svg --force"), 0) << error;
  EXPECT_THAT(bytesOf("there.svg"), HasSubstr("<svg "));
}

TEST_F(PictureCommand, RefusesWhatIsNoObject) {
  write("text.lwo", "no object");
  expectRefused("varnel picture text.lwo picture.svg", "text.lwo");
  expectRefused("varnel picture --after text.lwo picture.svg", "text.lwo");
  expectRefused("varnel picture missing.lwo picture.svg", "missing.lwo");
}

TEST_F(PictureCommand, TellsTheVerdictOfAConversionThatDidNotGoWell) {
  RigBuilder builder;
  builder.root("", {0, 0, 0}, {0, 1, 0});
  ASSERT_FALSE(writeObject(builder.object(), "nameless.lwo"));
  EXPECT_EQ(type("varnel picture --after nameless.lwo nameless.svg"), 1);
  EXPECT_THAT(error, HasSubstr("verdict"));
  EXPECT_EQ(views::Shown(bytesOf("nameless.svg")).bones().size(), 1U);
}

}  // namespace
}  // namespace standin
