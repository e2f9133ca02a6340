// Questions about parents in Layout: the order of items, and where parenting and recorded rotations leave them.
#include <algorithm>
#include <array>
#include <cmath>

#include "probe/layout_site.h"
#include "probe/units.h"

namespace probe::layout {
namespace {

Items inOrder(const LayoutScene& scene, const Items& wanted) {
  Items found = scene.objects();
  std::erase_if(found, [&](lw::ItemId item) { return !contains(wanted, item); });
  return found;
}

void parent(const LayoutScene& scene, lw::ItemId child, lw::ItemId to) {
  scene.select({child});
  scene.host().mustDo(scene.withItem("ParentItem", to));
}

Answer itemOrder(LayoutSite& site) {
  site.nulls().mustBeAlone();
  const LayoutScene& scene = site.scene;
  const lw::ItemId a = addNull(scene, "VarnelProbeOrderA").null;
  const lw::ItemId b = addNull(scene, "VarnelProbeOrderB").null;
  const lw::ItemId c = addNull(scene, "VarnelProbeOrderC").null;
  parent(scene, c, a);
  const Items now = inOrder(scene, {a, b, c});
  const std::string seen = "of the nulls A, B and C, when C is put below A, the order is " + scene.namesOf(now);
  if (now == Items{a, b, c}) return told("kept", seen);
  return now == Items{a, c, b} ? told("behind-parent", seen) : other(seen);
}

// Where new nulls come below what is selected, both come below the same null, which rests at 0.
lw::ItemId nullBeside(LayoutSite& site, const char* name) {
  site.scene.select({site.nulls().first().null});
  return addNull(site.scene, name).null;
}

Answer parentInPlace(LayoutSite& site) {
  const LayoutScene& scene = site.scene;
  const Vector where{1, 2, 3};
  const Vector offset{10, 20, 40};
  const lw::ItemId child = nullBeside(site, "VarnelProbeChild");
  const lw::ItemId above = nullBeside(site, "VarnelProbeParent");
  scene.setPosition(child, where);
  scene.setPosition(above, offset);
  parent(scene, child, above);
  const Vector now = scene.param(child, lw::kParamWorldPosition);
  const std::string seen = "a null at " + shown(where) + ", put below one at " + shown(offset) + ", is at " + shown(now) +
                           " in the world, with its position " + shown(scene.param(child, lw::kParamPosition));
  if (isNear(now, where)) return told("on", seen);
  return isNear(difference(now, where), offset) ? told("off", seen) : other(seen);
}

// The item of the second layer has a pivot.
Answer childOrigin(LayoutSite& site) {
  const LayoutScene& scene = site.scene;
  const lw::ItemId above = site.rig().second();
  const Vector pivot = scene.param(above, lw::kParamPivot);
  if (isNear(pivot, {})) throw Trouble{"the item of a layer with a pivot has none"};
  const lw::ItemId child = addNull(scene, "VarnelProbeOrigin").null;
  parent(scene, child, above);
  scene.setPosition(child, {});
  const Vector apart = difference(scene.param(child, lw::kParamWorldPosition), scene.param(above, lw::kParamWorldPosition));
  const std::string seen = "a null at position 0 below an item with its pivot at " + shown(pivot) + " is " + shown(apart) +
                           " from that item's place";
  if (isNear(apart, {})) return told("pivot", seen);
  return isNear(apart, difference({}, pivot)) ? told("origin", seen) : other(seen);
}

struct Turned {
  Vector right;
  Vector forward;
};

Turned turned(const LayoutScene& scene, lw::ItemId item) {
  return {scene.param(item, lw::kParamRight), scene.param(item, lw::kParamForward)};
}
bool isTurnedAlike(const Turned& a, const Turned& b) { return isNear(a.right, b.right) && isNear(a.forward, b.forward); }

// As heading and pitch alone turn an item.
Turned headingAndPitch(double heading, double pitch) {
  return {{std::cos(heading), 0, -std::sin(heading)},
          {std::sin(heading) * std::cos(pitch), -std::sin(pitch), std::cos(heading) * std::cos(pitch)}};
}

// A pitch is recorded first, then a heading: turned one after the other they are not what they are when added.
Answer pivotRotation(LayoutSite& site) {
  constexpr double kPitch = 40 * kDegree;
  constexpr double kHeading = 30 * kDegree;
  const LayoutScene& scene = site.scene;
  const lw::ItemId null = addNull(scene, "VarnelProbeTurn").null;
  scene.select({null});
  scene.setMotion(null, "Rotation.P", kPitch);
  scene.host().mustDo("RecordPivotRotation");
  scene.setMotion(null, "Rotation.P", 0);
  scene.setMotion(null, "Rotation.H", kHeading);
  scene.host().mustDo("RefreshNow");
  const Turned before = turned(scene, null);
  scene.host().mustDo("RecordPivotRotation");
  scene.setMotion(null, "Rotation.H", 0);
  scene.host().mustDo("RefreshNow");
  const Turned after = turned(scene, null);
  const std::string seen = "with a pitch of 40 degrees recorded and a heading of 30, forward is " + shown(before.forward) +
                           ", and after the second RecordPivotRotation " + shown(after.forward);
  if (isTurnedAlike(after, before)) return told("orientation-kept", seen);
  return isTurnedAlike(after, headingAndPitch(kHeading, kPitch)) ? told("angles-added", seen) : other(seen);
}

constexpr std::array<Question<LayoutSite>, 4> kParentingQuestions{{
    {"item-order", itemOrder},
    {"parent-in-place", parentInPlace},
    {"child-origin", childOrigin},
    {"pivot-rotation", pivotRotation},
}};

}  // namespace

LayoutQuestions parentingQuestions() { return kParentingQuestions; }

}  // namespace probe::layout
