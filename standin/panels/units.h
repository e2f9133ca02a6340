// Numbers as the controls show them and as a person types them: percent, degrees, metres with a unit, plain.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "standin/panels/kinds.h"

namespace standin {

// At most six significant digits, the same on every platform.
std::string plainNumber(double value);

// What a control of a kind shows for the value that the module reads and writes (radians for angles, metres for distances).
std::string shownNumber(ControlKind kind, double value);

// The value behind a number as it is shown: degrees become radians, all others stay.
double valueOfShown(ControlKind kind, double shown);

// The value behind what a person typed into a field of the kind, unit included ("90", "90°", "15.2%", "150 mm"). Empty when
// the text is no such number.
std::optional<double> parseTyped(ControlKind kind, std::string_view typed);

}  // namespace standin
