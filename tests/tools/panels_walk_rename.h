// What a walk over the panels expects of the renamer's "Run": the rules once more, in the plainest way.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "modeler/renamer/rename_rules.h"
#include "tests/tools/panels_walk_mesh.h"

namespace varnel::test::walk {

struct RenamePlan {
  enum class Answer { Renamed, NeedSelection, Duplicated };
  struct Text {
    std::size_t place;
    std::uint32_t type;
    std::string text;
  };

  Answer answer = Answer::Renamed;
  std::vector<Text> texts;   // to be stored
  bool isUndefined = false;  // the order of the columns is nobody's promise
  std::size_t longest() const;
};

RenamePlan planSimple(const Mesh& mesh, mst::RenameMode mode, const std::string& first, const std::string& second,
                      bool withProperties);
// The registered skelegons may be gone.
RenamePlan planAdvanced(const Mesh& mesh, const mst::RenamerSettings& settings, const Places& registered);

}  // namespace varnel::test::walk
