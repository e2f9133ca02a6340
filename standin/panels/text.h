// Panels as text: for looking at them without a screen, and for tests.
#pragma once

#include <string>

#include "standin/panels/panel.h"

namespace standin {

// One line: place, size, kind, label, value. Asks a custom popup for the name of its present item.
std::string controlText(const Control& control);

// Title and size, then each control that a person sees, in reading order (by the top of its row, then from the left).
// The same panel always gives the same text.
std::string panelText(const Panel& panel);

// The visible controls of a panel in reading order.
std::vector<const Control*> readingOrder(const Panel& panel);

}  // namespace standin
