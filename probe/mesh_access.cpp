#include "probe/mesh_access.h"

#include <cstddef>

#include "host/lwtool2_errors.h"
#include "probe/host_text.h"

namespace probe {
namespace {

// Far more than the rig has: a scan that does not end has to end here.
constexpr std::size_t kMostPolygons = 10000;

int notePolygon(void* user, lw::PolygonId polygon) {
  constexpr int kEnough = 1;
  return lw::guarded(
      [&] {
        auto& found = *static_cast<std::vector<lw::PolygonId>*>(user);
        if (polygon == nullptr) return kEnough;
        found.push_back(polygon);
        return found.size() < kMostPolygons ? 0 : kEnough;
      },
      kEnough);
}

void mustTake(int code, const char* what) {
  if (code != lw::kEditNoError) throw Trouble{std::string("the host refused ") + what + " with " + std::to_string(code)};
}

}  // namespace

MeshEdit::MeshEdit(const Host& host, int mode) : op_(host.editBegin == nullptr ? nullptr : host.editBegin(0, 0, 0, mode)) {
  if (op_ == nullptr) throw Trouble{"the host begins no edit"};
  if (isWhole(*op_)) return;
  end(lw::kEditUserAbort);
  throw Trouble{"a function is missing in the host's edit"};
}

MeshEdit::~MeshEdit() { end(lw::kEditUserAbort); }

void MeshEdit::finish() { end(lw::kEditNoError); }

void MeshEdit::end(int error) {
  if (op_ == nullptr) return;
  lw::MeshEditOp& op = *op_;
  op_ = nullptr;
  if (op.done != nullptr) op.done(op.state, error, 0);
}

std::vector<lw::PolygonId> MeshEdit::scan(int layers) const {
  std::vector<lw::PolygonId> found;
  const int code = op_->fastPolyScan(op_->state, notePolygon, &found, layers, 0);
  if (found.size() >= kMostPolygons) throw Trouble{"a scan of the rig does not end"};
  mustTake(code, "a scan");
  return found;
}

lw::PolygonId MeshEdit::skelegon(const std::string& name) const {
  for (const lw::PolygonId polygon : scan(lw::kLayersAll)) {
    if (tag(polygon, lw::kTagBone) == name) return polygon;
  }
  throw Trouble{"the loaded rig has no skelegon " + shown(name)};
}

const lw::EDPolygonInfo& MeshEdit::record(lw::PolygonId polygon) const {
  const lw::EDPolygonInfo* const found = op_->polyInfo(op_->state, polygon);
  if (found == nullptr) throw Trouble{"the host gives no record of a polygon"};
  return *found;
}

std::optional<std::string> MeshEdit::tag(lw::PolygonId polygon, std::uint32_t type) const {
  return copied(op_->polyTag(op_->state, polygon, type));
}

int MeshEdit::setTag(lw::PolygonId polygon, std::uint32_t type, const std::string& text) const {
  return op_->polTag(op_->state, polygon, type, text.c_str());
}

int MeshEdit::select(lw::PolygonId polygon, bool on) const { return op_->polSelect(op_->state, polygon, on ? 1 : 0); }

void setTag(const Host& host, const std::string& skelegon, const std::string& text) {
  MeshEdit edit(host, lw::kEditAll);
  mustTake(edit.setTag(edit.skelegon(skelegon), kTrialTag, text), "a tag");
  edit.finish();
}

void select(const Host& host, const std::string& skelegon, bool on) {
  MeshEdit edit(host, kSelecting);
  mustTake(edit.select(edit.skelegon(skelegon), on), "a selection");
  edit.finish();
}

std::optional<std::string> trialTag(const Host& host, const std::string& skelegon) {
  const MeshEdit edit(host, lw::kEditAll);
  return edit.tag(edit.skelegon(skelegon), kTrialTag);
}

bool isSelected(const Host& host, const std::string& skelegon) {
  const MeshEdit edit(host, lw::kEditDirect);
  return edit.isSelected(edit.skelegon(skelegon));
}

// What fails here cannot be helped: the rig is closed in the end.
StepBack::~StepBack() {
  lw::guarded([&] { host_.command("undo"); });
}

}  // namespace probe
