// What the questions about Modeler are asked on, and their tables, one for each file.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "probe/ask.h"
#include "probe/facts.h"
#include "probe/host_access.h"
#include "probe/loaded_rig.h"

namespace probe {

struct ModelerSite {
  const Host& host;
  LoadedRig& rig;  // the current object, its first layer in the foreground
};

using ModelerQuestions = std::span<const Question<ModelerSite>>;
ModelerQuestions editQuestions();
ModelerQuestions scanQuestions();
ModelerQuestions tagQuestions();
ModelerQuestions nameQuestions();

// For people: one sentence each.
struct ModelerFigure {
  const char* name;
  std::string (*measure)(ModelerSite&);
};
std::span<const ModelerFigure> modelerFigures();

}  // namespace probe
