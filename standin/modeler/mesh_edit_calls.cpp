// The functions of an open mesh edit.
#include <algorithm>
#include <utility>

#include "standin/core/gap_slots.h"
#include "standin/modeler/mesh_edit.h"
#include "standin/modeler/session.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::MeshEditOp> = "MeshEditOp";

namespace {

// Stands at the head of every function of an edit.
class EditCall : public ModelerCall {
 public:
  EditCall(const char* function, lw::EditId state) : ModelerCall(function), edits_(find(state)) {
    if (edits_ != nullptr) edits_->callBegins();
  }

  // Also where the host refuses such a call on principle, not by way of trial.
  bool refused() const { return ModelerCall::refused() || (edits_ != nullptr && edits_->refusesQuestions()); }
  int refusal() const { return modelerSession()->options.refusalCode; }

  // Null, with a fault, when the state is not that of the open edit. A refused call still knows its edit.
  MeshEdits* edits() const { return edits_; }

  // The polygon, flagged as deleted or not; null, with a fault, for anything that is not a polygon of the edited object.
  MeshPolygon* polygon(lw::PolygonId id) const {
    const Handles::Element* element = modelerSession()->handles.find(id);
    if (!belongs(element, id == nullptr, "polygon")) return nullptr;
    const MeshPolygon& found = edits_->object()->polygon(id);
    if (found.gone && !modelerSession()->options.scansDeliverDeleted) {
      fault("was given a polygon that was deleted");
      return nullptr;
    }
    return const_cast<MeshPolygon*>(&found);
  }

  // As polygon(), but a polygon that is flagged as deleted is a fault too: it is for functions that change something.
  MeshPolygon* changeablePolygon(lw::PolygonId id) const {
    MeshPolygon* found = polygon(id);
    if (found != nullptr && (found->deleted || found->gone)) {
      fault("was given a polygon that is flagged as deleted");
      return nullptr;
    }
    return found;
  }

  const MeshPoint* point(lw::PointId id) const {
    const Handles::Element* element = modelerSession()->handles.find(id);
    if (!belongs(element, id == nullptr, "point")) return nullptr;
    return &edits_->object()->points()[element->place];
  }

 private:
  MeshEdits* find(lw::EditId state) const {
    ModelerSession* session = modelerSession();
    if (session == nullptr) return nullptr;
    if (session->edits.isCurrent(state)) return &session->edits;
    fault(session->edits.wasCurrent(state) ? "was used on an edit that is done" : "was given something that is no edit");
    return nullptr;
  }

  bool belongs(const Handles::Element* element, bool isNull, const char* kind) const {
    if (isNull) {
      fault(std::string("was given no ") + kind);
    } else if (element == nullptr) {
      fault(std::string("was given something that is no ") + kind);
    } else if (element->object == nullptr) {
      fault(std::string("was given a ") + kind + " of an object that is closed");
    } else if (element->object != edits_->object()) {
      fault(std::string("was given a ") + kind + " of another object");
    } else {
      return true;
    }
    return false;
  }

  MeshEdits* edits_;
};

// --- ending --------------------------------------------------------------------------------------------------------------

void done(lw::EditId state, int error, int after) {
  const EditCall call("MeshEditOp::done", state);
  MeshEdits* edits = call.edits();
  if (edits == nullptr) return;
  if (edits->scans > 0) call.fault("ended the edit within a scan");
  if (after != 0) call.fault("was given selection flags, which no tool does");
  // The one way in which this call can fail: nothing of the edit is kept.
  edits->end(call.refused() ? call.refusal() : error);
}

// --- scans ---------------------------------------------------------------------------------------------------------------

// Empty when the call cannot scan; the answer is in `result` then.
std::vector<const MeshPolygon*> scanned(const EditCall& call, bool hasCallback, int layers, int& result) {
  result = lw::kEditBadArguments;
  if (call.edits() == nullptr) return {};
  if (!hasCallback) {
    call.fault("was given no callback");
    return {};
  }
  result = call.refusal();
  if (call.refused()) return {};
  result = lw::kEditNoError;
  const ModelerObject* object = call.edits()->object();
  if (object == nullptr) return {};
  const auto chosen = object->chosen(layers);
  if (!chosen) {
    call.fault("was asked for the unknown layer choice " + std::to_string(layers));
    result = lw::kEditBadLayer;
    return {};
  }
  call.edits()->scanned(layers);
  const ModelerOptions& options = modelerSession()->options;
  std::vector<const MeshPolygon*> polygons = object->scan(*chosen, options.scansDeliverDeleted);
  if (options.newestFirst) std::reverse(polygons.begin(), polygons.end());
  return polygons;
}

int fastPolyScan(lw::EditId state, lw::FastPolygonScan callback, void* user, int layers, int selectedOnly) {
  const EditCall call("MeshEditOp::fastPolyScan", state);
  int result = 0;
  std::vector<const MeshPolygon*> polygons = scanned(call, callback != nullptr, layers, result);
  if (result != lw::kEditNoError) return result;
  MeshEdits& edits = *call.edits();
  if (selectedOnly != 0) {
    std::erase_if(polygons, [&](const MeshPolygon* polygon) { return !edits.countsAsSelected(*polygon); });
  }
  ++edits.scans;
  for (const MeshPolygon* polygon : polygons) {
    // Until a call answers with something else than 0. That answer is the scan's.
    const std::optional<int> answer = callModule("polygon scan callback", [&] { return callback(user, polygon->id); });
    result = answer.value_or(lw::kEditUserAbort);
    if (result != 0 || !edits.isOpen()) break;
  }
  --edits.scans;
  return result;
}

// --- queries -------------------------------------------------------------------------------------------------------------

lw::EDPolygonInfo* polyInfo(lw::EditId state, lw::PolygonId id) {
  const EditCall call("MeshEditOp::polyInfo", state);
  if (call.edits() == nullptr) return nullptr;
  const MeshPolygon* polygon = call.polygon(id);
  if (polygon == nullptr || call.refused()) return nullptr;
  MeshEdits& edits = *call.edits();
  lw::EDPolygonInfo& record = edits.polygonRecord;
  edits.recordPoints.expire();
  edits.recordSurface.expire();
  scribble(record);
  record = {};
  record.pol = polygon->id;
  record.layer = polygon->layer;
  record.flags = (edits.countsAsSelected(*polygon) ? lw::kElementSelected : 0) |
                 (polygon->deleted || polygon->gone ? lw::kElementDeleted : 0);
  record.numPnts = static_cast<int>(polygon->points.size());
  record.points = edits.recordPoints.lend(polygon->points);
  const std::string* name = polygon->content.tag(kTagSurface);
  record.surface = edits.recordSurface.lend(name == nullptr ? "Default" : std::string_view(*name));
  record.type = polygon->type;
  record.typeFlags = polygon->content.flags;
  return &record;
}

void pointPos(lw::EditId state, lw::PointId id, double out[3]) {
  const EditCall call("MeshEditOp::pointPos", state);
  if (out == nullptr) {
    call.fault("was given no room for the position");
    return;
  }
  std::fill(out, out + 3, 0.0);
  if (call.edits() == nullptr) return;
  const MeshPoint* point = call.point(id);
  if (point != nullptr && !call.refused()) std::copy(point->position.begin(), point->position.end(), out);
}

std::uint32_t polyType(lw::EditId state, lw::PolygonId id) {
  const EditCall call("MeshEditOp::polyType", state);
  if (call.edits() == nullptr) return 0;
  const MeshPolygon* polygon = call.polygon(id);
  return polygon == nullptr || call.refused() ? 0 : polygon->type;
}

int polyPoints(lw::EditId state, lw::PolygonId id, const lw::PointId** out) {
  const EditCall call("MeshEditOp::polyPoints", state);
  if (out == nullptr) {
    call.fault("was given no room for the points");
    return 0;
  }
  *out = nullptr;
  if (call.edits() == nullptr) return 0;
  const MeshPolygon* polygon = call.polygon(id);
  if (polygon == nullptr || call.refused()) return 0;
  call.edits()->lentPoints.expire();
  *out = call.edits()->lentPoints.lend(polygon->points);
  return static_cast<int>(polygon->points.size());
}

// The newest text that the open edit has set, when edits show their own changes.
const TagChange* ownChange(const MeshEdits& edits, const MeshPolygon& polygon, std::uint32_t type) {
  if (!modelerSession()->options.editsShowOwnChanges) return nullptr;
  const TagChange* newest = nullptr;
  for (const MeshChange& change : edits.buffered()) {
    const auto* tag = std::get_if<TagChange>(&change);
    if (tag != nullptr && tag->polygon == &polygon && tag->type == type) newest = tag;
  }
  return newest;
}

const char* polyTag(lw::EditId state, lw::PolygonId id, std::uint32_t type) {
  const EditCall call("MeshEditOp::polyTag", state);
  if (call.edits() == nullptr) return nullptr;
  const MeshPolygon* polygon = call.polygon(id);
  if (polygon == nullptr || call.refused()) return nullptr;
  const std::string* stored = polygon->content.tag(type);
  if (const TagChange* own = ownChange(*call.edits(), *polygon, type)) stored = own->after ? &*own->after : nullptr;
  LentText& text = modelerSession()->text;
  if (stored != nullptr) return text.lend(*stored);
  return modelerSession()->options.missingTagIsEmpty ? text.lend("") : nullptr;
}

// --- changes -------------------------------------------------------------------------------------------------------------

int polTag(lw::EditId state, lw::PolygonId id, std::uint32_t type, const char* text) {
  // Copied before anything else: it may be a text that the host itself lent.
  std::optional<std::string> given = text == nullptr ? std::nullopt : std::optional<std::string>(text);
  const EditCall call(kSetsATag, state);
  if (call.edits() == nullptr) return lw::kEditBadArguments;
  if (call.edits()->maySelect()) {
    call.fault(kTagWhileSelecting);
    return call.refusal();
  }
  MeshPolygon* polygon = call.changeablePolygon(id);
  if (polygon == nullptr) return lw::kEditBadArguments;
  if (!given && type == kTagSurface) {
    call.fault("was asked to remove a surface, which every polygon has");
    return lw::kEditBadSurface;
  }
  if (call.refused()) return call.refusal();
  if (given && given->empty() && modelerSession()->options.emptyTagRemoves) given.reset();
  call.edits()->buffer(TagChange{polygon, type, std::nullopt, std::move(given)});
  return lw::kEditNoError;
}

int polSelect(lw::EditId state, lw::PolygonId id, int on) {
  const EditCall call("MeshEditOp::polSelect", state);
  if (call.edits() == nullptr) return lw::kEditBadArguments;
  if (!call.edits()->maySelect()) {
    call.fault("was used in an edit that was not begun for selecting");
    return call.refusal();
  }
  MeshPolygon* polygon = call.changeablePolygon(id);
  if (polygon == nullptr) return lw::kEditBadArguments;
  if (call.refused()) return call.refusal();
  // Nothing outside the foreground can be selected; the call is no mistake, but does nothing.
  if (call.edits()->object()->layer(polygon->layer)->foreground) {
    call.edits()->buffer(SelectionChange{polygon, false, on != 0});
  }
  return lw::kEditNoError;
}

}  // namespace

lw::MeshEditOp meshEditFunctions() {
  lw::MeshEditOp op{};
  op.done = &done;
  STANDIN_FILL_GAP(op, 24);
  op.polyInfo = &polyInfo;
  STANDIN_FILL_GAP(op, 72);
  op.polTag = &polTag;
  STANDIN_FILL_GAP(op, 184);
  op.polyTag = &polyTag;
  STANDIN_FILL_GAP(op, 240);
  op.polSelect = &polSelect;
  STANDIN_FILL_GAP(op, 256);
  op.pointPos = &pointPos;
  STANDIN_FILL_GAP(op, 360);
  op.polyType = &polyType;
  op.polyPoints = &polyPoints;
  STANDIN_FILL_GAP(op, 384);
  op.fastPolyScan = &fastPolyScan;
  STANDIN_FILL_GAP(op, 456);
  return op;
}

}  // namespace standin
