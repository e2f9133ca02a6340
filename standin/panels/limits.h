// What a control holds of a value: the range of a slider's field, the length of a text.
#pragma once

#include <string>
#include <string_view>

#include "standin/panels/panel.h"

namespace standin {

// The value as a field takes it when it is typed or dragged, and when the module sets it.
double limitedWhenTyped(const Control& field, double value);
double limitedWhenSet(const Control& field, double value);

// As many bytes of a text as an edit field holds.
std::string heldText(std::string_view text);

}  // namespace standin
