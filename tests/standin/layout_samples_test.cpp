// Real object files, loaded as Layout loads them. The samples stand beside the project, not in it.
#include "tests/standin/layout_fixture.h"
#include "tests/standin/samples.h"

namespace standin {
namespace {

// The objects' skelegons become bones, as a person would do it.
std::size_t convert(LayoutSession& session, const std::vector<Item*>& objects) {
  std::size_t bones = 0;
  session.send("AutoConfirm 1");
  for (Item* object : objects) {
    session.host.select({object});
    session.send("SkelegonsToBones");
    bones += object->bones.size();
  }
  return bones;
}

struct SampleRow {
  const char8_t* file;
  std::vector<std::string> items;
  std::size_t bones;
};

class SampleRig : public ::testing::TestWithParam<SampleRow> {};

INSTANTIATE_TEST_SUITE_P(Files, SampleRig,
                         ::testing::Values(SampleRow{u8"biped.lwo", {"biped:Body", "biped:Rig"}, 52},
                                           SampleRow{u8"biped-lwo3.lwo", {"biped-lwo3:Body", "biped-lwo3:Rig"}, 52},
                                           SampleRow{u8"arm.lwo", {"arm"}, 3},
                                           SampleRow{u8"one-layer-number-2.lwo", {"one-layer-number-2:Tail"}, 2},
                                           SampleRow{u8"no-skelegons.lwo", {"no-skelegons"}, 0},
                                           SampleRow{u8"日本語.lwo", {"日本語"}, 3},
                                           SampleRow{u8"odd-names.lwo", {"odd-names"}, 4}),
                         [](const auto& info) { return "File" + std::to_string(info.index); });

TEST_P(SampleRig, IsLoadedAndGetsItsBones) {
  const std::filesystem::path path = samplesFolder() / "rigs" / GetParam().file;
  if (!std::filesystem::exists(path)) GTEST_SKIP() << "there is no sample " << utf8Of(path);
  LayoutSession session;
  std::string why;
  const std::vector<Item*> objects = session.host.loadObject(utf8Of(path), &why);
  EXPECT_EQ(why, "");
  std::vector<std::string> names;
  names.reserve(objects.size());
  for (const Item* object : objects) names.push_back(session.scene().nameOf(*object));
  EXPECT_EQ(names, GetParam().items);
  EXPECT_EQ(convert(session, objects), GetParam().bones);
}

TEST(ObjectThatCannotBeRead, IsSaidSo) {
  LayoutSession session;
  std::string why;
  EXPECT_TRUE(session.host.loadObject("no/such/object.lwo", &why).empty());
  EXPECT_NE(why, "");
}

}  // namespace
}  // namespace standin
