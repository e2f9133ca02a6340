#include "gltf/write_glb.h"

#include <bit>
#include <cstring>
#include <fstream>  // which the library forgets when it has no files to read
#include <sstream>
#include <string_view>
#include <utility>

// Neither pictures nor files: it only has to turn its model into bytes.
#define TINYGLTF_IMPLEMENTATION
#define TINYGLTF_NO_STB_IMAGE
#define TINYGLTF_NO_STB_IMAGE_WRITE
#define TINYGLTF_NO_EXTERNAL_IMAGE
#define TINYGLTF_NO_FS
#include <tiny_gltf.h>

#include "gltf/axes.h"

namespace standin::gltf {
namespace {

static_assert(std::endian::native == std::endian::little, "numbers are copied as they are, and glTF's are little-endian");

using Json = nlohmann::json;
using Value = tinygltf::Value;

int indexOf(std::size_t place) { return static_cast<int>(place); }

Value valueOf(const Json& json);

Value valueOfObject(const Json& json) {
  Value::Object object;
  for (const auto& [key, value] : json.items()) object[key] = valueOf(value);
  return Value(std::move(object));
}

// The kinds that a setting can be.
Value valueOf(const Json& json) {
  if (json.is_boolean()) return Value(json.get<bool>());
  if (json.is_number_integer()) return Value(json.get<int>());
  if (json.is_number()) return Value(json.get<double>());
  if (json.is_string()) return Value(json.get<std::string>());
  return valueOfObject(json);
}

Value valueOf(const Vec3& v) { return Value(Value::Array{Value(v[0]), Value(v[1]), Value(v[2])}); }

struct Extras {
  Value operator()(const std::monostate&) const { return {}; }

  Value operator()(const LayerFacts& layer) const {
    Value::Object extras;
    extras["layer"] = Value(layer.number);
    extras["name"] = Value(layer.name);
    extras["pivot"] = valueOf(layer.pivot);
    extras["hidden"] = Value(layer.isHidden);
    return Value(std::move(extras));
  }

  Value operator()(const BoneFacts& bone) const {
    Value::Object extras;
    extras["length"] = Value(bone.length);
    extras["colour"] = Value(bone.colour);
    if (!bone.weightMap.empty()) extras["weightMap"] = Value(bone.weightMap);
    extras["skelegon"] = valueOf(Json::parse(bone.skelegon));
    return Value(std::move(extras));
  }
};

// The library writes null for an object without members, such as the settings of a skelegon that stores none. What belongs
// there is put in its place, as long as it was, so that no size changes. Texts have a backslash before each of their quotes,
// so that none is mistaken for it; the numbers after the text are left alone.
std::string withEmptySettings(std::string glb) {
  constexpr std::string_view kWritten = R"("settings":null)";
  constexpr std::string_view kMeant = R"("settings":{}  )";
  static_assert(kWritten.size() == kMeant.size());
  constexpr std::size_t kHeads = 20;  // of the file and of the text
  std::uint32_t size = 0;
  std::memcpy(&size, glb.data() + 12, sizeof(size));
  const std::size_t end = kHeads + size;
  for (std::size_t at = glb.find(kWritten, kHeads); at < end; at = glb.find(kWritten, at)) {
    glb.replace(at, kMeant.size(), kMeant);
  }
  return glb;
}

// What a list of numbers in the file is.
struct Kind {
  int component;
  int type;
  int target;  // 0 for none
};

constexpr Kind kPositions = {TINYGLTF_COMPONENT_TYPE_FLOAT, TINYGLTF_TYPE_VEC3, TINYGLTF_TARGET_ARRAY_BUFFER};
constexpr Kind kJoints = {TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT, TINYGLTF_TYPE_VEC4, TINYGLTF_TARGET_ARRAY_BUFFER};
constexpr Kind kWeights = {TINYGLTF_COMPONENT_TYPE_FLOAT, TINYGLTF_TYPE_VEC4, TINYGLTF_TARGET_ARRAY_BUFFER};
constexpr Kind kCorners = {TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT, TINYGLTF_TYPE_SCALAR, TINYGLTF_TARGET_ELEMENT_ARRAY_BUFFER};
constexpr Kind kMatrices = {TINYGLTF_COMPONENT_TYPE_FLOAT, TINYGLTF_TYPE_MAT4, 0};

constexpr std::size_t kPositionSize = 3 * sizeof(float);
constexpr std::size_t kJointsSize = kMostJointsOfAPoint * (sizeof(std::uint16_t) + sizeof(float));
constexpr std::size_t kTriangleSize = 3 * sizeof(std::uint32_t);
constexpr std::size_t kMatrixSize = 16 * sizeof(float);

class Writer {
 public:
  explicit Writer(const Model& model) : from_(model) {
    to_.asset.version = "2.0";
    to_.asset.generator = "Varnel " + std::to_string(VARNEL_VERSION_MAJOR) + "." + std::to_string(VARNEL_VERSION_MINOR);
    for (const Mesh& mesh : model.meshes) addMesh(mesh);
    for (const Skin& skin : model.skins) addSkin(skin);
    addNodes();
    if (!numbers_.empty()) to_.buffers.emplace_back().data = std::move(numbers_);
  }

  std::string bytes() {
    std::ostringstream stream;
    tinygltf::TinyGLTF().WriteGltfSceneToStream(&to_, stream, false, true);
    return withEmptySettings(std::move(stream).str());
  }

 private:
  // The place of the list's accessor. All sizes are multiples of four, as glTF wants its lists to begin.
  template <class Number>
  int add(const std::vector<Number>& list, std::size_t count, const Kind& kind) {
    tinygltf::BufferView view;
    view.buffer = 0;
    view.byteOffset = numbers_.size();
    view.byteLength = list.size() * sizeof(Number);
    view.target = kind.target;
    numbers_.resize(view.byteOffset + view.byteLength);
    std::memcpy(numbers_.data() + view.byteOffset, list.data(), view.byteLength);
    tinygltf::Accessor accessor;
    accessor.bufferView = indexOf(to_.bufferViews.size());
    accessor.componentType = kind.component;
    accessor.type = kind.type;
    accessor.count = count;
    to_.bufferViews.push_back(std::move(view));
    to_.accessors.push_back(std::move(accessor));
    return indexOf(to_.accessors.size() - 1);
  }

  int addPoints(const std::vector<FilePoint>& points) {
    std::vector<float> list;
    FilePoint least = points.front();
    FilePoint greatest = points.front();
    for (const FilePoint& point : points) {
      list.insert(list.end(), point.begin(), point.end());
      for (std::size_t i = 0; i < point.size(); ++i) {
        least[i] = std::min(least[i], point[i]);
        greatest[i] = std::max(greatest[i], point[i]);
      }
    }
    const int place = add(list, points.size(), kPositions);
    to_.accessors.back().minValues.assign(least.begin(), least.end());
    to_.accessors.back().maxValues.assign(greatest.begin(), greatest.end());
    return place;
  }

  void addMesh(const Mesh& mesh) {
    tinygltf::Primitive primitive;
    primitive.mode = TINYGLTF_MODE_TRIANGLES;
    primitive.attributes["POSITION"] = addPoints(mesh.points);
    std::vector<std::uint32_t> corners;
    for (const auto& triangle : mesh.triangles) corners.insert(corners.end(), triangle.begin(), triangle.end());
    primitive.indices = add(corners, corners.size(), kCorners);
    if (!mesh.joints.empty()) addJoints(mesh, primitive);
    tinygltf::Mesh made;
    made.name = mesh.name;
    made.primitives.push_back(std::move(primitive));
    to_.meshes.push_back(std::move(made));
  }

  void addJoints(const Mesh& mesh, tinygltf::Primitive& primitive) {
    std::vector<std::uint16_t> joints;
    std::vector<float> weights;
    for (const PointJoints& point : mesh.joints) {
      joints.insert(joints.end(), point.joints.begin(), point.joints.end());
      weights.insert(weights.end(), point.weights.begin(), point.weights.end());
    }
    primitive.attributes["JOINTS_0"] = add(joints, mesh.joints.size(), kJoints);
    primitive.attributes["WEIGHTS_0"] = add(weights, mesh.joints.size(), kWeights);
  }

  // Matrices stand by columns, like those of the host.
  void addSkin(const Skin& skin) {
    tinygltf::Skin made;
    made.name = skin.name;
    std::vector<float> matrices;
    for (const Skin::Joint& joint : skin.joints) {
      made.joints.push_back(indexOf(joint.node));
      for (const Vec3& column : joint.inverseBind.axes.columns) addColumn(matrices, column, 0);
      addColumn(matrices, joint.inverseBind.position, 1);
    }
    made.inverseBindMatrices = add(matrices, skin.joints.size(), kMatrices);
    to_.skins.push_back(std::move(made));
  }

  static void addColumn(std::vector<float>& matrices, const Vec3& column, float last) {
    for (const double part : column) matrices.push_back(static_cast<float>(part));
    matrices.push_back(last);
  }

  void addNodes() {
    tinygltf::Scene scene;
    to_.nodes.resize(from_.nodes.size());
    for (std::size_t i = 0; i < from_.nodes.size(); ++i) {
      const Node& node = from_.nodes[i];
      fill(to_.nodes[i], node);
      (node.parent ? to_.nodes[*node.parent].children : scene.nodes).push_back(indexOf(i));
    }
    to_.scenes.push_back(std::move(scene));
    to_.defaultScene = 0;
  }

  void fill(tinygltf::Node& made, const Node& node) const {
    const Placement place = node.parent ? combined(inverseOf(from_.nodes[*node.parent].place), node.place) : node.place;
    const auto rotation = quaternionOf(place.axes);
    made.name = node.name;
    if (place.position != Vec3{}) made.translation.assign(place.position.begin(), place.position.end());
    if (rotation[3] != 1) made.rotation.assign(rotation.begin(), rotation.end());
    if (node.mesh) made.mesh = indexOf(*node.mesh);
    if (node.skin) made.skin = indexOf(*node.skin);
    made.extras = std::visit(Extras{}, node.facts);
  }

  const Model& from_;
  tinygltf::Model to_;
  std::vector<unsigned char> numbers_;
};

Failure tooLarge() { return Failure{"the file would be larger than the 4 GB that a GLB file can be"}; }

}  // namespace

std::uint64_t sizeOfNumbers(const Model& model) {
  std::uint64_t size = 0;
  for (const Mesh& mesh : model.meshes) {
    size += mesh.points.size() * kPositionSize + mesh.joints.size() * kJointsSize + mesh.triangles.size() * kTriangleSize;
  }
  for (const Skin& skin : model.skins) size += skin.joints.size() * kMatrixSize;
  return size;
}

Outcome<std::string> glbOf(const Model& model, std::uint64_t greatest) {
  if (sizeOfNumbers(model) > greatest) return tooLarge();
  std::string bytes = Writer(model).bytes();
  if (bytes.size() > greatest) return tooLarge();
  return bytes;
}

}  // namespace standin::gltf
