// A seeded random walk of a person over the three open panels at once: what one of them does, the others know. After each
// action mesh, panels and undo steps are compared with a model that knows the storing rules and what a press selects from
// its own few lines. The rules that need no host, of rows and of new names, it shares with the module: they have tests of
// their own.
//
// VARNEL_WALK_SEED and VARNEL_WALK_ACTIONS choose another walk.
#include <cstdlib>

#include "tests/tools/panels_walk_actions.h"

namespace varnel::test {
namespace {

constexpr int kSeed = 31;
constexpr std::size_t kFewestSkelegons = 10;  // so that no layer loses all of its own

int numberOr(const char* variable, int usual) {
  const char* const text = std::getenv(variable);
  return text == nullptr || *text == '\0' ? usual : std::atoi(text);
}

class PanelsWalk : public ThreePanelsUsed {
 protected:
  // --- by the host's own means, and the panels themselves ------------------------------------------------------------------

  void selectInHost() {
    const walk::Places chosen = someOf(mesh.inFront());
    std::vector<const standin::MeshPolygon*> polygons;
    for (const std::size_t place : chosen) polygons.push_back(mesh[place].polygon);
    host.selectPolygons(polygons);
    mesh.selectAsUser(chosen);
    nobodyHears();
  }

  void showOtherLayers() {
    static const std::vector<int> kFronts[] = {{0, 1}, {0, 1}, {0}, {1}};
    showLayers(oneOf(kFronts));
  }

  void goBack() {
    EXPECT_EQ(host.undo(), mesh.undo());
    nobodyHears();
  }

  void goForth() {
    EXPECT_EQ(host.redo(), mesh.redo());
    nobodyHears();
  }

  // When many are gone the user goes back to where all were there.
  void deleteOne() {
    if (mesh.living().size() <= kFewestSkelegons) {
      while (mesh.living().size() < mesh.size()) goBack();
      return;
    }
    const std::size_t place = oneOf(mesh.inFront());
    host.deletePolygons({mesh[place].polygon});
    mesh.remove(place);
    nobodyHears();
  }

  // The host tells of the mouse in one way or another.
  void openSelectorAnew() {
    static constexpr standin::MouseDelivery kWays[] = {standin::MouseDelivery::Both, standin::MouseDelivery::Hooks,
                                                       standin::MouseDelivery::Control};
    standin::panels().options.mouse = oneOf(kWays);
    standin::panels().options.hooksNeedMouseFlag = false;
    standin::panels().options.clickCount = standin::ClickCount::ByTime;
    openSelector();
    touchScrollBar();
  }

  void openSome() {
    switch (below(3)) {
      case 0: return selector.isOpen() ? openSelector() : openSelectorAnew();
      case 1: return openRenamer();
      default: return openProperties();
    }
  }

  void closeOne() {
    Window* const windows[] = {&selector, &renamer, &properties};
    Window& window = *oneOf(windows);
    if (!window.isOpen()) return;
    EXPECT_TRUE(person::close(window.panel));
    window.isFresh = false;
  }

  // --- the walk ------------------------------------------------------------------------------------------------------------

  struct Action {
    const char* name;
    int weight;
    bool isPossible;
    void (PanelsWalk::*act)();
  };

  // Gives what was done.
  std::string act() {
    using W = PanelsWalk;
    const Window &s = selector, &p = properties, &r = renamer;
    const std::size_t chosen = mesh.selected().size();
    const bool isAdvanced = r.isOpen() && mode() == mst::RenameMode::Advanced;
    const Action table[] = {
        // clang-format off
        {"click the tree",       20, s.isSeeing(),               &W::clickTree},
        {"drag a bar",           2,  s.isSeeing(),               &W::dragScrollBar},
        {"wheel",                2,  s.isSeeing(),               &W::turnWheel},
        {"resize the selector",  1,  s.isSeeing(),               &W::resizeSelector},
        {"sync the selector",    1,  s.isOpen(),                 &W::syncSelector},
        {"sync the selector",    14, s.isStale(),                &W::syncSelector},
        {"value",                6,  p.isSeeing(),               &W::changeValue},
        {"more values",          20, p.isSeeing() && isAlone,    &W::changeValue},
        {"name",                 6,  p.isSeeing() && chosen == 1, &W::typeName},
        {"show another",         3,  p.isSeeing() && chosen > 1, &W::showAnother},
        {"fill a linked name",   1,  p.isSeeing(),               &W::fillLinked},
        {"fill weight maps",     1,  p.isSeeing(),               &W::fillWeightMaps},
        {"choose a weight map",  1,  p.isSeeing(),               &W::chooseWeightMap},
        {"choose an item",       2,  p.isSeeing(),               &W::chooseItem},
        {"preset",               1,  p.isSeeing(),               &W::pressPreset},
        {"reset",                1,  p.isSeeing(),               &W::resetValues},
        {"page",                 1,  p.isOpen(),                 &W::turnPage},
        {"sync the properties",  1,  p.isOpen(),                 &W::syncProperties},
        {"sync the properties",  14, p.isStale(),                &W::syncProperties},
        {"mode",                 2,  r.isOpen(),                 &W::chooseMode},
        {"texts",                3,  r.isOpen() && !isAdvanced,  &W::typeTexts},
        {"Bone Property",        1,  r.isOpen(),                 &W::toggleBoneProperty},
        {"advanced settings",    4,  isAdvanced,                 &W::changeSettings},
        {"Add",                  3,  isAdvanced,                 &W::addSelected},
        {"Clear",                1,  isAdvanced,                 &W::clearRegistered},
        {"Run",                  5,  r.isOpen(),                 &W::runRenamer},
        {"select in the host",   3,  true,                       &W::selectInHost},
        {"show layers",          1,  true,                       &W::showOtherLayers},
        {"undo",                 2,  true,                       &W::goBack},
        {"redo",                 1,  true,                       &W::goForth},
        {"delete",               1,  true,                       &W::deleteOne},
        {"open a panel",         3,  !isAlone,                   &W::openSome},
        {"open the properties",  3,  isAlone,                    &W::openProperties},
        {"close a panel",        1,  true,                       &W::closeOne},
        // clang-format on
    };
    int sum = 0;
    for (const Action& action : table) sum += action.isPossible ? action.weight : 0;
    drawn.clear();
    int left = below(sum);
    const auto chosenAction = std::find_if(std::begin(table), std::end(table), [&](const Action& action) {
      if (action.isPossible) left -= action.weight;
      return left < 0;
    });
    (this->*chosenAction->act)();
    return chosenAction->name + (":" + drawn);
  }

  void walkAbout(int usualActions) {
    const int actions = numberOr("VARNEL_WALK_ACTIONS", usualActions);
    std::vector<std::string> done;
    while (std::cmp_less(done.size(), actions) && !HasFailure()) {
      done.push_back(act());
      mesh.endStep();
      expectEverythingAgrees();
    }
    if (!HasFailure()) return;
    std::string last;
    for (std::size_t i = done.size() - std::min<std::size_t>(done.size(), 8); i < done.size(); ++i) {
      last += "  " + std::to_string(i) + ": " + done[i] + "\n";
    }
    FAIL() << "seed " << seed << ", the last actions and the numbers drawn were\n" << last;
  }

  const int seed = numberOr("VARNEL_WALK_SEED", kSeed);
  bool isAlone = false;  // the property panel
};

TEST_F(PanelsWalk, NamesSelectionAndValuesNeverDisagree) {
  random.seed(static_cast<unsigned>(seed));
  openSelectorAnew();
  openRenamer();
  openProperties();
  walkAbout(4000);
}

TEST_F(PanelsWalk, ThePropertiesAloneKeepTheMeshAsTheRulesSay) {
  random.seed(static_cast<unsigned>(seed));
  isAlone = true;
  openProperties();
  walkAbout(10000);
}

}  // namespace
}  // namespace varnel::test
