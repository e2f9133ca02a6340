// Names in pictures do not lie over each other.
#include <random>

#include "tests/standin/views_fixture.h"
#include "views/label_places.h"

namespace standin::views {
namespace {

using testing::HasSubstr;

constexpr double kSize = 10;

struct Put {
  double left, baseline, width;
};

bool overlap(const Put& a, const Put& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && std::abs(a.baseline - b.baseline) < kSize;
}

TEST(Labels, DoNotOverlapAndStayWithin) {
  std::mt19937 random(1);
  LabelPlaces places(0, 0, 600, 400);
  std::vector<Put> put;
  for (int i = 0; i < 500; ++i) {
    const OnPage thing{static_cast<double>(random() % 600), static_cast<double>(random() % 400)};
    const double width = 20 + static_cast<double>(random() % 60);
    if (const auto place = places.place(thing, width, kSize)) put.push_back({place->left, place->baseline, width});
  }
  EXPECT_GT(put.size(), 100U);
  for (std::size_t i = 0; i < put.size(); ++i) {
    EXPECT_TRUE(put[i].left >= 0 && put[i].left + put[i].width <= 600 && put[i].baseline >= kSize * 0.8);
    for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(overlap(put[i], put[j])) << i << " " << j;
  }
}

TEST(Labels, StandBesideWhatTheyName) {
  LabelPlaces places(0, 0, 200, 200);
  const auto place = places.place({100, 100}, 40, kSize);
  ASSERT_TRUE(place);
  EXPECT_FALSE(place->leaderStart);
  EXPECT_LT(std::abs(place->left + 20 - 100), 40);
  EXPECT_LT(std::abs(place->baseline - 100), 25);
}

TEST(Labels, ALineLeadsToANameThatIsFarther) {
  LabelPlaces places(0, 0, 300, 300);
  bool isLed = false;
  for (int i = 0; i < 6; ++i) {
    const auto place = places.place({150, 150}, 40, kSize);
    ASSERT_TRUE(place) << i;
    isLed = isLed || place->leaderStart;
  }
  EXPECT_TRUE(isLed);
}

TEST(Labels, RatherDoNotCoverWhatIsDrawn) {
  LabelPlaces places(0, 0, 200, 200);
  for (double y = 0; y < 100; y += 3) places.draw({0, y}, {200, y});
  const auto place = places.place({100, 104}, 40, kSize);
  ASSERT_TRUE(place);
  EXPECT_GT(place->baseline, 104);
}

TEST(Labels, WithoutRoomThereIsNone) {
  LabelPlaces places(0, 0, 30, 200);
  EXPECT_FALSE(places.place({15, 100}, 40, kSize));
  LabelPlaces full(0, 0, 300, 300);
  full.keepFree(0, 0, 300, 300);
  EXPECT_FALSE(full.place({150, 150}, 40, kSize));
}

TEST(Labels, LongNamesKeepTheirBeginningAndTheirCounter) {
  EXPECT_EQ(shortened("Front_Leg_L_01"), "Front_Leg_L_01");
  const std::string name = shortened("A_name_that_is_very_long_indeed_L_0127");
  EXPECT_TRUE(name.starts_with("A_name_that_is_v") && name.ends_with("…_L_0127")) << name;
  const std::string japanese = shortened("とても長い名前のスケルゴン左_0127");
  EXPECT_TRUE(texts::isUtf8(japanese));
  EXPECT_THAT(japanese, HasSubstr("…"));
}

}  // namespace
}  // namespace standin::views
