// The renamer on hosts that behave as no host should: events out of turn, without or with wrong handles.
#include "standin/modeler/activation_record.h"
#include "tests/tools/renamer_fixture.h"

namespace varnel::test {
namespace {

class RenamerOddHost : public Renamer {
 protected:
  // A run that would rename the left arm.
  void openReady() {
    host.select(kLeftArm);
    openIn(RenameMode::Prefix);
    type(Item::FirstText, "My");
  }
};

TEST_F(RenamerOddHost, WithoutTheUserPointersNothingIsRenamed) {
  openReady();
  const Names before = names();
  panel->user = nullptr;
  for (const Item item : {Item::Mode, Item::Add, Item::Clear, Item::Run}) {
    at(item)->user = nullptr;
    EXPECT_TRUE(standin::oddhost::fire(at(item)));
  }
  EXPECT_TRUE(person::close(panel));
  EXPECT_EQ(names(), before);
}

TEST_F(RenamerOddHost, AnEventOfAnotherControlIsNone) {
  openReady();
  const Names before = names();
  Control* const run = at(Item::Run);
  standin::callModule("control event callback", [&] { run->event(at(Item::FirstText)->face, run->user); });
  EXPECT_EQ(names(), before);
}

TEST_F(RenamerOddHost, AClosedPanelIsDeaf) {
  openReady();
  const Names before = names();
  ASSERT_TRUE(person::close(panel));
  EXPECT_TRUE(standin::oddhost::fire(at(Item::Run)));
  EXPECT_EQ(names(), before);
}

TEST_F(RenamerOddHost, APanelThatCouldNotBeMadeIsNoneWhenTheModuleGoes) { unloadAfterRefusedPanel(kRenamerTool); }

TEST_F(RenamerOddHost, ARefusedPanelIsTriedAgain) {
  runRefused(kRenamerTool, "panel open");
  openReady();
  run();
  EXPECT_EQ(names(1), Names{"MyArm_L_01"});
  EXPECT_EQ(standin::panels().all().size(), 1U);
}

TEST_F(RenamerOddHost, AMissingArgumentIsAnEmptyOne) {
  const standin::ActivationRecord record("");
  record.get()->argument = nullptr;
  EXPECT_EQ(module.activate(kRenamerTool, lw::kModCommandVersion, record.get()), 0);
  EXPECT_TRUE(standin::panels().find(kRenamerTool)->isOpen());
}

// Does something when a control changes, once.
class OnChange : public standin::PanelListener {
 public:
  explicit OnChange(std::function<bool(standin::Control&)> react) : react_(std::move(react)) {
    standin::panels().listener = this;
  }
  ~OnChange() override { standin::panels().listener = nullptr; }
  OnChange(const OnChange&) = delete;
  OnChange& operator=(const OnChange&) = delete;

  void changed(standin::Control& control) override {
    if (isDone || isBusy_) return;
    isBusy_ = true;
    isDone = react_(control);
    isBusy_ = false;
  }

  bool isDone = false;

 private:
  std::function<bool(standin::Control&)> react_;
  bool isBusy_ = false;
};

TEST_F(RenamerOddHost, AnEventWhileTheModuleSetsAValueIsNotTheUsers) {
  host.select(kLeftArm);
  openIn(RenameMode::Advanced);
  switchOn(Item::PrefixOn);
  type(Item::Prefix, "My");
  const Names before = names();
  const OnChange runs([&](standin::Control& control) {
    if (&control != at(Item::RegisteredCount)) return false;
    return static_cast<bool>(standin::oddhost::fire(at(Item::Run)));
  });
  press(Item::Add);
  EXPECT_TRUE(runs.isDone);
  EXPECT_EQ(names(), before);
  run();  // the user's own
  EXPECT_NE(names(), before);
}

// Another panel that shows the new names is where the user might close this one.
TEST_F(RenamerOddHost, MayCloseThePanelBeforeItsRunIsOver) {
  openReady();
  EXPECT_EQ(host.activate(module, kPropertyTool), 0);
  const Panel* const other = standin::panels().find(kPropertyTool);
  ASSERT_NE(other, nullptr);
  const OnChange closes(
      [&](standin::Control& control) { return control.panel == other && static_cast<bool>(person::close(panel)); });
  run();
  EXPECT_TRUE(closes.isDone);
  EXPECT_FALSE(panel->isOpen());
  EXPECT_EQ(names(1), Names{"MyArm_L_01"});
}

}  // namespace
}  // namespace varnel::test
