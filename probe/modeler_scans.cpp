// What scans deliver and allow, and how long a record is good.
#include <algorithm>
#include <array>
#include <vector>

#include "host/lwtool2_errors.h"
#include "probe/host_text.h"
#include "probe/mesh_access.h"
#include "probe/modeler_site.h"

namespace probe {
namespace {

using Names = std::vector<std::string>;

// The rig's skelegons, in the order in which a scan of all layers delivers them.
Names scannedNames(const MeshEdit& edit) {
  const Names rig{kRigRoot, kRigLeft, kRigRight, kRigTip, kRigOther};
  Names names;
  for (const lw::PolygonId polygon : edit.scan(lw::kLayersAll)) {
    const std::string name = edit.tag(polygon, lw::kTagBone).value_or("");
    if (std::find(rig.begin(), rig.end(), name) != rig.end()) names.push_back(name);
  }
  return names;
}

Answer scanOrder(ModelerSite& site) {
  const Names oldestFirst{kRigRoot, kRigLeft, kRigRight, kRigTip, kRigOther};
  const Names newestFirst(oldestFirst.rbegin(), oldestFirst.rend());
  const Names names = scannedNames(MeshEdit(site.host, lw::kEditAll));
  std::string seen = "the skelegons of a file came as";
  for (const std::string& name : names) seen += ' ' + name;
  if (names == oldestFirst) return told("layers", seen);
  return names == newestFirst ? told("newest", seen) : other(seen);
}

Answer deletedPolygons(ModelerSite& site) {
  lw::PolygonId victim = nullptr;
  {
    MeshEdit edit(site.host, kSelecting);
    victim = edit.skelegon(kRigRight);
    if (edit.select(victim, true) != lw::kEditNoError) return notTold("the host refused a selection");
    edit.finish();
  }
  if (!isSelected(site.host, kRigRight)) return notTold("the host did not select a polygon");
  site.rig.mustBeInFront();
  site.host.mustDo("delete");
  const StepBack restored(site.host);
  const MeshEdit edit(site.host, lw::kEditAll);
  const std::vector<lw::PolygonId> scanned = edit.scan(lw::kLayersAll);
  if (std::find(scanned.begin(), scanned.end(), victim) == scanned.end()) {
    return told("left-out", "a scan does not deliver a polygon that was deleted");
  }
  const bool isFlagged = (edit.record(victim).flags & lw::kElementDeleted) != 0;
  return isFlagged ? told("flagged", "a scan delivers a polygon that was deleted, flagged so")
                   : other("a scan delivers a polygon that was deleted, without the flag");
}

struct AskingScan {
  lw::MeshEditOp* op;
  lw::PolygonId polygon;
  std::uint32_t type;
};

int askWithin(void* user, lw::PolygonId polygon) {
  constexpr int kEnough = 1;
  lw::guarded([&] {
    auto& scan = *static_cast<AskingScan*>(user);
    if (polygon == nullptr) return;
    scan.polygon = polygon;
    scan.type = scan.op->polyType(scan.op->state, polygon);
  });
  return kEnough;
}

Answer questionsWithin(ModelerSite& site) {
  const MeshEdit edit(site.host, lw::kEditAll);
  lw::MeshEditOp& op = edit.op();
  AskingScan scan{&op, nullptr, 0};
  op.fastPolyScan(op.state, askWithin, &scan, lw::kLayersAll, 0);
  if (scan.polygon == nullptr) return notTold("a scan of the rig delivered no polygon");
  const std::uint32_t after = op.polyType(op.state, scan.polygon);
  if (scan.type == after) return told("answered", "a polygon's type was told within the callback of a scan as after it");
  return scan.type == 0 ? told("refused", "a polygon's type was not told within the callback of a scan, but after it")
                        : other("a polygon's type was told otherwise within the callback of a scan than after it");
}

// The record lies in the host for as long as the edit is open, so it can be read late.
Answer recordLife(ModelerSite& site) {
  const MeshEdit edit(site.host, lw::kEditAll);
  lw::MeshEditOp& op = edit.op();
  const lw::PolygonId left = edit.skelegon(kRigLeft);
  const lw::EDPolygonInfo& record = edit.record(edit.skelegon(kRigRoot));
  const lw::EDPolygonInfo before = record;
  op.polyType(op.state, left);
  const bool isSame = record.pol == before.pol && record.layer == before.layer && record.numPnts == before.numPnts &&
                      record.type == before.type;
  return isSame ? told("next-record", "a polygon's record stayed as it was after another polygon's type was asked for")
                : told("any-call", "a polygon's record had changed after another polygon's type was asked for");
}

constexpr std::array kScanQuestions{
    Question<ModelerSite>{"scan-order", scanOrder},
    Question<ModelerSite>{"deleted-polygons", deletedPolygons},
    Question<ModelerSite>{"scan-questions", questionsWithin},
    Question<ModelerSite>{"record-life", recordLife},
};

}  // namespace

ModelerQuestions scanQuestions() { return kScanQuestions; }

}  // namespace probe
