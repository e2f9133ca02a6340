// What is seen beside the open questions, for people.
#include <algorithm>
#include <array>

#include "probe/host_text.h"
#include "probe/mesh_access.h"
#include "probe/modeler_site.h"
#include "probe/modeler_tags.h"

namespace probe {
namespace {

std::string layerNumberBase(ModelerSite& site) {
  const MeshEdit edit(site.host, lw::kEditAll);
  const int edited = edit.op().layerNum;
  const int first = edit.record(edit.skelegon(kRigRoot)).layer;
  const int second = edit.record(edit.skelegon(kRigOther)).layer;
  return "records call the first layer " + std::to_string(first) + " and the second " + std::to_string(second) +
         ", the edit calls the first " + std::to_string(edited);
}

std::string allLayersChoice(ModelerSite& site) {
  const auto count = [&] { return MeshEdit(site.host, lw::kEditAll).scan(lw::kLayersAll).size(); };
  const std::size_t alone = count();
  const RigFile file("varnel-probe-again.lwo");
  LoadedRig second(site.host, file);
  const std::size_t together = count();
  second.close();
  return "a scan of all layers delivers " + std::to_string(alone) + " polygons of one object, and " +
         std::to_string(together) + " with a second object of as many";
}

std::string undoSteps(ModelerSite& site) {
  {
    MeshEdit edit(site.host, lw::kEditAll);
    for (const char* const name : {kRigLeft, kRigRight}) {
      // Without a change of its own the undo would take back another step.
      if (edit.setTag(edit.skelegon(name), kTrialTag, "two") != lw::kEditNoError) throw Trouble{"the host refused a tag"};
    }
    edit.finish();
  }
  site.rig.mustBeInFront();
  site.host.mustDo("undo");
  const int left =
      static_cast<int>(trialTag(site.host, kRigLeft) == "two") + static_cast<int>(trialTag(site.host, kRigRight) == "two");
  return "one undo left " + std::to_string(left) + " of the two tags of one edit";
}

std::string droppedEdit(ModelerSite& site) {
  const std::optional<std::string> before = trialTag(site.host, kRigOther);
  {
    const MeshEdit edit(site.host, lw::kEditAll);
    if (edit.setTag(edit.skelegon(kRigOther), kTrialTag, "dropped") != lw::kEditNoError)
      throw Trouble{"the host refused a tag"};
  }
  const std::optional<std::string> after = trialTag(site.host, kRigOther);
  return "a tag that read as " + shown(before) + " reads as " + shown(after) +
         " after an edit that set it to \"dropped\" was ended with an error";
}

std::string backgroundSelection(ModelerSite& site) {
  int code = 0;
  {
    MeshEdit edit(site.host, kSelecting);
    code = edit.select(edit.skelegon(kRigOther), true);
    edit.finish();
  }
  const bool isSelected = probe::isSelected(site.host, kRigOther);
  if (isSelected) select(site.host, kRigOther, false);
  return "a polygon of a background layer is " + std::string(isSelected ? "selected" : "not selected") +
         " by an edit, which answered " + std::to_string(code);
}

std::string emptyTagInFile(ModelerSite& site) {
  setTag(site.host, kRigTip, "");
  return "a tag set to the empty text is " + shown(savedTag(site.rig, kRigTip, kTrialTag)) + " in the saved file";
}

constexpr std::array kFigures{
    ModelerFigure{"layer numbers", layerNumberBase},
    ModelerFigure{"all layers", allLayersChoice},
    ModelerFigure{"steps of one edit", undoSteps},
    ModelerFigure{"dropped edits", droppedEdit},
    ModelerFigure{"selection in the background", backgroundSelection},
    ModelerFigure{"empty tags in files", emptyTagInFile},
};

}  // namespace

std::span<const ModelerFigure> modelerFigures() { return kFigures; }

}  // namespace probe
