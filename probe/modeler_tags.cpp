// What the host makes of tags: empty, missing, stored twice.
#include <algorithm>
#include <array>

#include "objectfile/object_file.h"
#include "probe/host_text.h"
#include "probe/mesh_access.h"
#include "probe/modeler_site.h"
#include "probe/modeler_tags.h"

namespace probe {
namespace {

std::optional<std::string> readTag(const ModelerSite& site, const char* skelegon, std::uint32_t type) {
  const MeshEdit edit(site.host, lw::kEditAll);
  return edit.tag(edit.skelegon(skelegon), type);
}

Answer missingTag(ModelerSite& site) {
  const std::optional<std::string> text = readTag(site, kRigRoot, kMissingTag);
  const std::string seen = "a tag that is not there reads as " + shown(text);
  if (!text) return told("null", seen);
  return text->empty() ? told("empty", seen) : other(seen);
}

// The saved file tells where an empty tag and none read alike.
Answer emptyTag(ModelerSite& site) {
  setTag(site.host, kRigTip, "full");
  setTag(site.host, kRigTip, "");
  const std::optional<std::string> text = trialTag(site.host, kRigTip);
  std::string seen = "a tag set to the empty text reads as " + shown(text);
  if (!text) return told("removed", seen);
  if (!text->empty()) return other(seen);
  if (!readTag(site, kRigTip, kMissingTag)) return told("kept", seen);
  const std::optional<std::string> saved = savedTag(site.rig, kRigTip, kTrialTag);
  seen += ", as one that is not there; in the saved file it is " + shown(saved);
  return told(saved ? "kept" : "removed", seen);
}

Answer repeatedTag(ModelerSite& site) {
  const std::optional<std::string> text = readTag(site, kRigRoot, kRigTwiceTag);
  const std::string seen = "of the tags \"first\" and \"last\" of a file " + shown(text) + " is read";
  if (text == kRigTwiceLast) return told("last", seen);
  return text == kRigTwiceFirst ? told("first", seen) : other(seen);
}

constexpr std::array kTagQuestions{
    Question<ModelerSite>{"empty-tag", emptyTag},
    Question<ModelerSite>{"missing-tag", missingTag},
    Question<ModelerSite>{"repeated-tag", repeatedTag},
};

}  // namespace

std::optional<std::string> savedTag(LoadedRig& rig, const std::string& skelegon, std::uint32_t type) {
  rig.save();
  const auto file = standin::readObject(rig.path());
  if (!file) throw Trouble{"the saved rig cannot be read: " + file.why()};
  for (const standin::ObjectLayer& layer : file->layers) {
    for (const standin::PolygonGroup& group : layer.groups) {
      for (const standin::ObjectPolygon& polygon : group.polygons) {
        const std::string* const name = polygon.tag(lw::kTagBone);
        if (name == nullptr || *name != skelegon) continue;
        const std::string* const text = polygon.tag(type);
        return text == nullptr ? std::nullopt : std::optional(*text);
      }
    }
  }
  throw Trouble{"the saved rig has no skelegon " + shown(skelegon)};
}

ModelerQuestions tagQuestions() { return kTagQuestions; }

}  // namespace probe
