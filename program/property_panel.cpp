#include "program/property_panel.h"

#include "program/support.h"

namespace standin {

void showPage(Panel& panel, int page) { must(person::choose(panel.find(ControlKind::TabChoice, 0), page)); }

void showGroup(Panel& panel, int group) { must(person::choose(panel.find(ControlKind::TabChoice, 1), group)); }

Control* falloffControl(Panel& panel) {
  showPage(panel, 0);
  // The page holds three lists from the top: the skelegon's popup is hidden while one is selected.
  return panel.find(ControlKind::Popup, 0);
}

}  // namespace standin
