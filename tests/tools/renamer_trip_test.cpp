// A rig's whole way: renamed from left to right with its links, saved, converted, and every link still finds its item.
#include "standin/layout/layout_host.h"
#include "tests/tools/conversion_fixture.h"
#include "tests/tools/convert_saved.h"
#include "tests/tools/renamer_fixture.h"

namespace varnel::test {
namespace {

// A leg with a goal at the foot, a target, a pole and an initial position item, whose helper items hang below other bones;
// its upper part hangs below the hips. Everything bears names of the left side but the hips.
standin::ObjectFile leftLeg() {
  standin::RigBuilder rig;
  rig.layer(0, "Rig");
  rig.weightMap("Leg_L_01", {{rig.point({9, 9, 9}), 1.0F}});
  rig.weightMap("Leg_R_01", {{rig.point({9, 9, 8}), 1.0F}});
  rig.root("Hips", {0, 5, 0}, {0, 6, 0});
  const auto leg = rig.chain({"Leg_L_01", "Leg_L_02", "Leg_L_03"}, {{1, 5, 0}, {1, 3, 0.2F}, {1, 1, 0}, {1, 0, 0.5F}});
  rig.settings(leg[0], {{51, "Hips"}, {53, "Leg_L_pole"}, {131, "Hips"}, {142, "Leg_L_initpos"}});
  rig.tag(leg[0], lw::kTagBoneWeight, "Leg_L_01");
  rig.settings(leg[1], {{52, "Leg_L_tar"}, {130, "Leg_L_01"}});
  rig.settings(leg[2], {{55, "Leg_L_goal"}, {132, "Leg_L_02"}});
  return rig.take();
}

class RenamerTrip : public testing::Test {
 protected:
  // In Modeler: renames and saves.
  void renameAndSave() {
    RenamerSession session(leftLeg());
    session.host.select({"Leg_L_01", "Leg_L_02", "Leg_L_03"});
    session.openIn(RenameMode::Replace);
    session.switchOn(Item::BoneProperty);
    session.run();
    EXPECT_TRUE(session.host.messages().empty());
    EXPECT_FALSE(session.host.saveAs(path).has_value());
  }

  standin::TemporaryFolder folder;
  const std::string path = folder.file("rig.lwo");
};

std::string nameOf(const standin::LayoutHost& host, const standin::Item* item) {
  return item == nullptr ? "(none)" : host.scene().nameOf(*item);
}

TEST_F(RenamerTrip, EveryLinkedNameStillFindsItsItem) {
  renameAndSave();
  standin::LayoutHost host;
  convertSaved(host, path);
  const standin::Scene& scene = host.scene();
  const standin::Item* const upper = scene.find("Leg_R_01");
  const standin::Item* const lower = scene.find("Leg_R_02");
  const standin::Item* const foot = scene.find("Leg_R_03");
  ASSERT_TRUE(upper != nullptr && lower != nullptr && foot != nullptr);

  EXPECT_EQ(scene.find("Leg_L_01"), nullptr);
  EXPECT_EQ(nameOf(host, upper->parent), "Hips");
  EXPECT_EQ(nameOf(host, upper->settings.pole), "Leg_R_pole");
  EXPECT_EQ(nameOf(host, lower->settings.target), "Leg_R_tar");
  EXPECT_EQ(nameOf(host, foot->settings.ik.goal), "Leg_R_goal");
  EXPECT_EQ(upper->bone.weightMap, "Leg_R_01");

  // The helper items hang below the renamed bones.
  EXPECT_EQ(nameOf(host, lower->settings.target->parent), "Leg_R_01");
  EXPECT_EQ(nameOf(host, foot->settings.ik.goal->parent), "Leg_R_02");
  EXPECT_NE(scene.find("Leg_R_initpos"), nullptr);
}

}  // namespace
}  // namespace varnel::test
