// Hands on a panel: any control, used as its kind is used, and every page, without knowing what the panel is for.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "standin/panels/person.h"

namespace standin::validate {

// The visible controls that a person can use.
std::vector<Control*> usableControls(const Panel& panel);

// Uses a visible control once. `pick` chooses what is typed, chosen or clicked; the same number does the same.
Done touch(Control& control, std::uint32_t pick);
// What touch would type into a text field.
const std::string& textToType(std::uint32_t pick);

// What a person would find wrong with the panel's layout: controls that overlap, leave the panel or have too little room for
// their text. Empty when it is sound. Controls whose room is part of a tool's design, with all that it lacks, are passed
// over.
std::string layoutFaults(const Panel& panel);

// Turns to each combination of the panel's tabs and calls `look` with its name ("1/2: "). Ends on the first of each.
void everyPage(Panel& panel, const std::function<void(const std::string& page)>& look);

}  // namespace standin::validate
