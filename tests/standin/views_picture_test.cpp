// Pictures, by their numbers.
#include <cmath>
#include <limits>

#include "objectfile/sample_rigs.h"
#include "tests/standin/views_fixture.h"
#include "views/bone_shape.h"
#include "views/palette.h"

namespace standin::views {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr float kInfinite = std::numeric_limits<float>::infinity();

PosedRig chain() {
  RigBuilder builder;
  builder.chain({"Root", "Middle", "End"}, {{0.1F, 0.2F, 0.3F}, {0.4F, 0.9F, -0.2F}, {-0.5F, 1, 0.6F}, {-0.5F, 3, 0.6F}});
  return before(builder.object());
}

PictureOptions only(View view) {
  PictureOptions options;
  options.views = {view};
  return options;
}

double distance(const Vec3& a, const std::vector<double>& b) {
  return b.size() == 3 ? length(a - Vec3{b[0], b[1], b[2]}) : kInfinite;
}

// How far the nearest corner of an outline is from where a point should be drawn, in dots.
double offBy(const Element& frame, const DrawnBone& bone, double right, double up) {
  const double scale = numbersOf(frame.attribute("data-scale")).at(0);
  const std::vector<double> middle = numbersOf(frame.attribute("data-middle"));
  const std::vector<double> centre = numbersOf(frame.attribute("data-centre"));
  double nearest = 1e9;
  for (const OnPage& point : bone.outline) {
    const double x = middle[0] + (right - centre[0]) * scale;
    const double y = middle[1] - (up - centre[1]) * scale;
    nearest = std::min(nearest, std::hypot(point.x - x, point.y - y));
  }
  return nearest;
}

TEST(Picture, TellsWhereEachBoneIs) {
  const PosedRig rig = chain();
  const std::vector<DrawnBone> bones = Shown(rig, {}).bones();
  ASSERT_EQ(bones.size(), 3U);
  for (const PosedBone& bone : rig.bones) {
    const auto shown = std::find_if(bones.begin(), bones.end(), [&](const DrawnBone& b) { return b.title == bone.name; });
    ASSERT_NE(shown, bones.end());
    EXPECT_LT(distance(bone.head, shown->head), 1e-6);
    EXPECT_LT(distance(bone.tail, shown->tail), 1e-6);
  }
}

TEST(Picture, DrawsHeadAndTailWhereTheStatedScalePutsThem) {
  struct Case {
    View view;
    std::size_t right, up;
  };
  RigBuilder builder;
  builder.chain({"A", "B", "C"}, {{0.1F, 0.2F, 0.3F}, {1.1F, 0.2F, 0.3F}, {1.1F, 0.9F, 0.3F}, {1.1F, 0.9F, 1.6F}});
  const PosedRig rig = before(builder.object());
  for (const Case& view : {Case{View::Front, 0, 1}, Case{View::Side, 2, 1}, Case{View::Top, 0, 2}}) {
    const Shown shown(rig, only(view.view));
    const Element frame = shown.with("data-view").at(0);
    for (const PosedBone& bone : rig.bones) {
      const DrawnBone drawn = shown.bone(bone.name);
      const bool isSeenFromItsEnd =
          bone.head[view.right] == bone.tail[view.right] && bone.head[view.up] == bone.tail[view.up];
      if (isSeenFromItsEnd) continue;  // head and tail are behind the square, or before it
      EXPECT_LT(offBy(frame, drawn, bone.head[view.right], bone.head[view.up]), 0.01) << bone.name;
      EXPECT_LT(offBy(frame, drawn, bone.tail[view.right], bone.tail[view.up]), 0.01) << bone.name;
    }
  }
}

TEST(Picture, TheTurnedViewKeepsLengthsAndAngles) {
  const ViewAxes axes = axesOf(View::Turned);
  for (const Vec3& point : {Vec3{1, 0, 0}, Vec3{0, 1, 0}, Vec3{0, 0, 1}, Vec3{1, 2, -3}}) {
    const Seen p = seen(axes, point);
    EXPECT_NEAR(length(Vec3{p.right, p.up, p.away}), length(point), 1e-12);
  }
  EXPECT_GT(seen(axes, {0, 1, 0}).up, 0.8);
  EXPECT_LT(seen(axes, {1, 1, -1}).away, -1);  // who looks stands there
}

TEST(Picture, AllViewsHaveOneScale) {
  const std::vector<Element> frames = Shown(chain(), {}).with("data-scale");
  ASSERT_EQ(frames.size(), 4U);
  for (const Element& frame : frames) EXPECT_EQ(frame.attribute("data-scale"), frames[0].attribute("data-scale"));
}

TEST(Picture, EverythingStaysOnTheSheet) {
  const Shown shown(chain(), {});
  const std::vector<double> box = numbersOf(shown.xml.elements.at(0).attribute("viewBox"));
  for (const Element& element : shown.with("d")) {
    for (const OnPage& point : pointsOf(element.attribute("d"))) {
      EXPECT_TRUE(point.x >= 0 && point.x <= box[2] && point.y >= 0 && point.y <= box[3]) << point.x << " " << point.y;
    }
  }
}

TEST(Picture, ABoneIsWidestATenthFromItsHeadAlongItsOwnAxes) {
  RigBuilder builder;
  builder.root("Bone", {0, 0, 0}, {0, 1, 0});
  const BoneShape shape = shapeOf(before(builder.object()).bones[0]);
  for (std::size_t i = 2; i < 6; ++i) EXPECT_NEAR(shape.corners[i][1], 0.1, 1e-9);
  EXPECT_NEAR(length(shape.corners[2] - shape.corners[4]), length(shape.corners[3] - shape.corners[5]), 1e-9);
  EXPECT_GT(std::abs(shape.corners[2][0]), 0.05);  // its right is the world's
}

TEST(Picture, BonesHaveTheirColours) {
  RigBuilder builder;
  builder.tag(builder.root("Bone", {0, 0, 0}, {0, 1, 0}), lw::kTagColour, "Purple");
  EXPECT_EQ(Shown(before(builder.object()), {}).bone("Bone").fill, kPalette[5]);
}

TEST(Picture, DrawsFarBonesFirst) {
  RigBuilder builder;
  builder.root("Near", {0, 0, -1}, {0, 1, -1});
  builder.root("Far", {0, 0, 1}, {0, 1, 1});
  const std::vector<DrawnBone> bones = Shown(before(builder.object()), only(View::Front)).bones();
  EXPECT_EQ(bones.at(0).title, "Far");
  EXPECT_EQ(bones.at(1).title, "Near");
}

// Who looks along an axis sees first what lies nearer on it, from the front, from +X and from above.
TEST(Picture, EveryViewLooksFromItsOwnSide) {
  const std::vector<std::pair<View, Vec3>> nearer = {
      {View::Front, {0, 0, -1}}, {View::Side, {1, 0, 0}}, {View::Top, {0, 1, 0}}};
  for (const auto& [view, side] : nearer) EXPECT_LT(seen(axesOf(view), side).away, -0.99) << nameOf(view, Language::English);
}

TEST(Picture, ShadesTheFacesThatAreSeen) {
  RigBuilder builder;
  builder.root("Bone", {0, 0, 0}, {1, 0, 0});
  const BoneShape shape = shapeOf(before(builder.object()).bones[0]);
  Frame front;
  front.scale = 100;
  front.axes = axesOf(View::Front);
  const std::vector<OnPage> shade = pointsOf(drawingOf(shape, front, true).shade.text());
  ASSERT_FALSE(shade.empty());
  // The light comes from above. Of the dark faces behind, one is in the upper half.
  for (const OnPage& point : shade) EXPECT_GE(point.y, -0.02);
}

TEST(Picture, NamesWhatIsMarkedFirst) {
  PosedRig rig = before(makeChainRig(3000, 0));
  rig.bones[1717].isMarked = true;
  EXPECT_THAT(Shown(rig, only(View::Front)).textsOf("text"), Contains(rig.bones[1717].name));
}

TEST(Picture, MarksBonesWithAProblemAndSaysWhich) {
  PosedRig rig = chain();
  rig.bones[1].isMarked = true;
  rig.bones[1].remark = "it will be lost";
  const Shown shown(rig, {});
  EXPECT_THAT(shown.textsOf("title"), Contains("Middle: it will be lost"));
  EXPECT_THAT(shown.textsOf("text"), Contains("!"));
  EXPECT_THAT(shown.textsOf("desc").at(0), HasSubstr("1 with a problem"));
  EXPECT_THAT(Shown(chain(), {}).textsOf("text"), Not(Contains("!")));
}

TEST(Picture, ShowsHelperItemsWithTheirKindAndALineToEach) {
  PosedRig rig = chain();
  rig.nulls.push_back({"Reach", {2, 0.5, 0}, 4, {{2, HelperKind::Goal}, {1, HelperKind::Target}}});
  const Shown shown(rig, only(View::Front));
  EXPECT_THAT(shown.textsOf("text"), Contains("Reach (target, goal)"));
  EXPECT_THAT(shown.textsOf("title"), Contains("Reach: goal of End, target of Middle"));
  EXPECT_THAT(numbersOf(shown.with("data-at").at(0).attribute("data-at")), ElementsAre(2, 0.5, 0));
  const std::vector<Element> dashed = shown.with("stroke-dasharray");
  ASSERT_EQ(dashed.size(), 1U);
  EXPECT_EQ(pointsOf(dashed[0].attribute("d")).size(), 4U);
}

TEST(Picture, SpeaksJapanese) {
  PosedRig rig = chain();
  rig.nulls.push_back({"先", {2, 0.5, 0}, 4, {{2, HelperKind::InitialPosition}}});
  PictureOptions options;
  options.language = Language::Japanese;
  const Shown shown(rig, options);
  EXPECT_THAT(shown.textsOf("text"), Contains("正面"));
  EXPECT_THAT(shown.textsOf("text"), Contains("先 (初期位置)"));
  EXPECT_THAT(shown.textsOf("desc").at(0), HasSubstr("スケルゴン 3"));
}

TEST(Picture, NamesAreLeftOutWhenNotWanted) {
  PictureOptions options;
  options.labels = false;
  EXPECT_THAT(Shown(chain(), options).textsOf("text"), Not(Contains("Root")));
  EXPECT_THAT(Shown(chain(), {}).textsOf("text"), Contains("Root"));
}

TEST(Picture, DrawsChosenLayersAlone) {
  RigBuilder builder;
  builder.layer(0, "A").root("First", {0, 0, 0}, {0, 1, 0});
  builder.layer(1, "B").root("Second", {9, 0, 0}, {9, 1, 0});
  PosedRig rig = before(builder.object());
  rig.nulls.push_back({"OfFirst", {0, 0, 0}, 4, {{0, HelperKind::Goal}}});
  PictureOptions options;
  options.layers = {1};
  const Shown shown(rig, options);
  ASSERT_EQ(shown.bones().size(), 1U);
  EXPECT_EQ(shown.bones()[0].title, "Second");
  EXPECT_TRUE(shown.with("data-at").empty());
}

TEST(Picture, OfOneLayerHasNeitherTheMeshNorTheLinesOfOthers) {
  RigBuilder builder;
  builder.layer(0, "A").root("First", {0, 0, 0}, {0, 1, 0});
  builder.box({0, 0, 0}, {100, 100, 100});
  builder.layer(1, "B").root("Second", {9, 0, 0}, {9, 1, 0});
  PosedRig rig = before(builder.object());
  rig.boneLines = {{0, 1, HelperKind::Target}, {1, 0, HelperKind::Goal}};
  rig.nulls.push_back({"OfBoth", {9, 0, 0}, 4, {{0, HelperKind::Goal}, {1, HelperKind::Goal}}});
  PictureOptions options = only(View::Front);
  options.layers = {1};
  const Shown shown(rig, options);
  const std::vector<Element> dashed = shown.with("stroke-dasharray");
  ASSERT_EQ(dashed.size(), 1U);
  EXPECT_EQ(pointsOf(dashed[0].attribute("d")).size(), 2U);
  // The bone of a metre fills the frame, and no box of a hundred.
  EXPECT_GT(numbersOf(shown.with("data-scale").at(0).attribute("data-scale")).at(0), 100);
}

// Else a face behind another one, turned the other way, would cut a hole into it.
TEST(Picture, FacesAreAllDrawnTheSameWayRound) {
  RigBuilder builder;
  const std::vector<std::uint32_t> corners = {builder.point({0, 0, 0}), builder.point({0, 1, 0}), builder.point({1, 0, 0})};
  builder.face(corners);
  builder.face({corners[2], corners[1], corners[0]});
  const Shown shown(before(builder.object()), only(View::Front));
  const std::vector<OnPage> p = pointsOf(shown.with("fill-opacity").at(0).attribute("d"));
  ASSERT_EQ(p.size(), 6U);
  const auto area = [&](std::size_t at) {
    return (p[at + 1].x - p[at].x) * (p[at + 2].y - p[at].y) - (p[at + 1].y - p[at].y) * (p[at + 2].x - p[at].x);
  };
  EXPECT_GT(area(0) * area(3), 0);
}

TEST(Picture, InAPageItHasNoHeadAndThePagesColour) {
  PictureOptions options;
  options.standsAlone = false;
  const std::string svg = pictureSvg(chain(), options);
  EXPECT_TRUE(svg.starts_with("<svg ")) << svg.substr(0, 40);
  const Shown shown(svg);
  EXPECT_EQ(shown.xml.elements[0].attribute("color"), "");
  EXPECT_EQ(shown.xml.elements[0].attribute("fill"), "currentColor");
}

TEST(Picture, InAPageWhatIsMarkedHasThePagesRed) {
  PosedRig rig = chain();
  rig.bones[1].isMarked = true;
  PictureOptions options = only(View::Front);
  EXPECT_THAT(pictureSvg(rig, options), Not(HasSubstr("var(")));
  options.standsAlone = false;
  const std::string svg = pictureSvg(rig, options);
  EXPECT_THAT(svg, HasSubstr("style=\"fill:var(--problem,#d1242f)\">Middle<"));
  EXPECT_THAT(svg, HasSubstr("style=\"stroke:var(--problem,#d1242f)\""));
  options.standsAlone = true;
  EXPECT_THAT(pictureSvg(rig, options), HasSubstr("fill=\"#d1242f\">Middle<"));
}

// ---------------------------------------------------------------------------------------------------------------------
// Rigs that nobody makes on purpose

TEST(HostilePicture, OfNothingIsStillOne) {
  EXPECT_THAT(Shown(PosedRig(), {}).textsOf("desc"), ElementsAre("no skelegons"));
}

TEST(HostilePicture, OfAMeshAloneHasTheMesh) {
  RigBuilder builder;
  builder.box({0, 0, 0}, {1, 2, 3});
  const Shown shown(before(builder.object()), only(View::Front));
  EXPECT_THAT(shown.textsOf("desc"), ElementsAre("no skelegons"));
  EXPECT_FALSE(shown.with("d").empty());
}

TEST(HostilePicture, NamesAreOnlyNames) {
  RigBuilder builder;
  builder.root("</text><script>\"&\x01", {0, 0, 0}, {0, 1, 0});
  const Shown shown(before(builder.object()), {});
  EXPECT_EQ(shown.bone("</text><script>\"&\\x01").head.size(), 3U);
  EXPECT_TRUE(shown.textsOf("script").empty());
}

TEST(HostilePicture, ABoneWithoutAPlaceIsCountedAndNotDrawn) {
  RigBuilder builder;
  builder.root("Here", {0, 0, 0}, {0, 1, 0});
  builder.root("Nowhere", {0, 0, 0}, {std::nanf(""), kInfinite, 0});
  const Shown shown(before(builder.object()), {});
  ASSERT_EQ(shown.bones().size(), 1U);
  EXPECT_THAT(shown.textsOf("desc").at(0), HasSubstr("2 skelegons, 1 without a finite position"));
}

TEST(HostilePicture, FacesWithoutAPlaceAreNotDrawn) {
  RigBuilder builder;
  builder.root("Bone", {0, 0, 0}, {0, 1, 0});
  builder.face({builder.point({0, 0, 0}), builder.point({kInfinite, 0, 0}), builder.point({0, 1, 0})});
  const std::string svg = pictureSvg(before(builder.object()), {});
  EXPECT_THAT(svg, Not(HasSubstr("inf")));
  EXPECT_THAT(svg, Not(HasSubstr("nan")));
  EXPECT_EQ(Shown(svg).bones().size(), 1U);
}

TEST(HostilePicture, ABoneWithoutLengthIsADot) {
  RigBuilder builder;
  builder.root("Dot", {1, 1, 1}, {1, 1, 1});
  EXPECT_EQ(Shown(before(builder.object()), {}).bone("Dot").outline.size(), 4U);
}

TEST(HostilePicture, EveryExtentFits) {
  for (const float size : {1e-30F, 1e-3F, 1e30F, 3e38F}) {
    RigBuilder builder;
    builder.chain({"A", "B"}, {{0, 0, 0}, {0, size, 0}, {size, size, size}});
    const Shown shown(before(builder.object()), only(View::Front));
    const DrawnBone bone = shown.bone("A");
    EXPECT_LT(offBy(shown.with("data-view").at(0), bone, 0, 0), 0.01) << size;
    EXPECT_LT(offBy(shown.with("data-view").at(0), bone, 0, static_cast<double>(size)), 0.01) << size;
  }
}

TEST(HostilePicture, ManySkelegonsGiveAFileThatOpens) {
  const std::string svg = pictureSvg(before(makeChainRig(5000, 0)), {});
  EXPECT_LT(svg.size(), 3'000'000U);
  const Shown shown(svg);
  EXPECT_EQ(shown.bones().size(), 5000U);
  EXPECT_THAT(shown.textsOf("text"), Contains(HasSubstr("names left out")));
}

TEST(HostilePicture, TooManySkelegonsForShapesAreLines) {
  const std::string svg = pictureSvg(before(makeChainRig(60000, 0)), {});
  EXPECT_LT(svg.size(), 8'000'000U);
  const Shown shown(svg);
  EXPECT_THAT(shown.textsOf("desc").at(0), HasSubstr("60000 skelegons, so many bones are drawn as lines"));
}

}  // namespace
}  // namespace standin::views
