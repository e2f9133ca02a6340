// `varnel export --gltf` as a user types it.
#include <limits>

#include "objectfile/rig_builder.h"
#include "tests/standin/gltf_reader.h"
#include "tests/standin/program_fixture.h"

namespace standin::gltf {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class GltfProgram : public TypedLines {
 protected:
  static void write(const std::string& path, const ObjectFile& object) { EXPECT_FALSE(writeObject(object, path)); }
  using TypedLines::write;
};

TEST_F(GltfProgram, WritesTheFileAndTellsWhatIsInItAndWhatIsNot) {
  makeRigs();
  EXPECT_EQ(type("varnel export --gltf rigs/lizard.lwo -o lizard.glb"), 0) << error;
  EXPECT_THAT(out, StartsWith("lizard.glb: 24 bones, 2 meshes, "));
  EXPECT_THAT(out, HasSubstr("  left out: "));
  EXPECT_EQ(error, "");
  EXPECT_EQ(GlbFile(bytesOf("lizard.glb")).json["asset"]["version"], "2.0");
}

TEST_F(GltfProgram, TheSameRigAlwaysGivesTheSameBytes) {
  makeRigs();
  EXPECT_EQ(type("varnel export --gltf rigs/lizard.lwo -o first.glb"), 0) << error;
  EXPECT_EQ(type("varnel export --gltf rigs/lizard.lwo -o second.glb"), 0) << error;
  EXPECT_TRUE(bytesOf("first.glb") == bytesOf("second.glb"));
}

TEST_F(GltfProgram, TakesAnyNameThatEndsInGlb) {
  makeRigs();
  EXPECT_EQ(type("varnel export --gltf rigs/lizard.lwo -o a.b.GLB"), 0) << error;
  for (const char* const words : {"", " -o lizard.gltf", " -o lizard.json", " -o glb"}) {
    expectRefused(std::string("varnel export --gltf rigs/lizard.lwo") + words, "its name has to end in .glb");
  }
}

TEST_F(GltfProgram, WritesOverAFileOnlyWhenAsked) {
  makeRigs();
  write("lizard.glb", std::string("mine"));
  expectRefused("varnel export --gltf rigs/lizard.lwo -o lizard.glb", "lizard.glb exists and is not written over");
  EXPECT_EQ(bytesOf("lizard.glb"), "mine");
  EXPECT_EQ(type("varnel export --gltf rigs/lizard.lwo -o lizard.glb --force"), 0) << error;
}

TEST_F(GltfProgram, RefusesWhatItCannotWriteAndLeavesNoFile) {
  RigBuilder rig;
  rig.root("Root", {0, 0, std::numeric_limits<float>::quiet_NaN()}, {0, 1, 0});
  write("rig.lwo", rig.object());
  expectRefused("varnel export --gltf rig.lwo -o rig.glb", "rig.lwo: layer 0: point 0 (counted from 0) has a coordinate");
  EXPECT_FALSE(std::filesystem::exists("rig.glb"));
  expectRefused("varnel export --gltf missing.lwo -o rig.glb", "missing.lwo");
  expectRefused("varnel export --gltf -o rig.glb", "name the object file");
}

TEST_F(GltfProgram, RefusesWhatElseExportCanWrite) {
  makeRigs();
  EXPECT_EQ(type("varnel export --gltf --schema -o a.glb"), 2);
  EXPECT_EQ(type("varnel export --gltf --textconv rigs/lizard.lwo -o a.glb"), 2);
  EXPECT_FALSE(std::filesystem::exists("a.glb"));
}

}  // namespace
}  // namespace standin::gltf
