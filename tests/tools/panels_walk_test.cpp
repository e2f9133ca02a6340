// A seeded random walk of a person over the three open panels at once: what one of them does, the others know. After each
// action mesh, panels and undo steps are compared with a model that knows the rules from its own few lines.
//
// VARNEL_WALK_SEED and VARNEL_WALK_ACTIONS choose another walk.
#include <cstdlib>

#include "tests/tools/panels_walk_actions.h"

namespace varnel::test {
namespace {

constexpr int kSeed = 31;
constexpr int kActions = 4000;
constexpr std::size_t kFewestSkelegons = 10;  // so that no layer loses all of its own

int numberOr(const char* variable, int usual) {
  const char* const text = std::getenv(variable);
  return text == nullptr || *text == '\0' ? usual : std::atoi(text);
}

class PanelsWalk : public ThreePanelsUsed {
 protected:
  struct Action {
    int weight;
    bool (PanelsWalk::*isPossible)() const;
    std::string (PanelsWalk::*act)();
  };

  PanelsWalk() { random.seed(static_cast<unsigned>(numberOr("VARNEL_WALK_SEED", kSeed))); }

  // --- by the host's own means, and the panels themselves ------------------------------------------------------------------

  std::string selectInHost() {
    const walk::Places chosen = someOf(mesh.inFront());
    std::vector<const standin::MeshPolygon*> polygons;
    for (const std::size_t place : chosen) polygons.push_back(mesh[place].polygon);
    host.selectPolygons(polygons);
    mesh.selectAsUser(chosen);
    nobodyHears();
    return "select " + std::to_string(chosen.size()) + " in the host";
  }

  std::string showOtherLayers() {
    static const std::vector<int> kFronts[] = {{0, 1}, {0, 1}, {0}, {1}};
    const std::vector<int>& front = oneOf(kFronts);
    showLayers(front);
    return front.size() == 2 ? "show both layers" : "show layer " + std::to_string(front.front());
  }

  std::string goBack() {
    EXPECT_EQ(host.undo(), mesh.undo());
    nobodyHears();
    return "undo";
  }

  std::string goForth() {
    EXPECT_EQ(host.redo(), mesh.redo());
    nobodyHears();
    return "redo";
  }

  // When many are gone the user goes back to where all were there.
  std::string deleteOne() {
    if (mesh.living().size() <= kFewestSkelegons) {
      while (mesh.living().size() < mesh.size()) goBack();
      return "undo until all skelegons are back";
    }
    const walk::Places seen = mesh.inFront();
    const std::size_t place = seen[placeBelow(seen.size())];
    host.deletePolygons({mesh[place].polygon});
    mesh.remove({place});
    nobodyHears();
    return "delete skelegon " + std::to_string(place);
  }

  // The host tells of the mouse in one way or another.
  void chooseDelivery() {
    static constexpr standin::MouseDelivery kWays[] = {standin::MouseDelivery::Both, standin::MouseDelivery::Hooks,
                                                       standin::MouseDelivery::Control};
    standin::panels().options.mouse = oneOf(kWays);
    standin::panels().options.hooksNeedMouseFlag = false;
    standin::panels().options.clickCount = standin::ClickCount::ByTime;
  }

  void openSelectorAnew() {
    chooseDelivery();
    openSelector();
    touchScrollBar();
  }

  std::string openSome() {
    switch (below(3)) {
      case 0:
        if (selector.isOpen()) {
          openSelector();
        } else {
          openSelectorAnew();
        }
        return "open the selector";
      case 1: openRenamer(); return "open the renamer";
      default: openProperties(); return "open the property panel";
    }
  }

  std::string closeOne() {
    Window* const windows[] = {&selector, &renamer, &properties};
    Window& window = *oneOf(windows);
    if (!window.isOpen()) return "nothing";
    EXPECT_TRUE(person::close(window.panel));
    window.isFresh = false;
    return "close a panel";
  }

  // --- the walk ------------------------------------------------------------------------------------------------------------

  std::string act() {
    using Walk = PanelsWalk;
    static constexpr Action kTable[] = {
        // clang-format off
        {20, &Walk::selectorIsFresh,    &Walk::clickTree},
        {2,  &Walk::selectorIsFresh,    &Walk::dragScrollBar},
        {2,  &Walk::selectorIsFresh,    &Walk::turnWheel},
        {1,  &Walk::selectorIsFresh,    &Walk::resizeSelector},
        {1,  &Walk::selectorIsOpen,     &Walk::syncSelector},
        {14, &Walk::selectorIsStale,    &Walk::syncSelector},
        {6,  &Walk::propertiesAreFresh, &Walk::changeValue},
        {6,  &Walk::oneCanBeNamed,      &Walk::typeName},
        {3,  &Walk::oneCanBeShown,      &Walk::showAnother},
        {1,  &Walk::propertiesAreFresh, &Walk::fillLinked},
        {1,  &Walk::propertiesAreFresh, &Walk::fillWeightMaps},
        {1,  &Walk::propertiesAreFresh, &Walk::chooseWeightMap},
        {2,  &Walk::propertiesAreFresh, &Walk::chooseItem},
        {1,  &Walk::propertiesAreFresh, &Walk::pressPreset},
        {1,  &Walk::propertiesAreFresh, &Walk::resetValues},
        {1,  &Walk::propertiesAreOpen,  &Walk::turnPage},
        {1,  &Walk::propertiesAreOpen,  &Walk::syncProperties},
        {14, &Walk::propertiesAreStale, &Walk::syncProperties},
        {2,  &Walk::renamerIsOpen,      &Walk::chooseMode},
        {3,  &Walk::renamerIsSimple,    &Walk::typeTexts},
        {1,  &Walk::renamerIsOpen,      &Walk::toggleBoneProperty},
        {4,  &Walk::renamerIsAdvanced,  &Walk::changeSettings},
        {3,  &Walk::renamerIsAdvanced,  &Walk::addSelected},
        {1,  &Walk::renamerIsAdvanced,  &Walk::clearRegistered},
        {5,  &Walk::renamerIsOpen,      &Walk::runRenamer},
        {3,  &Walk::always,             &Walk::selectInHost},
        {1,  &Walk::always,             &Walk::showOtherLayers},
        {2,  &Walk::always,             &Walk::goBack},
        {1,  &Walk::always,             &Walk::goForth},
        {1,  &Walk::always,             &Walk::deleteOne},
        {3,  &Walk::always,             &Walk::openSome},
        {1,  &Walk::always,             &Walk::closeOne},
        // clang-format on
    };
    int sum = 0;
    for (const Action& action : kTable) sum += (this->*action.isPossible)() ? action.weight : 0;
    int left = below(sum);
    for (const Action& action : kTable) {
      if (!(this->*action.isPossible)()) continue;
      left -= action.weight;
      if (left < 0) return (this->*action.act)();
    }
    return "nothing";
  }
};

TEST_F(PanelsWalk, NamesSelectionAndValuesNeverDisagree) {
  openSelectorAnew();
  openRenamer();
  openProperties();
  const int actions = numberOr("VARNEL_WALK_ACTIONS", kActions);
  std::vector<std::string> done;
  for (int action = 0; action < actions && !HasFailure(); ++action) {
    done.push_back(act());
    mesh.endStep();
    expectEverythingAgrees();
  }
  if (!HasFailure()) return;
  std::string last;
  for (std::size_t i = done.size() - std::min<std::size_t>(done.size(), 8); i < done.size(); ++i) {
    last += "  " + std::to_string(i) + ": " + done[i] + "\n";
  }
  FAIL() << "seed " << numberOr("VARNEL_WALK_SEED", kSeed) << ", the last actions were\n" << last;
}

}  // namespace
}  // namespace varnel::test
