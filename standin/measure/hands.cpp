#include "standin/measure/hands.h"

#include <array>
#include <stdexcept>
#include <string>

#include "interface/lightwave.h"
#include "standin/panels/panel.h"

namespace standin {
namespace {

// What the host does when nobody calls it: late hooks, and paints.
void hostsTurn() {
  panels().turn();
  for (Panel* const panel : panels().open()) panels().paintWanted(*panel);
}

// The places of a panel's area that the probe's texts name.
struct Places {
  explicit Places(Panel& panel) {
    const Control* const area = panel.find(ControlKind::OpenGL);
    if (area == nullptr) throw std::runtime_error("the probe's panel shows no area");
    const Rectangle hot = area->hot();
    left = hot.x + hot.width / 4;
    right = hot.x + hot.width * 3 / 4;
    y = hot.y + hot.height / 2;
    beside = hot.right() + 40;
  }
  int left;
  int right;
  int y;
  int beside;
};

void drag(Panel& panel, int from, int to, int y) {
  constexpr int kSteps = 5;
  for (int step = 1; step <= kSteps; ++step) mustBeDone(person::mouseMove(&panel, from + (to - from) * step / kSteps, y));
  mustBeDone(person::mouseRelease(&panel, to, y));
}

// Of the first panel nothing is asked.
void goOn(Panel& /*panel*/) {}

void useMouse(Panel& panel) {
  const Places at(panel);
  constexpr auto kLeft = MouseButton::Left;
  mustBeDone(person::click(&panel, at.left, at.y, kLeft, lw::kMouseShift, 1));
  mustBeDone(person::click(&panel, at.left, at.y, kLeft, lw::kMouseShift, 2));
  mustBeDone(person::mousePress(&panel, at.right, at.y, kLeft, lw::kMouseShift, 3));
  drag(panel, at.right, at.left, at.y);
  mustBeDone(person::click(&panel, at.beside, at.y));
}

void useFields(Panel& panel) {
  Control* const list = panel.find("List");
  mustBeDone(person::choose(list, list == nullptr ? 0 : list->integer));
  mustBeDone(person::type(panel.find("Whole number"), "150"));
  mustBeDone(person::type(panel.find("Percent"), "150"));
  mustBeDone(person::type(panel.find("Angle"), "30"));
}

void useWheel(Panel& panel) {
  const Places at(panel);
  mustBeDone(person::mousePress(&panel, at.left, at.y));
  drag(panel, at.left, at.right, at.y);
  mustBeDone(person::wheel(&panel, at.right, at.y, 1));
}

struct HandsRow {
  const char* title;
  void (*use)(Panel&);
  const char* button;
};
constexpr std::array kHands{
    HandsRow{"Varnel probe 1", goOn, "Next"},
    HandsRow{"Varnel probe 2", useMouse, "Done"},
    HandsRow{"Varnel probe 3", useFields, "Done"},
    HandsRow{"Varnel probe 4", useWheel, "Done"},
};

}  // namespace

void mustBeDone(const Done& done) {
  if (!done) throw std::runtime_error("the hands cannot: " + done.why);
}

void playHands() {
  for (const HandsRow& row : kHands) {
    hostsTurn();
    Panel* const panel = panels().find(row.title);
    if (panel == nullptr || !panel->isOpen()) throw std::runtime_error(std::string(row.title) + " is not open");
    row.use(*panel);
    mustBeDone(person::press(panel->find(row.button)));
  }
  hostsTurn();
}

}  // namespace standin
