// Small rigs, and where the sample objects are.
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

namespace standin::rigs {

inline constexpr const char* kFileName = "rig.lwo";

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
    builder.settings(hand, {{27, "0"}, {52, "Root"}, {97, "-1.570796"}, {130, "rig"}});
  }

  void set(const RigBuilder::Skelegon& skelegon, std::uint8_t slot, std::string text) {
    builder.tag(skelegon, settingTag(slot), std::move(text));
  }
  const ObjectFile& object() const { return builder.object(); }
  Rig rig(const std::string& fileName = kFileName) const { return rigOf(object(), fileName); }
};

inline std::filesystem::path samplesFolder() {
  const char* const given = std::getenv("VARNEL_SAMPLES");
  const auto repository = pathFromUtf8(VARNEL_REPOSITORY);
  return given != nullptr ? std::filesystem::path(given) : repository / ".." / "shared" / "samples";
}

inline std::string utf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

inline std::vector<std::string> sampleRigs() {
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::directory_iterator(samplesFolder() / "rigs")) {
    if (entry.path().extension() == ".lwo") paths.push_back(utf8(entry.path()));
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

class OnSamples : public testing::Test {
 protected:
  void SetUp() override {
    if (!std::filesystem::exists(samplesFolder())) GTEST_SKIP() << "the folder of sample objects is missing";
  }
};

}  // namespace standin::rigs
