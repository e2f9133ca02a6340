// What Layout makes of the probe's own files: items of layers, bones of skelegons. Everything that shows only at once is
// noted when it happens.
#pragma once

#include <string>

#include "probe/layout_scene.h"
#include "probe/rig_file.h"

namespace probe::layout {

// Loads the rig and turns the skelegons of its first layer into bones.
class LayoutRig {
 public:
  // Throws Trouble when the host does not load it.
  explicit LayoutRig(const LayoutScene& scene);

  // Of the two layers.
  const Items& items() const { return items_; }
  lw::ItemId first() const { return items_.front(); }
  // That of the unnamed layer, which has a pivot.
  lw::ItemId second() const;

  // As the first SkelegonsToBones left things: its answer, its bones in order with their names, and what was selected.
  int answer() const { return answer_; }
  const Items& bones() const { return bones_; }
  const std::vector<std::string>& boneNames() const { return boneNames_; }
  const Items& selected() const { return selected_; }
  // Throws Trouble when there is no bone of that skelegon.
  lw::ItemId bone(const std::string& skelegon) const;
  // The bones of the same object after a second SkelegonsToBones.
  const Items& bonesAfterSecond() const { return bonesAfterSecond_; }

 private:
  void convert();

  const LayoutScene& scene_;
  RigFile file_;
  Items items_;
  int answer_ = 0;
  Items bones_;
  std::vector<std::string> boneNames_;
  Items selected_;
  Items bonesAfterSecond_;
};

}  // namespace probe::layout
