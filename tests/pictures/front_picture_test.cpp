// Pictures of the windows: the same panel looks the same, and no text is cut.
#include <filesystem>
#include <fstream>

#include "standin/panels/metrics.h"
#include "standin/windows/painting.h"
#include "standin/windows/theme.h"
#include "tests/pictures/front_fixture.h"

namespace standin {
namespace {

class FrontPicture : public FrontTest {
 protected:
  static std::uint32_t pixelOf(Tone tone) { return 0xFF000000U | colour(tone); }
  static int countOf(const Picture& picture, Tone tone) {
    return static_cast<int>(std::count(picture.pixels.begin(), picture.pixels.end(), pixelOf(tone)));
  }
};

TEST_F(FrontPicture, OfTheSamePanelTwiceIsEqual) {
  panelId = make();
  for (const KindRow& kind : kControlKinds) {
    if (kind.kind != ControlKind::OpenGL) add(panelId, kind.kind, "Label");
  }
  open();
  const Picture first = driver->picture(panel());
  EXPECT_FALSE(first.isEmpty());
  EXPECT_EQ(first, driver->picture(panel()));
}

TEST_F(FrontPicture, HasTheDarkGroundWhereNothingStands) {
  open(ControlKind::Button, "Run");
  const Picture picture = driver->picture(panel());
  EXPECT_EQ(pixelOf(Tone::Panel), picture.at(picture.width - 1, picture.height - 1));
}

class FrontKinds : public FrontPicture, public testing::WithParamInterface<ControlKind> {};

TEST_P(FrontKinds, CanBeSeen) {
  const Control& control = open(GetParam());
  const Picture picture = driver->picture(control);
  EXPECT_NE(static_cast<std::size_t>(countOf(picture, Tone::Panel)), picture.pixels.size());
}

std::vector<ControlKind> drawnKinds() {
  std::vector<ControlKind> kinds;
  for (const KindRow& row : kControlKinds) {
    if (row.kind != ControlKind::OpenGL) kinds.push_back(row.kind);
  }
  return kinds;
}
INSTANTIATE_TEST_SUITE_P(All, FrontKinds, testing::ValuesIn(drawnKinds()),
                         [](const testing::TestParamInfo<ControlKind>& kind) {
                           return std::string(rowOf(kind.param).name);
                         });

class FrontTexts : public FrontPicture, public testing::WithParamInterface<const char*> {};

TEST_P(FrontTexts, AreAsWideAsThePanelsMetricsSay) {
  HDC const dc = CreateCompatibleDC(nullptr);
  EXPECT_EQ(textWidth(GetParam()), drawnWidth(dc, GetParam()));
  DeleteDC(dc);
}

INSTANTIATE_TEST_SUITE_P(Some, FrontTexts,
                         testing::Values("iiiWWW", "Tail_01", "90\xC2\xB0", "影響範囲限定", "X位置制御(親)",
                                         "\x03(icon) Shp", "broken \xFF byte", ""));

TEST_F(FrontPicture, LabelLeavesItsAreasEdgesFree) {
  panelId = make();
  const Control& field = *record(add(panelId, ControlKind::Edit, "Wwg_|影"));
  open();
  const Rectangle area = field.labelArea();
  const Picture picture = driver->picture(panel());
  const Picture beside = picture.part({area.right() + 1, area.y, kLabelGap - 1, area.height});
  EXPECT_EQ(static_cast<std::size_t>(countOf(beside, Tone::Panel)), beside.pixels.size());
  const Picture above = picture.part({area.x, area.y - 1, area.width, 1});
  EXPECT_EQ(static_cast<std::size_t>(countOf(above, Tone::Panel)), above.pixels.size());
}

// How many pixels of a tone each column of the picture has.
std::vector<int> columnsOf(const Picture& picture, std::uint32_t pixel) {
  std::vector<int> columns;
  for (int x = 0; x < picture.width; ++x) {
    int count = 0;
    for (int y = 0; y < picture.height; ++y) count += picture.at(x, y) == pixel ? 1 : 0;
    columns.push_back(count);
  }
  return columns;
}

TEST_F(FrontPicture, ArrowOfAFillButtonPointsToTheLeft) {
  const Picture picture = driver->picture(open(ControlKind::Button, "\x03(i:MIMG_LEFTARROW)"));
  EXPECT_EQ(0, countOf(picture, Tone::Mark));
  std::vector<int> columns = columnsOf(picture, pixelOf(Tone::Text));
  columns.erase(columns.begin(), std::find_if(columns.begin(), columns.end(), [](int count) { return count > 0; }));
  while (!columns.empty() && columns.back() == 0) columns.pop_back();
  // From its point on the head grows to the highest column, behind which the shaft has one height.
  EXPECT_THAT(columns, testing::ElementsAre(1, 3, 5, 7, 9, 11, 5, 5, 5, 5, 5, 5));
}

TEST_F(FrontPicture, ImageWithoutADrawingIsABox) {
  const Picture picture = driver->picture(open(ControlKind::Button, "\x03(i:BLOCK8, 32514080)Red"));
  EXPECT_LT(0, countOf(picture, Tone::Mark));
}

TEST_F(FrontPicture, UnderlineOfAFieldsTextIsNotCut) {
  const Control& field = open(ControlKind::Edit);
  const Picture empty = driver->picture(field);
  setText(field.face, "____");
  EXPECT_NE(empty, driver->picture(field));
}

TEST_F(FrontPicture, IsWrittenAsPng) {
  open(ControlKind::Button, "Run");
  const std::string path = (std::filesystem::temp_directory_path() / "varnel-front-picture.png").string();
  ASSERT_TRUE(savePng(driver->picture(panel()), path));
  std::ifstream file(path, std::ios::binary);
  std::string head(8, '\0');
  file.read(head.data(), 8);
  EXPECT_EQ("\x89PNG\r\n\x1a\n", head);
  file.close();
  std::filesystem::remove(path);
}

TEST_F(FrontPicture, OfNothingIsNotWritten) { EXPECT_FALSE(savePng(Picture(), "never-written.png")); }

}  // namespace
}  // namespace standin
