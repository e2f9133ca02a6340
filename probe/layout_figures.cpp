// What is seen of Layout for people to read: names, bones and the encoding of commands.
#include <array>
#include <optional>

#include "host/platform.h"
#include "objectfile/rig_builder.h"
#include "probe/layout_site.h"

namespace probe::layout {
namespace {

// Which code pages have these differs; every system has one of them.
constexpr std::array<const char*, 4> kLetters{"\xE6\x97\xA5\xE6\x9C\xAC", "\xC3\xA9", "\xD0\x96", "\xCE\xA9"};

std::string bytes(const std::string& text) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string shownBytes;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    shownBytes += {shownBytes.empty() ? '\0' : ' ', kDigits[byte >> 4], kDigits[byte & 0xF]};
  }
  std::erase(shownBytes, '\0');
  return shownBytes;
}

std::string encoding(LayoutSite& site) {
  for (const std::string letters : kLetters) {
    const std::optional<std::string> narrow = platform::exactNarrow(letters);
    if (!narrow) continue;
    const std::string name = "VarnelProbe" + letters;
    const Items before = site.scene.objects();
    site.scene.host().mustDo("AddNull " + name);
    const Items came = added(before, site.scene.objects());
    std::string seen = "AddNull with the letters \"" + letters + "\" as the bytes " + bytes(*narrow) + " made ";
    return seen + site.scene.namesOf(came);
  }
  return "the system's code page has none of the letters that are tried";
}

std::string layers(LayoutSite& site) {
  std::string seen;
  for (lw::ItemId item : site.rig().items()) {
    seen += (seen.empty() ? "" : ", ") + site.scene.namesOf({item}) + " holds layer " +
            std::to_string(site.scene.objectInfo().layerLoaded(item));
  }
  return "the items of varnel-probe.lwo, with a layer \"" + std::string(kRigLayer) + "\" and one without a name: " + seen;
}

// One layer with two skelegons: one with two names, which a file can have, and one without any.
standin::ObjectFile doubtfulFile() {
  standin::RigBuilder builder;
  builder.layer(0, "Named");
  builder.root("ProbeFirst", {0, 0, 0}, {0, 1, 0});
  builder.between(builder.point({1, 0, 0}), builder.point({1, 1, 0}), std::nullopt);
  standin::ObjectFile file = builder.take();
  file.layers.front().group(lw::kTypeBone).polygons.front().tags.push_back({lw::kTagBone, "ProbeLast"});
  return file;
}

std::string oneLayer(LayoutSite& site) {
  const LayoutScene& scene = site.scene;
  const standin::TemporaryFolder folder;
  const std::string path = folder.file("varnel-one.lwo");
  if (const auto failure = standin::writeObject(doubtfulFile(), path)) throw Trouble{failure->text};
  const Items before = scene.objects();
  scene.host().mustDo("LoadObject " + path);
  const Items came = added(before, scene.objects());
  std::string seen = "the item of varnel-one.lwo, with the one layer \"Named\": " + scene.namesOf(came);
  if (came.empty()) return seen;
  scene.select({came.front()});
  scene.confirmed("SkelegonsToBones");
  return seen + ", layer " + std::to_string(scene.objectInfo().layerLoaded(came.front())) +
         "; its skelegons, one with the names ProbeFirst and ProbeLast and one without, became " +
         scene.namesOf(scene.bonesOf(came.front()));
}

std::string weightMapOf(const LayoutScene& scene, lw::ItemId bone) {
  const std::string map = textOfHost(scene.boneInfo().weightMap(bone));
  return map.empty() ? "" : ", weight map \"" + map + "\"";
}

std::string bones(LayoutSite& site) {
  std::string seen;
  for (lw::ItemId bone : site.rig().bones()) {
    seen += (seen.empty() ? "" : "; ") + site.scene.namesOf({bone}) + " below " +
            site.scene.namesOf({site.scene.items().parent(bone)}) + ", at " +
            shown(site.scene.param(bone, lw::kParamPosition)) + ", colour " +
            std::to_string(site.scene.interfaceInfo().itemColor(bone)) + weightMapOf(site.scene, bone);
  }
  return seen.empty() ? "SkelegonsToBones made none" : seen;
}

std::string switchesNow(LayoutSite& site) {
  const unsigned flags = site.scene.interfaceInfo().generalFlags;
  const auto word = [&](unsigned bit) { return (flags & bit) != 0 ? "on" : "off"; };
  return std::string("parent in place ") + word(lw::kGeneralParentInPlace) + ", IK " + word(lw::kGeneralIK) +
         ", motion controllers " + word(lw::kGeneralMotionControllers);
}

// EnableDeformations is not sent: nothing shows its state, so that it could not be left as it was.
std::string motionControllers(LayoutSite& site) {
  return switchAnswer(site.scene, "EnableMC", lw::kGeneralMotionControllers).seen;
}

struct FigureRow {
  const char* name;
  std::string (*tell)(LayoutSite&);
};

constexpr std::array<FigureRow, 6> kFigures{{
    {"switches of the program", switchesNow},
    {"EnableMC", motionControllers},
    {"items of a file with two layers", layers},
    {"item and bones of a file with one layer", oneLayer},
    {"bones of skelegons", bones},
    {"encoding of commands", encoding},
}};

}  // namespace

void tellLayoutFigures(LayoutSite& site, Facts& facts) {
  for (const FigureRow& row : kFigures) {
    facts.figure(row.name, sentenceOf([&] { return row.tell(site); }));
  }
}

}  // namespace probe::layout
