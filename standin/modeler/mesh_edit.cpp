#include "standin/modeler/mesh_edit.h"

#include <algorithm>
#include <array>
#include <utility>

#include "standin/modeler/session.h"

namespace standin {
namespace {

constexpr std::uint64_t kEditBase = 0x5300'0000'0000;
constexpr unsigned kEditSessionShift = 32;
constexpr std::uint64_t kEditStep = 16;

}  // namespace

lw::EditId MeshEdits::stateOf(std::size_t number) const {
  const std::uint64_t value = kEditBase | static_cast<std::uint64_t>(session_ & 0xFFU) << kEditSessionShift;
  return reinterpret_cast<lw::EditId>(value + number * kEditStep);  // NOLINT(performance-no-int-to-ptr)
}

bool MeshEdits::isCurrent(lw::EditId state) const { return open_ && state == stateOf(records_.size()); }

bool MeshEdits::wasCurrent(lw::EditId state) const {
  return reinterpret_cast<std::uintptr_t>(state) > reinterpret_cast<std::uintptr_t>(stateOf(0)) &&
         reinterpret_cast<std::uintptr_t>(state) <= reinterpret_cast<std::uintptr_t>(stateOf(records_.size()));
}

lw::MeshEditOp* MeshEdits::begin(ModelerObject* object, int mode) {
  static const lw::MeshEditOp pattern = meshEditFunctions();
  open_ = true;
  object_ = object;
  mode_ = mode;
  changes_.clear();
  records_.push_back({mode, false, 0, 0, {}});
  // More than one, so that a record kept from an edit long done does not come to mean a newer one; they outlive the session.
  static std::array<lw::MeshEditOp, 64> operations{};
  lw::MeshEditOp& operation = operations[records_.size() % operations.size()];
  operation = pattern;
  operation.state = stateOf(records_.size());
  operation.layerNum = object == nullptr ? 0 : object->primaryLayer();
  return &operation;
}

void MeshEdits::buffer(MeshChange change) {
  ++records_.back().changes;
  changes_.push_back(std::move(change));
}

bool MeshEdits::countsAsSelected(const MeshPolygon& polygon) const {
  if ((mode_ & ~lw::kEditSelecting) == lw::kEditAll) return true;
  bool selected = polygon.selected;
  if (modelerSession()->options.editsShowOwnChanges) {
    for (const MeshChange& change : changes_) {
      const auto* own = std::get_if<SelectionChange>(&change);
      if (own != nullptr && own->polygon == &polygon) selected = own->after;
    }
  }
  return selected;
}

void MeshEdits::end(int error) {
  EditRecord& record = records_.back();
  record.done = true;
  record.error = error;
  if (error == lw::kEditNoError && object_ != nullptr) {
    object_->perform(std::move(changes_), !maySelect() || modelerSession()->options.selectionIsStep);
  }
  changes_.clear();
  open_ = false;
  object_ = nullptr;
  spoilRecords();
}

void MeshEdits::spoilRecords() {
  scribble(polygonRecord);
  recordPoints.expire();
  recordSurface.expire();
  lentPoints.expire();
}

void MeshEdits::callBegins() {
  if (modelerSession()->options.recordsEndAtAnyCall) spoilRecords();
}

bool MeshEdits::refusesQuestions() const { return scans > 0 && modelerSession()->options.scansRefuseQuestions; }

lw::MeshEditOp* beginMeshEdit(int pointBytes, int edgeBytes, int polygonBytes, int mode) {
  const ModelerCall call("LWModCommand::editBegin2");
  ModelerSession* session = call.session();
  if (session == nullptr) return nullptr;
  if (session->edits.isOpen()) {
    call.fault("was called while an edit is open");
    return nullptr;
  }
  if (pointBytes != 0 || edgeBytes != 0 || polygonBytes != 0) {
    call.fault("was asked for element buffers, which this host does not keep");
    return nullptr;
  }
  const int selection = mode & ~lw::kEditSelecting;
  if (selection != lw::kEditAll && selection != lw::kEditDirect) {
    call.fault("was called with the unknown mode " + std::to_string(mode));
    return nullptr;
  }
  if (session->current() == nullptr && !session->options.editWithoutObject) return nullptr;
  return session->edits.begin(session->current(), mode);
}

}  // namespace standin
