// What is known of the real Modeler leaves some behaviour open. The defaults are the strict, well-behaved reading; tests turn
// single ones round to see that the module works either way.
#pragma once

#include <cstdint>

namespace standin {

struct ModelerOptions {
  std::uint32_t productInfo = 0x08F00641;  // release 15, model year 2023
  std::uint32_t localeInfo = 0x409;        // 0x411 is Japanese; 0 counts as a missing service

  bool editWithoutObject = false;    // an edit can begin while no object is loaded; its mesh is empty
  bool editsShowOwnChanges = false;  // tags and selection set in an edit can be read back before it is done
  bool emptyTagRemoves = false;      // a tag set to the empty text is removed instead of kept blank
  bool unnamedLayerIsEmpty = false;  // the name of a layer without one is empty, not null
  bool unnamedMapIsEmpty = false;    // the name of a vertex map without one is empty, not null
  bool layerSwitchDeselects = true;  // what lies in a layer that leaves the foreground is deselected

  bool operator==(const ModelerOptions&) const = default;
};

}  // namespace standin
