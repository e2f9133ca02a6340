#include "standin/layout/scene_report.h"

#include <algorithm>

#include "standin/layout/number_text.h"

namespace standin {
namespace {

// Deeper bones are shown at this depth, so that a long chain stays readable.
constexpr std::size_t kDeepestIndent = 12;

std::string vectorText(const Vec3& v) { return numberText(v[0]) + " " + numberText(v[1]) + " " + numberText(v[2]); }

std::string degreesText(const Vec3& v) {
  const double unit = 180 / kPi;
  return numberText(v[0] * unit, 2) + " " + numberText(v[1] * unit, 2) + " " + numberText(v[2] * unit, 2);
}

std::string changesText(const Scene& scene, const Item& item) {
  std::string text;
  for (const Setting& setting : changedSettings(scene, item))
    text += (text.empty() ? "" : "; ") + setting.name + " " + setting.value;
  return text.empty() ? text : "  [" + text + "]";
}

std::string line(std::size_t depth, const std::string& text) {
  return std::string(2 * std::min(depth, kDeepestIndent), ' ') + text + '\n';
}

struct Branch {
  const Item* bone;
  std::size_t depth;
};

// In the order of the bones of the object, the first to be shown last.
void pushBelow(std::vector<Branch>& open, const Item& object, const Item* above, std::size_t depth) {
  std::vector<const Item*> bones;
  for (const Item* child : above->children) {
    if (child->owner == &object) bones.push_back(child);
  }
  std::sort(bones.begin(), bones.end(), [](const Item* a, const Item* b) { return a->serial > b->serial; });
  for (const Item* bone : bones) open.push_back({bone, depth});
}

std::string boneLine(const Scene& scene, const Branch& branch, bool parentShown) {
  const Item& bone = *branch.bone;
  std::string text = scene.nameOf(bone) + "  (length " + numberText(bone.rest.length) + ")";
  if (!parentShown) text += "  below " + scene.nameOf(*bone.parent);
  return line(branch.depth, text + changesText(scene, bone));
}

// A bone that stands below an item outside the object begins a tree of its own.
std::string bonesText(const Scene& scene, const Item& object) {
  std::vector<Branch> open;
  for (auto bone = object.bones.rbegin(); bone != object.bones.rend(); ++bone) {
    const Item* parent = (*bone)->parent;
    if (parent == nullptr || parent->owner != &object) open.push_back({*bone, 2});
  }
  std::string text;
  while (!open.empty()) {
    const Branch branch = open.back();
    open.pop_back();
    const Item* parent = branch.bone->parent;
    text += boneLine(scene, branch, branch.depth > 2 || parent == nullptr || parent == &object);
    pushBelow(open, object, branch.bone, branch.depth + 1);
  }
  return text;
}

std::string objectText(Scene& scene, Item& object, double time) {
  std::string text = scene.nameOf(object) + "  (bones " + std::to_string(object.bones.size()) + ", at " +
                     vectorText(scene.placement(object, time).position) + ")";
  if (object.parent != nullptr) text += "  below " + scene.nameOf(*object.parent);
  return line(1, text + changesText(scene, object)) + bonesText(scene, object);
}

std::string nullText(Scene& scene, Item& null, double time) {
  std::string text = scene.nameOf(null) + "  at " + vectorText(Scene::motionAt(null, kAxisX, time)) + ", turned " +
                     degreesText(Scene::motionAt(null, kAxisH, time));
  const Vec3 scale = Scene::motionAt(null, kAxisSX, time);
  if (scale != Vec3{1, 1, 1}) text += ", scaled " + vectorText(scale);
  text += ", below " + (null.parent == nullptr ? std::string("nothing") : scene.nameOf(*null.parent));
  return line(1, text + changesText(scene, null));
}

std::string counted(std::size_t count, const std::string& one) {
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

std::string countsText(const SceneCounts& counts) {
  return "Counts: " + counted(counts.objects, "object") + ", " + counted(counts.bones, "bone") + ", " +
         counted(counts.nulls, "null") + ", " + counted(counts.lights, "light") + ", " + counted(counts.cameras, "camera") +
         "; " + counted(counts.changed, "setting") + " differ from a fresh item\n";
}

}  // namespace

SceneCounts countScene(const Scene& scene) {
  SceneCounts counts;
  counts.lights = scene.lights().size();
  counts.cameras = scene.cameras().size();
  for (const Item* object : scene.objects()) {
    ++(object->isNull() ? counts.nulls : counts.objects);
    counts.bones += object->bones.size();
  }
  for (const Item& item : scene.all()) {
    if (item.alive) counts.changed += changedSettings(scene, item).size();
  }
  return counts;
}

std::string sceneReport(Scene& scene, double time) {
  std::string objects;
  std::string nulls;
  for (Item* object : scene.objects()) {
    const bool bare = object->isNull() && object->bones.empty();
    (bare ? nulls : objects) += bare ? nullText(scene, *object, time) : objectText(scene, *object, time);
  }
  std::string text = "Objects\n" + objects;
  if (!nulls.empty()) text += "Nulls\n" + nulls;
  for (const auto* list : {&scene.lights(), &scene.cameras()}) {
    if (list->empty()) continue;
    text += list == &scene.lights() ? "Lights\n" : "Cameras\n";
    for (const Item* item : *list) text += line(1, scene.nameOf(*item) + changesText(scene, *item));
  }
  return text + countsText(countScene(scene));
}

}  // namespace standin
