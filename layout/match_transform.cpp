#include <cmath>

#include "host/lwtool2_globals.h"
#include "layout/ST_bone_set_params.h"
#include "layout/placement.h"

namespace lwp {
namespace {

Vector3 parameter(lw::ItemId item, int param, double time) {
  // Room for the host's largest parameter, should it ever write more than three.
  double values[16] = {};
  lw::itemInfo().param(item, param, time, values);
  return {values[0], values[1], values[2]};
}

Axes axesOf(lw::ItemId item, double time) {
  return {parameter(item, lw::kParamRight, time), parameter(item, lw::kParamUp, time),
          parameter(item, lw::kParamForward, time)};
}

bool isFinite(const Vector3& v) { return std::isfinite(v[0]) && std::isfinite(v[1]) && std::isfinite(v[2]); }

}  // namespace

bool MatchTransform(lw::ItemId item, lw::ItemId reference, bool matchRotation, bool matchScale) {
  lw::RefreshTimeInfo();
  const double time = lw::timeInfo().time;
  const lw::ItemId parent = lw::itemInfo().parent(item);
  const Axes parentAxes = parent == nullptr ? kUnitAxes : axesOf(parent, time);
  const std::optional<Axes> toParent = inverseOf(parentAxes);
  if (!toParent) return false;

  // The item's place in the world is its position taken along the parent's axes plus a fixed offset. The offset follows from
  // where the item is now, so neither the parent's pivot nor the item's own need be known.
  const Vector3 positionNow = parameter(item, lw::kParamPosition, time);
  const Vector3 worldNow = parameter(item, lw::kParamWorldPosition, time);
  const Vector3 worldWanted = parameter(reference, lw::kParamWorldPosition, time);
  const Vector3 offsetNow = along(parentAxes, positionNow);
  Vector3 wanted{};
  for (std::size_t i = 0; i < 3; ++i) wanted[i] = worldWanted[i] - (worldNow[i] - offsetNow[i]);
  const Vector3 position = along(*toParent, wanted);

  Axes relative = axesOf(reference, time);
  for (Vector3& axis : relative) axis = along(*toParent, axis);
  const Turn turn = splitAxes(relative, lw::itemInfo().rotationOrder(item));
  if (!isFinite(position) || !isFinite(turn.rotation) || !isFinite(turn.scale)) return false;

  const Vector3 rotation = matchRotation ? turn.rotation : Vector3{0, 0, 0};
  const Vector3 scale = matchScale ? turn.scale : Vector3{1, 1, 1};
  // What the host refuses of these is thrown.
  lw::SetPosition(item, position[0], position[1], position[2]);
  lw::SetRotation(item, rotation[0], rotation[1], rotation[2]);
  lw::SetScale(item, scale[0], scale[1], scale[2]);
  return true;
}

}  // namespace lwp
