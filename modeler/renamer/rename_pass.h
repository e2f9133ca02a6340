// The renamer's two passes over the mesh. Each computes every new text before it writes the first, and writes them in one
// edit, one step to undo: whatever fails, the object is as it was.
#pragma once

#include <string>

#include "host/lwtool2_mesh.h"
#include "modeler/renamer/rename_rules.h"

namespace mst {

enum class RenameOutcome {
  Renamed,
  NoSkelegons,      // nothing was chosen that could be renamed
  DuplicatedNames,  // two skelegons would have got one name
  InvalidPattern,   // or one that is too large
  RefusedName,      // a text that the rule cannot be applied to
};

// A text of a skelegon that the rule refused.
struct NameRefused {
  texts::NameRefusal why = texts::NameRefusal::TooLong;
  std::string skelegon = {};  // its name
};

struct RenameResult {
  RenameOutcome outcome = RenameOutcome::Renamed;
  std::string complaint = {};  // the library's, about the pattern
  NameRefused refused = {};    // of RefusedName
};

// Renames the selected skelegons and, with the bone properties, the names of other items that they hold. Writes all tags,
// the unchanged ones too. Throws CBaseEx when the host refuses a call.
RenameResult runSimplePass(RenameMode mode, const std::string& first, const std::string& second, bool withProperties);

// Renames by the name rule. Writes only what changes. Throws CBaseEx when the host refuses a call.
RenameResult runAdvancedPass(const RenamerSettings& settings, const lw::PolygonIds& registered);

// The selected skelegons of the foreground, in the host's order; none while no object is loaded.
lw::PolygonIds selectedForRenaming();

}  // namespace mst
