// Texts and rigs that no rigger makes on purpose, as data.
#pragma once

#include <span>
#include <string>

#include "objectfile/object_file.h"

namespace standin::validate {

struct HostileText {
  const char* name;
  std::string text;
};
std::span<const HostileText> hostileTexts();
std::span<const HostileText> hostileNumbers();

struct HostileTree {
  const char* name;
  ObjectFile (*make)();
};
std::span<const HostileTree> hostileTrees();

// A small rig whose skelegons, layers and weight maps bear the text in their names; linked items as well.
ObjectFile rigWithNames(const std::string& text);
// A small rig with the text stored in every setting.
ObjectFile rigWithSettings(const std::string& text);

}  // namespace standin::validate
