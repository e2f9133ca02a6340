#include "standin/layout/scene_report.h"

#include <algorithm>
#include <map>
#include <utility>

#include "standin/layout/number_text.h"
#include "standin/panels/folded_text.h"

namespace standin {
namespace {

// Deeper bones are shown at this depth, so that a long chain stays readable.
constexpr std::size_t kDeepestIndent = 12;

std::string vectorText(const Vec3& v) { return numberText(v[0]) + " " + numberText(v[1]) + " " + numberText(v[2]); }

std::string degreesText(const Vec3& v) {
  const double unit = 180 / kPi;
  return numberText(v[0] * unit, 2) + " " + numberText(v[1] * unit, 2) + " " + numberText(v[2] * unit, 2);
}

std::string counted(std::size_t count, const std::string& one) {
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

std::string line(std::size_t depth, const std::string& text) {
  const std::size_t indent = 2 * std::min(depth, kDeepestIndent);
  return folded(std::string(indent, ' ') + text, kReportColumns, indent + 4) + '\n';
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

std::string countsText(const Scene& scene, std::size_t changed) {
  std::size_t nulls = 0;
  std::size_t bones = 0;
  for (const Item* object : scene.objects()) {
    nulls += object->isNull() ? 1 : 0;
    bones += object->bones.size();
  }
  return line(0, "Counts: " + counted(scene.objects().size() - nulls, "object") + ", " + counted(bones, "bone") + ", " +
                     counted(nulls, "null") + ", " + counted(scene.lights().size(), "light") + ", " +
                     counted(scene.cameras().size(), "camera") + "; " + counted(changed, "setting") +
                     " differ from a fresh item");
}

// The report in the making.
class Report {
 public:
  Report(Scene& scene, SceneReportForm form, double time) : scene_(scene), form_(form), time_(time) {}

  std::string text();

 private:
  std::string itemText(std::size_t depth, const std::string& text, const Item& item);
  std::string boneText(const Branch& branch, bool parentShown);
  std::string bonesText(const Item& object);
  std::string objectText(Item& object);
  std::string nullText(Item& null);
  std::string plainItems(const char* heading, const std::vector<Item*>& items);
  std::string sumsText() const;

  Scene& scene_;
  SceneReportForm form_;
  double time_;
  std::size_t changed_ = 0;                   // settings, of all items
  std::map<std::string, std::size_t> items_;  // by the name of a setting: those that it differs on
};

// The item's line, and what differs on it.
std::string Report::itemText(std::size_t depth, const std::string& text, const Item& item) {
  const std::vector<Setting> changed = changedSettings(scene_, item);
  changed_ += changed.size();
  for (const Setting& setting : changed) ++items_[setting.name];
  if (form_ == SceneReportForm::Short) {
    return line(depth, changed.empty() ? text : text + "  [" + counted(changed.size(), "setting") + "]");
  }
  std::string all = line(depth, text);
  for (const Setting& setting : changed) all += line(depth + 2, "- " + setting.name + ": " + setting.value);
  return all;
}

std::string Report::boneText(const Branch& branch, bool parentShown) {
  const Item& bone = *branch.bone;
  std::string text = scene_.nameOf(bone) + "  (length " + numberText(bone.rest.length) + ")";
  if (!parentShown) text += "  below " + scene_.nameOf(*bone.parent);
  return itemText(branch.depth, text, bone);
}

// A bone that stands below an item outside the object begins a tree of its own.
std::string Report::bonesText(const Item& object) {
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
    text += boneText(branch, branch.depth > 2 || parent == nullptr || parent == &object);
    pushBelow(open, object, branch.bone, branch.depth + 1);
  }
  return text;
}

std::string Report::objectText(Item& object) {
  std::string text = scene_.nameOf(object) + "  (bones " + std::to_string(object.bones.size()) + ", at " +
                     vectorText(scene_.placement(object, time_).position) + ")";
  if (object.parent != nullptr) text += "  below " + scene_.nameOf(*object.parent);
  return itemText(1, text, object) + bonesText(object);
}

std::string Report::nullText(Item& null) {
  std::string text = scene_.nameOf(null) + "  at " + vectorText(Scene::motionAt(null, kAxisX, time_)) + ", turned " +
                     degreesText(Scene::motionAt(null, kAxisH, time_));
  const Vec3 scale = Scene::motionAt(null, kAxisSX, time_);
  if (scale != Vec3{1, 1, 1}) text += ", scaled " + vectorText(scale);
  text += ", below " + (null.parent == nullptr ? std::string("nothing") : scene_.nameOf(*null.parent));
  return itemText(1, text, null);
}

std::string Report::plainItems(const char* heading, const std::vector<Item*>& items) {
  std::string text;
  for (const Item* item : items) text += itemText(1, scene_.nameOf(*item), *item);
  return items.empty() ? text : heading + ('\n' + text);
}

// One setting a line, those of most items first.
std::string Report::sumsText() const {
  if (form_ == SceneReportForm::Full || items_.empty()) return {};
  std::vector<std::pair<std::string, std::size_t>> sums(items_.begin(), items_.end());
  std::stable_sort(sums.begin(), sums.end(), [](const auto& a, const auto& b) { return a.second > b.second; });
  std::string text = "Settings that differ from a fresh item\n";
  for (const auto& [name, items] : sums) text += line(1, name + ": on " + counted(items, "item"));
  return text;
}

std::string Report::text() {
  std::string objects;
  std::string nulls;
  for (Item* object : scene_.objects()) {
    const bool bare = object->isNull() && object->bones.empty();
    (bare ? nulls : objects) += bare ? nullText(*object) : objectText(*object);
  }
  std::string text = "Objects\n" + objects;
  if (!nulls.empty()) text += "Nulls\n" + nulls;
  text += plainItems("Lights", scene_.lights()) + plainItems("Cameras", scene_.cameras()) + sumsText();
  return text + countsText(scene_, changed_);
}

}  // namespace

std::string sceneReport(Scene& scene, SceneReportForm form, double time) { return Report(scene, form, time).text(); }

}  // namespace standin
