// Questions about what SkelegonsToBones makes.
#include <algorithm>
#include <array>

#include "probe/layout_site.h"

namespace probe::layout {
namespace {

std::vector<std::string> bonesOfFirstLayer(LayoutRig& rig) {
  std::vector<std::string> names = rig.boneNames();
  std::erase(names, kRigOther);
  return names;
}

std::string joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text.empty() ? "none" : text;
}

LayoutRig& rigWithBones(LayoutSite& site) {
  LayoutRig& rig = site.rig();
  if (rig.bones().empty()) throw Trouble{"SkelegonsToBones made no bones"};
  return rig;
}

Answer boneOrder(LayoutSite& site) {
  using Names = std::vector<std::string>;
  const Names names = bonesOfFirstLayer(rigWithBones(site));
  const std::string seen = "skelegons Root, Left, Right and Tip (below Left) become the bones " + joined(names);
  if (names == Names{kRigRoot, kRigLeft, kRigRight, kRigTip}) return told("file", seen);
  if (names == Names{kRigRoot, kRigLeft, kRigTip, kRigRight}) return told("tree", seen);
  return names == Names{kRigTip, kRigRight, kRigLeft, kRigRoot} ? told("reversed", seen) : other(seen);
}

Answer bonesOf(LayoutSite& site) {
  const std::vector<std::string>& names = rigWithBones(site).boneNames();
  const bool isOfFile = std::find(names.begin(), names.end(), kRigOther) != names.end();
  return told(isOfFile ? "file" : "layer", "the object of the first of two layers got the bones " + joined(names));
}

Answer boneColour(LayoutSite& site) {
  const LayoutRig& rig = rigWithBones(site);
  const int plain = site.scene.interfaceInfo().itemColor(rig.bone(kRigRight));
  const int coloured = site.scene.interfaceInfo().itemColor(rig.bone(kRigLeft));
  const std::string seen = std::string("the bone of a skelegon of colour ") + kRigColour + " has colour " +
                           std::to_string(coloured) + ", that of one without " + std::to_string(plain);
  return told(coloured == plain ? "fresh" : "skelegon", seen);
}

Answer skelegonsAfter(LayoutSite& site) {
  const std::size_t first = rigWithBones(site).bones().size();
  const std::size_t second = site.rig().bonesAfterSecond().size();
  const std::string seen =
      "SkelegonsToBones made " + std::to_string(first) + " bones; after a second one there are " + std::to_string(second);
  if (second == first) return told("gone", seen);
  return second == 2 * first ? told("stay", seen) : other(seen);
}

Answer noSkelegons(LayoutSite& site) {
  site.scene.select({site.nulls().first().null});
  const int answer = site.scene.confirmed("SkelegonsToBones");
  return told(answer == 0 ? "refused" : "accepted", "SkelegonsToBones on a null answers " + std::to_string(answer));
}

constexpr std::array<Question<LayoutSite>, 5> kSkelegonQuestions{{
    {"bone-order", boneOrder},
    {"bones-of", bonesOf},
    {"bone-colour", boneColour},
    {"skelegons-after", skelegonsAfter},
    {"no-skelegons", noSkelegons},
}};

}  // namespace

LayoutQuestions skelegonQuestions() { return kSkelegonQuestions; }

}  // namespace probe::layout
