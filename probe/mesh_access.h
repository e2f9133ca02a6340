// The mesh of Modeler's current object as the probe reaches it: one edit at a time, ended whatever happens.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "interface/lightwave.h"
#include "probe/host_access.h"

namespace probe {

inline constexpr std::uint32_t kTrialTag = lw::fourCharacters('V', 'P', 'R', '1');    // what questions set
inline constexpr std::uint32_t kMissingTag = lw::fourCharacters('V', 'P', 'R', '0');  // what no polygon has

inline constexpr int kSelecting = lw::kEditSelecting | lw::kEditDirect;

class MeshEdit {
 public:
  // Throws Trouble when the host begins none.
  MeshEdit(const Host& host, int mode);
  // Drops the changes, unless finish() was called.
  ~MeshEdit();
  MeshEdit(const MeshEdit&) = delete;
  MeshEdit& operator=(const MeshEdit&) = delete;

  // Ends the edit. Its changes take effect.
  void finish();

  // All of these throw Trouble where the host refuses.
  std::vector<lw::PolygonId> scan(int layers) const;
  // The first skelegon of that name in any layer.
  lw::PolygonId skelegon(const std::string& name) const;
  // Of the host's one record, which the next question may overwrite.
  const lw::EDPolygonInfo& record(lw::PolygonId polygon) const;
  // Whether the user has selected it; only in an edit of the mode kEditDirect.
  bool isSelected(lw::PolygonId polygon) const { return (record(polygon).flags & lw::kElementSelected) != 0; }

  std::optional<std::string> tag(lw::PolygonId polygon, std::uint32_t type) const;
  // The host's code; 0 when it took the change.
  int setTag(lw::PolygonId polygon, std::uint32_t type, const std::string& text) const;
  int select(lw::PolygonId polygon, bool on) const;

  lw::MeshEditOp& op() const { return *op_; }

 private:
  void end(int error);

  lw::MeshEditOp* op_;
};

// An edit of its own for one change; throws Trouble where the host refuses it.
void setTag(const Host& host, const std::string& skelegon, const std::string& text);
void select(const Host& host, const std::string& skelegon, bool on);
// What an edit of its own tells.
std::optional<std::string> trialTag(const Host& host, const std::string& skelegon);
bool isSelected(const Host& host, const std::string& skelegon);

// Takes the last step back when it goes.
class StepBack {
 public:
  explicit StepBack(const Host& host) : host_(host) {}
  ~StepBack();
  StepBack(const StepBack&) = delete;
  StepBack& operator=(const StepBack&) = delete;

 private:
  const Host& host_;
};

}  // namespace probe
