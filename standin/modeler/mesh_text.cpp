#include "standin/modeler/mesh_text.h"

#include <algorithm>
#include <set>

namespace standin {
namespace {

std::string tagsOf(const MeshPolygon& skelegon) {
  std::string text;
  for (const PolygonTag& tag : skelegon.content.tags) {
    if (tag.type == kTagSurface || tag.type == lw::kTagBone) continue;
    text += "  " + tagTypeName(tag.type) + "=\"" + tag.text + "\"";
  }
  return text;
}

class TreeWriter {
 public:
  TreeWriter(std::vector<const MeshPolygon*> skelegons, bool withTags)
      : skelegons_(std::move(skelegons)), withTags_(withTags) {}

  std::string write() {
    for (const MeshPolygon* skelegon : skelegons_) {
      if (!hasParent(*skelegon)) writeOne(*skelegon, 1);
    }
    // What hangs in a ring has no first one.
    for (const MeshPolygon* skelegon : skelegons_) writeOne(*skelegon, 1);
    return text_;
  }

 private:
  static bool isChild(const MeshPolygon& parent, const MeshPolygon& child) {
    return parent.points.size() == 2 && child.points.size() == 2 && parent.points[1] == child.points[0];
  }

  bool hasParent(const MeshPolygon& skelegon) const {
    return std::any_of(skelegons_.begin(), skelegons_.end(),
                       [&](const MeshPolygon* other) { return other != &skelegon && isChild(*other, skelegon); });
  }

  void writeOne(const MeshPolygon& skelegon, std::size_t depth) {
    if (!written_.insert(&skelegon).second) return;
    const std::string* name = skelegon.content.tag(lw::kTagBone);
    text_ += std::string(depth * 2, ' ') + (name == nullptr ? "(no name)" : "\"" + *name + "\"");
    if (skelegon.selected) text_ += " *";
    if (withTags_) text_ += tagsOf(skelegon);
    text_ += '\n';
    for (const MeshPolygon* other : skelegons_) {
      if (isChild(skelegon, *other)) writeOne(*other, depth + 1);
    }
  }

  std::vector<const MeshPolygon*> skelegons_;
  bool withTags_;
  std::set<const MeshPolygon*> written_;
  std::string text_;
};

}  // namespace

std::string tagTypeName(std::uint32_t type) {
  constexpr std::uint32_t kSettingMask = 0xFFFFFF00;
  if ((type & kSettingMask) == settingTag(0)) return "sg1+" + std::to_string(type & 0xFFU);
  return chunkName(type);
}

std::string skelegonsAsText(const ModelerObject& object, bool withTags) {
  std::string text;
  const std::vector<const MeshPolygon*> all = object.skelegons();
  for (const MeshLayer& layer : object.layers()) {
    std::vector<const MeshPolygon*> own;
    std::copy_if(all.begin(), all.end(), std::back_inserter(own),
                 [&](const MeshPolygon* skelegon) { return skelegon->layer == layer.number; });
    text += "layer " + std::to_string(layer.number + 1) + (layer.name.empty() ? "" : " \"" + layer.name + "\"");
    text += layer.foreground ? ", foreground\n" : "\n";
    text += TreeWriter(std::move(own), withTags).write();
  }
  return text;
}

}  // namespace standin
