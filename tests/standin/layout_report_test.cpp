#include <sstream>

#include "standin/layout/number_text.h"
#include "standin/layout/skelegon_bones.h"
#include "tests/standin/layout_fixture.h"

namespace standin {
namespace {

TEST(NumberText, HasNoNeedlessZerosAndNoMinusZero) {
  EXPECT_EQ(numberText(50), "50");
  EXPECT_EQ(numberText(0.25), "0.25");
  EXPECT_EQ(numberText(-0.00001), "0");
  EXPECT_EQ(fixedText(0.5, 2), "0.50");
}

TEST(Transcript, ShowsEachEventInOrder) {
  LayoutSession session;
  session.send("AddNull A");
  session.send("StatusMsg {0.50}half");
  session.send("Nonsense");
  session.send("ItemColor");
  EXPECT_EQ(session.host.transcript().text(),
            "  AddNull A\n"
            "| 50 % half\n"
            "! Nonsense  -- rejected: unknown command\n"
            "? ItemColor  -- would ask the user: argument 1 is missing\n");
}

TEST(Transcript, NamesAnItemBesideItsNumberAsItWasCalledThen) {
  LayoutSession session;
  session.send("AddNull A");
  session.send("SelectItem 0x10000000");
  session.send("AddNull A");
  session.send("SelectItem 0x10000000");
  EXPECT_EQ(session.host.transcript().text(),
            "  AddNull A\n"
            "  SelectItem 0x10000000  -- A\n"
            "  AddNull A\n"
            "  SelectItem 0x10000000  -- A (1)\n");
}

TEST(Transcript, ListsEveryCommandAsItWasSent) {
  LayoutSession session;
  session.send("StatusMsg text");
  session.send("Nonsense");
  EXPECT_EQ(session.host.transcript().commands(), (std::vector<std::string>{"StatusMsg text", "Nonsense"}));
}

TEST(Transcript, OnlyCountsWhileNotRecording) {
  LayoutSession session;
  session.host.state().transcript.record(false);
  session.send("RefreshNow");
  EXPECT_EQ(session.host.transcript().commandCount(), 1U);
  EXPECT_TRUE(session.host.transcript().events().empty());
}

TEST(FreshBone, DiffersInNothing) {
  LayoutSession session;
  EXPECT_TRUE(changedSettings(session.scene(), session.selectedBone()).empty());
}

TEST(SceneReport, ShowsBonesAsATreeWithWhatDiffers) {
  LayoutSession session;
  const std::vector<FilePoint> points{{0, 0, 0}, {0, 0, 2}, {0, 0, 3}, {1, 0, 0}, {2, 0, 0}};
  const auto layer = skelegonLayer(points, {named(0, 1, "Root"), named(3, 4, "Apart"), named(1, 2, "Tip")});
  Item& object = *session.scene().addObject(oneLayer(layer), "rig.lwo").front();
  const auto bones = makeBonesOfSkelegons(session.scene(), object);
  session.host.select({bones[2]});
  session.send("BoneStrength 0.5");
  session.send("AddNull Goal");
  session.send("ParentItem 0x40000000");
  session.send("ItemVisibility 7");
  EXPECT_EQ(sceneReport(session.scene()),
            "Objects\n"
            "  rig  (bones 3, at 0 0 0)\n"
            "    Root  (length 2)\n"
            "      Tip  (length 1)  [1 setting]\n"
            "    Apart  (length 1)\n"
            "Nulls\n"
            "  Goal  at 0 0 0, turned 0 0 0, below Root  [1 setting]\n"
            "Settings that differ from a fresh item\n"
            "  strength: on 1 item\n"
            "  visibility: on 1 item\n"
            "Counts: 1 object, 3 bones, 1 null, 0 lights, 0 cameras; 2 settings differ from a fresh item\n");
  EXPECT_EQ(sceneReport(session.scene(), SceneReportForm::Full),
            "Objects\n"
            "  rig  (bones 3, at 0 0 0)\n"
            "    Root  (length 2)\n"
            "      Tip  (length 1)\n"
            "          - strength: 50 %\n"
            "    Apart  (length 1)\n"
            "Nulls\n"
            "  Goal  at 0 0 0, turned 0 0 0, below Root\n"
            "      - visibility: textured with wire\n"
            "Counts: 1 object, 3 bones, 1 null, 0 lights, 0 cameras; 2 settings differ from a fresh item\n");
}

TEST(SceneReport, NamesFirstWhatDiffersOnMostItems) {
  LayoutSession session;
  for (const char* const name : {"AddNull A", "AddNull B"}) {
    session.send(name);
    session.send("ItemVisibility 7");
  }
  session.send("ItemColor 3");
  EXPECT_NE(sceneReport(session.scene()).find("  visibility: on 2 items\n  colour: on 1 item\n"), std::string::npos);
}

TEST(SceneReport, FoldsLongLines) {
  LayoutSession session;
  std::string name = "AddNull";
  for (int i = 0; i < 40; ++i) name += " word";
  session.send(name);
  std::istringstream lines(sceneReport(session.scene()));
  for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), kReportColumns) << line;
}

TEST(SceneReport, ShowsABoneBelowAnotherItemAsATreeOfItsOwn) {
  LayoutSession session;
  Item& bone = session.selectedBone();
  session.scene().setParent(bone, &session.scene().addNull("Holder"));
  EXPECT_NE(sceneReport(session.scene()).find("    Bone  (length 0)  below Holder\n"), std::string::npos);
}

}  // namespace
}  // namespace standin
