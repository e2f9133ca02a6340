// What the manual's pictures show of the tools in Modeler, and `varnel panels` as text: the lizard, in the language of the
// panels, and one skelegon of it with everything set.
#pragma once

#include <string>
#include <string_view>

#include "objectfile/object_file.h"

namespace standin {

class PicturedRig {
 public:
  explicit PicturedRig(std::string_view language);

  // A name of the lizard as this rig has it.
  std::string name(const char* english) const;
  std::string file() const { return name("lizard.lwo"); }

  ObjectFile plain() const;
  // With settings for every field of the property panel on one skelegon.
  ObjectFile filled() const;
  std::string filledSkelegon() const;

 private:
  bool isJapanese_;
};

}  // namespace standin
