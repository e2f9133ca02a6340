// The file as another program reads it: a library for 3D files that shares nothing with ours. Skipped where it is not installed.
#include "tests/standin/gltf_reader.h"

#ifdef VARNEL_ASSIMP
#include <assimp/scene.h>

#include <assimp/Importer.hpp>

#include "objectfile/sample_rigs.h"
#include "standin/layout/scene.h"
#include "standin/layout/skelegon_bones.h"
#include "tests/standin/samples.h"

namespace standin::gltf {
namespace {

Vec3 placeIn(const aiMatrix4x4& m) {
  return {static_cast<double>(m.a4), static_cast<double>(m.b4), static_cast<double>(m.c4)};
}

aiMatrix4x4 placeOf(const aiNode& node) {
  return node.mParent == nullptr ? node.mTransformation : placeOf(*node.mParent) * node.mTransformation;
}

// The node of that name with a parent of that name.
const aiNode* find(const aiNode& node, const std::string& name, const std::string& parent) {
  if (node.mName.C_Str() == name && node.mParent != nullptr && node.mParent->mName.C_Str() == parent) return &node;
  for (unsigned i = 0; i < node.mNumChildren; ++i) {
    if (const aiNode* found = find(*node.mChildren[i], name, parent)) return found;
  }
  return nullptr;
}

void expectNear(const Vec3& a, const Vec3& b, const std::string& what) {
  // It reckons with 32 bits.
  EXPECT_LT(length(a - b), 1e-5 * std::max(1.0, length(b))) << what;
}

// Against the bones of Layout, whose z is the other way round.
void expectBones(const aiScene& read, Scene& scene) {
  for (Item* object : scene.objects()) {
    for (Item* bone : object->bones) {
      const std::string name = scene.nameOf(*bone);
      const aiNode* const node = find(*read.mRootNode, name, scene.nameOf(*bone->parent));
      ASSERT_NE(node, nullptr) << name;
      const aiMatrix4x4 place = placeOf(*node);
      const Placement there = scene.placement(*bone, 0);
      const auto length = static_cast<float>(bone->rest.length);
      const Vec3 tail = there.position + there.axes.columns[2] * bone->rest.length;
      aiMatrix4x4 along;
      aiMatrix4x4::Translation({0, 0, -length}, along);
      expectNear(placeIn(place), {there.position[0], there.position[1], -there.position[2]}, name);
      expectNear(placeIn(place * along), {tail[0], tail[1], -tail[2]}, name + ", tail");
    }
  }
}

// Each point's weights, over all bones of its mesh.
void expectWeights(const aiScene& read) {
  for (unsigned m = 0; m < read.mNumMeshes; ++m) {
    const aiMesh& mesh = *read.mMeshes[m];
    if (mesh.mNumBones == 0) continue;
    std::vector<float> sums(mesh.mNumVertices, 0);
    for (unsigned b = 0; b < mesh.mNumBones; ++b) {
      const aiBone& bone = *mesh.mBones[b];
      EXPECT_NE(read.mRootNode->FindNode(bone.mName), nullptr) << bone.mName.C_Str();
      for (unsigned w = 0; w < bone.mNumWeights; ++w) sums[bone.mWeights[w].mVertexId] += bone.mWeights[w].mWeight;
    }
    for (const float sum : sums) EXPECT_NEAR(static_cast<double>(sum), 1, 1e-5);
  }
}

void expectReadAsMade(const ObjectFile& object, const std::string& path) {
  SCOPED_TRACE(path);
  const Translated made = translatedWhole(object, path);
  const Outcome<std::string> bytes = glbOf(made.model);
  ASSERT_TRUE(bytes);
  Assimp::Importer importer;
  const aiScene* const read = importer.ReadFileFromMemory(bytes->data(), bytes->size(), 0, "glb");
  ASSERT_NE(read, nullptr) << importer.GetErrorString();
  EXPECT_EQ(read->mNumMeshes, made.model.meshes.size());
  Scene scene{LayoutOptions{}};
  for (Item* item : scene.addObject(object, path)) makeBonesOfSkelegons(scene, *item);
  expectBones(*read, scene);
  expectWeights(*read);
}

TEST(GltfReadByAssimp, HasTheBonesOfTheShippedRigs) {
  expectReadAsMade(makeDemoRig(), "lizard.lwo");
  expectReadAsMade(makeJapaneseRig(), "rig.lwo");
}

class GltfOfSamplesReadByAssimp : public OnSamples {};

TEST_F(GltfOfSamplesReadByAssimp, HasTheirBonesAndWeights) {
  for (const char* const folder : {"rigs", "meshes"}) {
    for (const std::string& path : sampleObjects(folder)) {
      if (const Outcome<ObjectFile> object = readObject(path)) expectReadAsMade(*object, path);
    }
  }
}

}  // namespace
}  // namespace standin::gltf

#else

TEST(GltfReadByAssimp, HasTheBonesOfTheShippedRigs) { GTEST_SKIP() << "libassimp-dev is not installed"; }

#endif
