#include "probe/rig_file.h"

#include <stdexcept>

#include "objectfile/rig_builder.h"

namespace probe {
namespace {

constexpr standin::FilePoint kRigPivot{0, 0, 0.5F};

// The builder's own call would replace the first.
void tagTwice(standin::ObjectFile& rig, const standin::RigBuilder::Skelegon& skelegon) {
  standin::ObjectLayer& layer = rig.layers[skelegon.layer];
  std::vector<standin::PolygonTag>& tags = layer.group(lw::kTypeBone).polygons[skelegon.polygon].tags;
  tags.push_back({kRigTwiceTag, kRigTwiceFirst});
  tags.push_back({kRigTwiceTag, kRigTwiceLast});
}

standin::ObjectFile rig() {
  standin::RigBuilder builder;
  builder.layer(0, kRigLayer);
  const std::uint32_t corner = builder.point({0, 0, 0});
  builder.face({corner, builder.point({1, 0, 0}), builder.point({0, 1, 0})});
  builder.weightMap(kRigWeightMap, {{corner, 1.0F}});
  builder.weightMap("", {{corner, 0.5F}});
  const auto root = builder.root(kRigRoot, {0, 0, 0}, {0, 1, 0});
  const auto left = builder.child(root, kRigLeft, {-1, 2, 0});
  builder.child(root, kRigRight, {1, 2, 0});
  const auto tip = builder.child(left, kRigTip, {-2, 3, 0});
  builder.colour(left, kRigColour);
  builder.tag(tip, lw::kTagBoneWeight, kRigWeightMap);
  builder.layer(1, "", kRigPivot);
  builder.root(kRigOther, {0, 0, 2}, {0, 1, 2});
  standin::ObjectFile file = builder.take();
  tagTwice(file, root);
  return file;
}

}  // namespace

RigFile::RigFile(const std::string& name) : path_(folder_.file(name)) {
  if (const auto failure = standin::writeObject(rig(), path_)) throw std::runtime_error(failure->text);
}

}  // namespace probe
