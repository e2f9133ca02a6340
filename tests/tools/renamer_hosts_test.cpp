// The renamer on hosts that differ in what the interface's documents leave open, and in a host whose language changes.
#include <tuple>

#include "tests/tools/renamer_fixture.h"

namespace varnel::test {
namespace {

using standin::OpenHook;

standin::PanelOptions& hostOptions() { return standin::panels().options; }

// ---------------------------------------------------------------------------------------------------------------------
// Another language

constexpr const char* kNeedSelectionInJapanese = "スケルゴンを選択してください！";

class RenamerLanguage : public Renamer {
 protected:
  // Everything that the user can leave in the panel.
  void fillIn() {
    for (const mst::RenamerRow& row : mst::renamerTable()) {
      if (row.item == Item::Mode || row.kind == mst::HostControl::NumberInfo) continue;
      if (row.kind == mst::HostControl::Popup) choose(row.item, 2);
      if (row.kind == mst::HostControl::Bool) {
        EXPECT_TRUE(person::toggle(at(row.item)));
      } else if (row.kind == mst::HostControl::Number) {
        EXPECT_TRUE(person::enter(at(row.item), 4));
      }
      if (row.kind == mst::HostControl::Edit && isVisible(row.item)) type(row.item, "typed 骨");
    }
  }
  using Values = std::vector<std::string>;
  Values values() const {
    Values all;
    for (const auto& control : panel->controls) {
      all.push_back(std::to_string(control->integer) + " " + control->text);
    }
    return all;
  }
  void closeAndOpenIn(std::uint32_t locale) {
    ASSERT_TRUE(person::close(panel));
    host.options().localeInfo = locale;
    openTool();
  }
};

TEST_F(RenamerLanguage, IsTheHostsWhenThePanelIsOpenedAgain) {
  openTool();
  closeAndOpenIn(kJapanese);
  EXPECT_EQ(at(Item::Mode)->label.read(), "モード");
  EXPECT_EQ(standin::panels().all().size(), 1U);
  closeAndOpenIn(kEnglish);
  EXPECT_EQ(at(Item::Mode)->label.read(), "Mode");
}

TEST_F(RenamerLanguage, LeavesEveryValueAsItWas) {
  openIn(RenameMode::Advanced);
  registerThese({"Arm_L_01", "Root"});
  fillIn();
  const Values before = values();
  closeAndOpenIn(kJapanese);
  EXPECT_EQ(values(), before);
  EXPECT_EQ(at(Item::RegisteredCount)->integer, 2);
  EXPECT_EQ(panel->height, 630);
  EXPECT_TRUE(isVisible(Item::BaseName));
  EXPECT_FALSE(isVisible(Item::FirstText));
}

TEST_F(RenamerLanguage, LeavesTheTextsOfASimpleModeAsTheyWere) {
  openTool();
  type(Item::FirstText, "Bone");
  chooseMode(RenameMode::Replace);
  type(Item::FirstText, "from");
  type(Item::SecondText, "to");
  closeAndOpenIn(kJapanese);
  EXPECT_EQ(at(Item::Mode)->shown(), "置き換え");
  EXPECT_EQ(at(Item::FirstText)->text, "from");
  EXPECT_EQ(at(Item::SecondText)->text, "to");
  chooseMode(RenameMode::Suffix);
  EXPECT_EQ(at(Item::FirstText)->text, "Bone");
}

TEST_F(RenamerLanguage, LeavesTheRegisteredSkelegonsAsTheyWere) {
  openIn(RenameMode::Advanced);
  registerThese({"Root"});
  chooseTarget(RenameTarget::Registration);
  switchOn(Item::PrefixOn);
  type(Item::Prefix, "My");
  closeAndOpenIn(kJapanese);
  run();
  EXPECT_NE(object->skelegon("MyRoot"), nullptr);
}

TEST_F(RenamerLanguage, IsOneInTheWholePanelAlsoInWhatItComplains) {
  openTool();
  host.options().localeInfo = kJapanese;
  openTool();  // still open, and so still in English
  EXPECT_EQ(at(Item::Mode)->label.read(), "Mode");
  run();
  EXPECT_EQ(onlyMessage(), kNeedSelection);
  ASSERT_TRUE(person::close(panel));
  openTool();
  host.forgetRecords();
  run();
  EXPECT_EQ(onlyMessage(), kNeedSelectionInJapanese);
}

// Another tool's run loads the texts of the present language too.
TEST_F(RenamerLanguage, IsThatOfThePanelWhateverToolIsRun) {
  openTool();
  host.options().localeInfo = kJapanese;
  EXPECT_EQ(host.activate(module, kPropertyTool), 0);
  run();
  EXPECT_EQ(onlyMessage(), kNeedSelection);
}

TEST_F(RenamerLanguage, OfAPanelThatCouldNotBeMadeLosesNothing) {
  openIn(RenameMode::Advanced);
  fillIn();
  const Values before = values();
  ASSERT_TRUE(person::close(panel));
  host.options().localeInfo = kJapanese;
  runRefused(kRenamerTool, "panel addControl");
  EXPECT_EQ(standin::panels().all().size(), 1U);
  openTool();
  EXPECT_EQ(at(Item::Mode)->label.read(), "モード");
  EXPECT_EQ(values(), before);
}

// The host does not let a panel go while one of its events is under way.
TEST_F(RenamerLanguage, WaitsForThePanelsOwnEvent) {
  openTool();
  host.showMessagesTo([&](const standin::Message&) {
    EXPECT_TRUE(person::close(panel));
    host.options().localeInfo = kJapanese;
    EXPECT_EQ(host.activate(module, kRenamerTool), 0);
    return standin::Answer::Yes;
  });
  run();
  EXPECT_TRUE(panel->isOpen());
  EXPECT_EQ(at(Item::Mode)->label.read(), "Mode");
}

// ---------------------------------------------------------------------------------------------------------------------
// What open answers, and when the hooks come

class RenamerOpening : public testing::TestWithParam<std::tuple<int, OpenHook>>, protected RenamerSession {
 protected:
  RenamerOpening() {
    hostOptions().openAnswer = std::get<0>(GetParam());
    hostOptions().openHook = std::get<1>(GetParam());
  }
};
INSTANTIATE_TEST_SUITE_P(Renamer, RenamerOpening,
                         testing::Combine(testing::Values(0, 1, -1, 77),
                                          testing::Values(OpenHook::Shown, OpenHook::Before, OpenHook::Later)));

TEST_P(RenamerOpening, RenamesWhateverOpenAnswers) {
  host.select({"Root"});
  runSimple(RenameMode::Prefix, "My");
  EXPECT_NE(object->skelegon("MyRoot"), nullptr);
}

TEST_P(RenamerOpening, KeepsItsPanelAndItsValues) {
  openIn(RenameMode::Prefix);
  const Panel* const first = panel;
  type(Item::FirstText, "My");
  openTool();
  EXPECT_EQ(panel, first);
  ASSERT_TRUE(person::close(panel));
  openTool();
  EXPECT_EQ(panel, first);
  EXPECT_EQ(at(Item::FirstText)->text, "My");
}

TEST_P(RenamerOpening, DestroysNoOpenPanelWhenTheLanguageChanges) {
  openTool();
  host.options().localeInfo = kJapanese;
  openTool();
  ASSERT_TRUE(person::close(panel));
  openTool();
  EXPECT_EQ(at(Item::Mode)->label.read(), "モード");
}

// ---------------------------------------------------------------------------------------------------------------------
// How the host paints

class RenamerPainting : public testing::TestWithParam<bool>, protected RenamerSession {
 protected:
  RenamerPainting() {
    hostOptions().movesRepaint = GetParam();
    hostOptions().setsRepaint = GetParam();
  }
};
INSTANTIATE_TEST_SUITE_P(Renamer, RenamerPainting, testing::Bool());

TEST_P(RenamerPainting, ShowsEveryControlOfEachMode) {
  openTool();
  for (int i = 0; i < 2; ++i) {
    for (const RenameMode mode : kEveryMode) {
      chooseMode(mode);
      for (const auto& control : panel->controls) {
        EXPECT_EQ(standin::isVisible(*control), panel->area().meets(control->whole())) << control->describe();
        EXPECT_FALSE(control->stale.has_value()) << control->describe();
      }
    }
  }
}

TEST_P(RenamerPainting, ShowsTheNumberOfTheRegistered) {
  openIn(RenameMode::Advanced);
  registerThese({"Root", "Tail"});
  EXPECT_EQ(at(Item::RegisteredCount)->shown(), "2");
  press(Item::Clear);
  EXPECT_EQ(at(Item::RegisteredCount)->shown(), "0");
}

TEST_F(Renamer, CutsTextsAtTheEndOfACharacter) {
  std::string typed = "ab";
  for (int i = 0; i < 2'000; ++i) typed += "骨";
  host.select({"Root"});
  runSimple(RenameMode::Change, typed);
  EXPECT_NE(object->skelegon(typed.substr(0, 4094)), nullptr);
}

}  // namespace
}  // namespace varnel::test
