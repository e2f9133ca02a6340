#include "probe/layout_rig.h"

#include <algorithm>

namespace probe::layout {
namespace {

// Layouts differ in how they order the items of a file, so the layer with a name is known by that.
void putNamedLayerFirst(const LayoutScene& scene, Items& items) {
  std::stable_partition(items.begin(), items.end(),
                        [&](lw::ItemId item) { return scene.nameOf(item).find(kRigLayer) != std::string::npos; });
}

}  // namespace

LayoutRig::LayoutRig(const LayoutScene& scene) : scene_(scene) {
  const Items before = scene.objects();
  scene.host().mustDo("LoadObject " + file_.path());
  items_ = added(before, scene.objects());
  if (items_.empty()) throw Trouble{"no item came of the rig's file"};
  putNamedLayerFirst(scene, items_);
  convert();
}

lw::ItemId LayoutRig::second() const {
  if (items_.size() < 2) throw Trouble{"one item came of the rig's two layers"};
  return items_[1];
}

lw::ItemId LayoutRig::bone(const std::string& skelegon) const {
  const auto found = std::find(boneNames_.begin(), boneNames_.end(), skelegon);
  if (found == boneNames_.end()) throw Trouble{"no bone is called \"" + skelegon + "\""};
  return bones_[static_cast<std::size_t>(found - boneNames_.begin())];
}

void LayoutRig::convert() {
  scene_.select({first()});
  answer_ = scene_.confirmed("SkelegonsToBones");
  selected_ = scene_.selection();
  bones_ = scene_.bonesOf(first());
  for (lw::ItemId bone : bones_) boneNames_.push_back(scene_.nameOf(bone));
  scene_.select({first()});
  scene_.confirmed("SkelegonsToBones");
  bonesAfterSecond_ = scene_.bonesOf(first());
}

}  // namespace probe::layout
