// Small rigs.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "objectfile/file_bytes.h"
#include "objectfile/object_file.h"
#include "objectfile/rig_builder.h"
#include "rigs/rig.h"
#include "tests/standin/samples.h"

namespace standin::rigs {

inline constexpr const char* kFileName = "rig.lwo";

// With a stored colour for each skelegon that has none, for what has none becomes orange.
inline Rig colouredRigOf(ObjectFile object, const std::string& fileName = kFileName) {
  constexpr std::uint8_t kColour = 129;
  for (ObjectLayer& layer : object.layers) {
    for (ObjectPolygon& skelegon : layer.group(lw::kTypeBone).polygons) {
      const bool isStored = skelegon.tag(lw::kTagColour) != nullptr || skelegon.tag(settingTag(kColour)) != nullptr;
      if (!isStored) skelegon.setTag(settingTag(kColour), "Modeler");
    }
  }
  return rigOf(object, fileName);
}

// A root and a child in the one layer of a file, with a few settings that are all in order.
struct SoundRig {
  RigBuilder builder;
  RigBuilder::Skelegon root;
  RigBuilder::Skelegon hand;

  SoundRig() {
    builder.layer(0, "Rig");
    root = builder.root("Root", {0, 0, 0}, {0, 1, 0});
    hand = builder.child(root, "Hand", {0, 2, 0});
    builder.tag(root, lw::kTagBoneWeight, "Root");
    builder.tag(root, lw::kTagColour, "Green");
    builder.settings(root, {{13, "2"}, {31, "80.000000"}, {129, "Green"}});
    builder.settings(hand, {{27, "0"}, {52, "Root"}, {97, "-1.570796"}, {129, "Modeler"}, {130, "rig"}});
  }

  void set(const RigBuilder::Skelegon& skelegon, std::uint8_t slot, std::string text) {
    builder.tag(skelegon, settingTag(slot), std::move(text));
  }
  const ObjectFile& object() const { return builder.object(); }
  Rig rig(const std::string& fileName = kFileName) const { return rigOf(object(), fileName); }
};

}  // namespace standin::rigs
