// The renamer's edits and scans, which fail without a word.
#include <utility>

#include "host/lwtool2_eval.h"
#include "host/lwtool2_globals.h"
#include "host/lwtool2_mesh.h"
#include "host/polygon_scan.h"

namespace lw {
namespace {

PolygonIds collectInRecord(CEditRecord& record, int layers, FlagRule rule) {
  const MeshEditOp& edit = *record.edit;
  const CSkelegonWalk walk(edit, layers);
  record.error = walk.error();
  if (record.error != kEditNoError) return {};  // half of the skelegons would pass for all of them
  PolygonIds kept;
  walk.forEach([&](PolygonId polygon) {
    const EDPolygonInfo* const info = edit.polyInfo(edit.state, polygon);
    if (info != nullptr && rule.fits(info->flags)) kept.push_back(polygon);
    return true;
  });
  return kept;
}

}  // namespace

CEditRecord::~CEditRecord() {
  if (error == kEditNoError) error = kEditUserAbort;  // left open by an exception: nothing of it is wanted
  EndEditInRecord(*this);
}

MeshEditOp* BeginEditInRecord(CEditRecord& record, int mode) {
  const ModelerFunctions& functions = modelerFunctions();
  record.edit = functions.editBegin == nullptr ? nullptr : functions.editBegin(0, 0, 0, mode);
  record.error = kEditNoError;
  // Filled in Modeler, the functions hold no command interface: the user is told only where there is one.
  if (record.edit == nullptr && functions.commandInterface != nullptr) {
    EvalQuiet("StatusMsg {1.0} Error in editBegin()!");
  }
  return record.edit;
}

void EndEditInRecord(CEditRecord& record) {
  MeshEditOp* const edit = std::exchange(record.edit, nullptr);
  const int error = std::exchange(record.error, kEditNoError);
  if (edit != nullptr) edit->done(edit->state, error, 0);
}

PolygonIds CollectSelectedInEdit(CEditRecord& record) {
  PolygonIds polygons = collectInRecord(record, kLayersForeground, kSelectedNotDeleted);
  EndEditInRecord(record);
  return polygons;
}

PolygonIds CollectAllInEdit(CEditRecord& record) { return collectInRecord(record, kLayersAll, kNotDeleted); }

}  // namespace lw
