// What the stored text of a setting says: as a person reads it, and as Layout will.
#pragma once

#include <string>
#include <string_view>

#include "rigs/settings.h"

namespace standin::rigs {

// How much of a text is the number that is read from it.
enum class Reading { Whole, Beginning, Nothing };

bool isNumeric(skg::SlotKind kind);  // flags and choices are numbers too
Reading readingOf(skg::SlotKind kind, std::string_view text);

// The index of a choice is one of the list; of a flag, 0 or 1. True for all other kinds.
bool isInList(const Setting& setting, std::string_view text);

// True when both texts mean the same to Layout.
bool meansTheSame(const Setting& setting, std::string_view a, std::string_view b);

// "80 %", "Inverse Distance^4", "on", "90°", "Dark Red". A text that does not read as its kind is shown in quotation marks.
std::string shown(const Setting& setting, std::string_view text, Language language);

// What stands behind a value that is shown though it is not stored.
const char* defaultRemark(Language language);

// The number as it is written into tags: "%.6f", in every locale.
std::string sixDecimals(double value);
// As short as six decimals allow: "0.25".
std::string shortNumber(double value);

}  // namespace standin::rigs
