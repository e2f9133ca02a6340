// What stands in pictures, in both languages.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "rigs/settings.h"
#include "views/posed_rig.h"
#include "views/projection.h"

namespace standin::views {

using rigs::Language;

const char* nameOf(View view, Language language);
// "goal"
const char* nameOf(HelperKind kind, Language language);

// What a count is of.
enum class Counted {
  Skelegons,
  Bones,
  Helpers,
  Problems,
  Changes,
  Nowhere,       // bones without a finite position
  NullsNowhere,  // helper items without one
  NamesLeftOut,
  EdgesLeftOut,
};
std::string countText(Counted what, std::size_t count, Language language);

enum class Remark { ManyBones, OutlineOnly, HasProblem };
const char* remarkText(Remark remark, Language language);

// What the item is used as, behind its name: " (goal, pole)". Empty when it is nothing.
std::string captionOf(const PosedNull& null, Language language);
// "Foot_goal: goal of Foot"
std::string titleOf(const PosedNull& null, const std::vector<PosedBone>& bones, Language language);
std::string titleOf(const PosedBone& bone, Language language);

// A length as people say it: "20 cm".
std::string lengthText(double metres);

}  // namespace standin::views
