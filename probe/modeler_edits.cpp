// What an edit takes, shows and leaves to undo.
#include <array>

#include "probe/host_text.h"
#include "probe/mesh_access.h"
#include "probe/modeler_site.h"

namespace probe {
namespace {

struct NamedCode {
  int code;
  const char* name;
};
constexpr std::array kCodes{NamedCode{lw::kEditNoMemory, "memory"}, NamedCode{lw::kEditBadLayer, "layer"},
                            NamedCode{lw::kEditUserAbort, "abort"}, NamedCode{lw::kEditBadArguments, "arguments"}};
constexpr int kLastDocumentedCode = 6;

// An edit that may change the selection is documented to take nothing else, so the host has to refuse this tag.
Answer refusalCode(ModelerSite& site) {
  const MeshEdit edit(site.host, kSelecting);
  const int code = edit.setTag(edit.skelegon(kRigRoot), kTrialTag, "refused");
  const std::string seen = "a tag set in an edit for selecting was answered with " + std::to_string(code);
  if (code == lw::kEditNoError) return notTold(seen + ", so nothing was refused");
  for (const NamedCode& known : kCodes) {
    if (known.code == code) return told(known.name, seen);
  }
  if (code < 0) return told("negative", seen);
  return code > kLastDocumentedCode ? told("unknown", seen) : other(seen);
}

Answer ownChanges(ModelerSite& site) {
  const MeshEdit edit(site.host, lw::kEditAll);
  const lw::PolygonId root = edit.skelegon(kRigRoot);
  const std::optional<std::string> before = edit.tag(root, kTrialTag);
  if (edit.setTag(root, kTrialTag, "own") != lw::kEditNoError) return notTold("the host refused a tag");
  const std::optional<std::string> within = edit.tag(root, kTrialTag);
  const std::string seen = "a tag set to \"own\" reads as " + shown(within) + " within the edit";
  if (within == "own") return told("seen", seen);
  return within == before ? told("hidden", seen) : other(seen);
}

// The step before the selection is a tag: what one undo takes back tells whether the selection was a step of its own.
Answer selectionUndo(ModelerSite& site) {
  setTag(site.host, kRigRoot, "step");
  select(site.host, kRigLeft, true);
  if (!isSelected(site.host, kRigLeft)) return notTold("the host did not select a polygon");
  site.rig.mustBeInFront();
  site.host.mustDo("undo");
  const bool selectionStays = isSelected(site.host, kRigLeft);
  const bool tagStays = trialTag(site.host, kRigRoot) == "step";
  const std::string seen = std::string("one undo after a tag and a selection ") +
                           (selectionStays ? "left the selection" : "took the selection back") +
                           (tagStays ? " and left the tag" : " and took the tag back");
  if (selectionStays) select(site.host, kRigLeft, false);
  if (selectionStays != tagStays) return told(tagStays ? "step" : "none", seen);
  return other(seen);
}

constexpr std::array kEditQuestions{
    Question<ModelerSite>{"refusal-code", refusalCode},
    Question<ModelerSite>{"own-changes", ownChanges},
    Question<ModelerSite>{"selection-undo", selectionUndo},
};

}  // namespace

ModelerQuestions editQuestions() { return kEditQuestions; }

}  // namespace probe
