// Numbers and texts of SVG.
#include <cmath>
#include <limits>

#include "tests/standin/views_fixture.h"
#include "views/svg.h"

namespace standin::views {
namespace {

TEST(Svg, EscapesWhatXmlReadsOtherwise) {
  EXPECT_EQ(xmlText("a<b>&\"'"), "a&lt;b&gt;&amp;&quot;&#39;");
  EXPECT_EQ(xmlText("腰"), "腰");
}

TEST(Svg, ShowsWhatIsNoCharacterOfXml) {
  EXPECT_EQ(xmlText(std::string("a\0b\x1B", 4)), "a\\x00b\\x1b");
  EXPECT_EQ(xmlText("\xFF"), "\\xff");
  EXPECT_EQ(xmlText("\xEF\xBF\xBE|\xEF\xBF\xBF"), "\xEF\xBF\xBD|\xEF\xBF\xBD");
}

TEST(Svg, WritesFiniteNumbersWithoutExponent) {
  EXPECT_EQ(coordinate(0.5), ".5");
  EXPECT_EQ(coordinate(-12.306), "-12.31");
  EXPECT_EQ(coordinate(-0.001), "0");
  EXPECT_EQ(coordinate(std::nan("")), "0");
  EXPECT_EQ(coordinate(std::numeric_limits<double>::infinity()), "0");
  EXPECT_EQ(coordinate(1e300), "1000000000");
}

TEST(Svg, WritesNumbersFromWhichTheSameFloatIsRead) {
  for (const float value : {0.1F, 1.0F / 3, 123456.789F, 1e-30F, 3.4e38F}) {
    EXPECT_EQ(std::strtof(exactNumber(static_cast<double>(value)).c_str(), nullptr), value);
  }
  EXPECT_EQ(exactNumber(std::nan("")), "0");
}

TEST(Svg, PathsKeepTheirPlaceHoweverLongTheyAre) {
  PathData path;
  path.move(0.333, 0.333);
  for (int i = 1; i <= 999; ++i) path.line(i * 0.333, -i * 0.333);
  const std::vector<OnPage> points = pointsOf(path.text());
  ASSERT_EQ(points.size(), 1000U);
  EXPECT_NEAR(points.back().x, 999 * 0.333, 0.0051);
  EXPECT_NEAR(points.back().y, -999 * 0.333, 0.0051);
}

TEST(Svg, APathGoesOnFromWhereItWasClosed) {
  PathData path;
  path.move(1, 1);
  path.line(5, 1);
  path.close();
  path.move(2, 2);
  EXPECT_EQ(path.text(), "M1 1l4 0zm1 1");
}

TEST(Svg, ElementsEndInTheOrderInWhichTheyBegan) {
  SvgWriter svg;
  svg.begin("svg", {{"title", "<"}});
  svg.begin("g");
  svg.put("text", {}, "a & b");
  EXPECT_EQ(svg.take(), "<svg title=\"&lt;\"><g><text>a &amp; b</text></g></svg>");
}

}  // namespace
}  // namespace standin::views
