#include "probe/layout_area.h"

#include <array>
#include <utility>

#include "probe/layout_site.h"

namespace probe {
namespace layout {
namespace {

// The selection is asked about while nothing is in the scene; commands are tried last, for one of them may leave a question
// to the user.
constexpr std::array kQuestionsInOrder{selectionQuestions, itemQuestions,    skelegonQuestions,
                                       channelQuestions,   serviceQuestions, parentingQuestions};

template <class Action>
void doAndTell(Facts& facts, const char* what, Action&& action) {
  const std::string trouble = troubleOf(std::forward<Action>(action));
  if (!trouble.empty()) facts.figure(what, trouble);
}

void remove(const LayoutScene& scene, const Items& items) {
  scene.select(items);
  scene.confirmed("ClearSelected");
}

// No object was in the scene at the start, so that whatever is there came of the probe's commands. What the host does not
// remove with the others is tried alone, and once more at the end.
void removeAll(const LayoutScene& scene, Facts& facts) {
  constexpr const char* kStep = "removing";
  doAndTell(facts, kStep, [&] {
    if (!scene.objects().empty()) remove(scene, scene.objects());
  });
  doAndTell(facts, kStep, [&] {
    for (lw::ItemId item : scene.objects()) {
      if (contains(scene.objects(), item)) remove(scene, {item});
    }
  });
  doAndTell(facts, kStep, [&] {
    if (!scene.objects().empty()) remove(scene, scene.objects());
    if (!scene.objects().empty()) throw Trouble{"still there: " + scene.namesOf(scene.objects())};
  });
}

// Lights and cameras, the only items that can have been selected.
void selectAgain(const LayoutScene& scene, const Items& before) {
  Items there;
  for (const lw::ItemType type : {lw::kItemLight, lw::kItemCamera}) {
    for (lw::ItemId item : scene.all(type)) {
      if (contains(before, item)) there.push_back(item);
    }
  }
  scene.select(there);
}

struct Before {
  Items selected;
  bool isIkOn = true;
  bool areControllersOn = true;
};

Before stateOf(const LayoutScene& scene) {
  return {scene.selection(), scene.isOn(lw::kGeneralIK), scene.isOn(lw::kGeneralMotionControllers)};
}

void leaveAsBefore(const LayoutScene& scene, const Before& before, Facts& facts) {
  removeAll(scene, facts);
  doAndTell(facts, "confirming", [&] { scene.leaveConfirming(); });
  doAndTell(facts, "IK", [&] { scene.setSwitch("EnableIK", lw::kGeneralIK, before.isIkOn); });
  doAndTell(facts, "motion controllers",
            [&] { scene.setSwitch("EnableMC", lw::kGeneralMotionControllers, before.areControllersOn); });
  doAndTell(facts, "selection", [&] { selectAgain(scene, before.selected); });
}

void tellNothing(const std::string& why, Facts& facts) {
  for (const auto questions : kQuestionsInOrder) {
    for (const Question<LayoutSite>& question : questions()) facts.tell(question.name, notTold(why));
  }
}

// Where the host does not tell how things are, they could not be left so.
void measure(Host& host, Facts& facts) {
  LayoutSite site(host);
  Before before;
  const std::string trouble = troubleOf([&] { before = stateOf(site.scene); });
  if (!trouble.empty()) return tellNothing(trouble, facts);
  for (const auto questions : kQuestionsInOrder) ask(questions(), site, facts);
  tellLayoutFigures(site, facts);
  doAndTell(facts, "commands", [&] { tellCommandFigures(site, facts); });
  leaveAsBefore(site.scene, before, facts);
}

}  // namespace
}  // namespace layout

void measureLayout(Host& host, Facts& facts) { layout::measure(host, facts); }

}  // namespace probe
