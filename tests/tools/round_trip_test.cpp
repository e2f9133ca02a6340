// Every setting on its whole way: changed in the panel by a person, stored in the object, saved, converted, on the bone.
#include <map>

#include "skelegon/slot_table.h"
#include "standin/core/comma_locale.h"
#include "standin/layout/arrived.h"
#include "standin/layout/layout_host.h"
#include "tests/tools/conversion_fixture.h"
#include "tests/tools/convert_saved.h"
#include "tests/tools/property_panel_fixture.h"

namespace varnel::test {
namespace {

using standin::Arrival;
using standin::StoredBySlot;

constexpr const char* kSkelegon = "Tail_02";

std::vector<Slot> shownSlots() {
  std::vector<Slot> slots;
  for (const skg::SlotRow& row : skg::kSlotTable) {
    if (row.kind != skg::SlotKind::Reserved) slots.push_back(row.slot);
  }
  return slots;
}

// What must be stored as well for a setting to be sent.
StoredBySlot companionsOf(int slot) {
  const auto between = [slot](int first, int last) { return slot >= first && slot <= last; };
  if (slot == 29) return {{28, "Head"}};
  if (slot == 30) return {{28, "Head"}, {29, "1"}};
  if (between(34, 35)) return {{33, "1"}};
  if (slot == 37 || slot == 39) return {{36, "1"}};
  if (slot == 41 || slot == 43) return {{40, "1"}};
  if (slot == 45 || slot == 47) return {{slot - 1, "1"}};
  if (slot == 48) return {{26, "1"}};
  if (slot == 49) return {{26, "1"}, {48, "1"}};
  if (slot == 56 || slot == 61 || slot == 62 || between(66, 68)) return {{55, "goal"}};
  if (slot == 58) return {{57, "3"}};
  if (between(63, 65)) return {{55, "goal"}, {62, "1"}};
  if (between(69, 71)) return {{100, "4"}};
  if (slot == 75) return {{73, "position"}};
  if (slot == 94) return {{92, "rotation"}};
  if (slot == 112) return {{110, "scale"}};
  constexpr int kAxisFirst[] = {76, 81, 86, 95, 100, 105, 113, 118, 123};
  constexpr int kAxisFollow[] = {159, 162, 165, 168, 171, 174, 177, 180, 183};
  for (int axis = 0; axis < 9; ++axis) {
    if (between(kAxisFirst[axis] + 2, kAxisFirst[axis] + 3)) return {{kAxisFirst[axis] + 1, "1"}};
    if (slot == kAxisFirst[axis] + 4) return {{kAxisFirst[axis], "3"}};
    const int gate = axis == 8 ? 118 : kAxisFirst[axis];
    if (between(kAxisFollow[axis], kAxisFollow[axis] + 2)) return {{gate, "6"}};
  }
  constexpr int kHelperName[] = {52, 53, 55, 73, 92, 110, 142};
  if (between(130, 135)) return {{kHelperName[slot - 130], "helper"}};
  if (between(136, 141)) return {{kHelperName[slot - 136], "helper"}};
  if (slot == 143) return {{142, "helper"}};
  if (between(145, 151)) return {{kHelperName[slot - 145], "helper"}};
  if (between(152, 158)) return {{kHelperName[slot - 152], "helper"}};
  return {};
}

std::string nameFor(int slot) {
  if (slot == 12 || slot == 51) return "rig:Body";
  if (slot >= 130 && slot <= 135) return "Tail_01";
  return slot == 28 ? "Spine" : "linked";
}

class RoundTrip : public testing::TestWithParam<Slot> {
 protected:
  int slot() const { return static_cast<int>(skg::indexOf(GetParam())); }

  // In Modeler: lays the companions ready, changes the one setting in the panel, saves.
  void changeAndSave(const std::string& path) {
    PropertySession session;
    for (const auto& [companion, text] : companionsOf(slot())) {
      session.store(kSkelegon, skg::SlotTagId(static_cast<std::size_t>(companion)), text);
    }
    session.openWith({kSkelegon});
    change(session);
    EXPECT_NE(session.stored(kSkelegon, GetParam()), std::nullopt);
    const auto failure = session.host.saveAs(path);
    EXPECT_FALSE(failure.has_value());
  }

  void change(PropertySession& session) const {
    session.show(GetParam());
    standin::Control* const control = session.control(GetParam());
    switch (mst::controlTable()[mst::controlOf(GetParam()).value()].kind) {
      case mst::HostControl::Bool:
      case mst::HostControl::BoolButton: EXPECT_TRUE(person::toggle(control)); break;
      case mst::HostControl::Popup:
        EXPECT_TRUE(person::choose(control, (control->integer + 1) % static_cast<int>(control->items().size())));
        break;
      case mst::HostControl::Edit: EXPECT_TRUE(person::type(control, nameFor(slot()))); break;
      case mst::HostControl::MiniSlider: EXPECT_TRUE(person::enter(control, control->integer + 3)); break;
      case mst::HostControl::Percent: EXPECT_TRUE(person::enter(control, 42)); break;
      case mst::HostControl::Angle: EXPECT_TRUE(person::enter(control, 30)); break;
      case mst::HostControl::Distance: EXPECT_TRUE(person::enter(control, 0.25)); break;
      case mst::HostControl::Float: EXPECT_TRUE(person::enter(control, control->real + 2)); break;
      default: FAIL() << "a kind of control that shows no setting";
    }
  }

  void bringTheChangeToTheBone();

  // What the saved file holds of the skelegon, by slot.
  StoredBySlot storedIn(const std::string& path, const std::string& name) const {
    StoredBySlot stored;
    const auto file = standin::readObject(path);
    for (const standin::ObjectLayer& layer : file->layers) {
      for (const standin::PolygonGroup& group : layer.groups) {
        for (const standin::ObjectPolygon& polygon : group.polygons) {
          const std::string* const bone = polygon.tag(lw::kTagBone);
          if (bone == nullptr || *bone != name) continue;
          for (const standin::PolygonTag& tag : polygon.tags) {
            if (tag.type == lw::kTagBoneWeight) stored[28] = tag.text;
            if (tag.type == lw::kTagColour) stored[129] = tag.text;
            if (tag.type >> 8 == 0x736731 && (tag.type & 0xFF) != 129) stored[static_cast<int>(tag.type & 0xFF)] = tag.text;
          }
        }
      }
    }
    return stored;
  }
};

INSTANTIATE_TEST_SUITE_P(Slots, RoundTrip, testing::ValuesIn(shownSlots()), [](const testing::TestParamInfo<Slot>& info) {
  return "Slot" + std::to_string(skg::indexOf(info.param));
});

void RoundTrip::bringTheChangeToTheBone() {
  const standin::TemporaryFolder folder;
  const std::string path = folder.file("rig.lwo");
  changeAndSave(path);
  standin::LayoutHost host;
  convertSaved(host, path);
  const std::string name = GetParam() == Slot::Name ? nameFor(slot()) : kSkelegon;
  const standin::Item* const bone = host.scene().find(name);
  ASSERT_NE(bone, nullptr);
  if (GetParam() == Slot::Name) return;  // the name has arrived
  const StoredBySlot stored = storedIn(path, name);
  ASSERT_EQ(stored.count(slot()), 1u);
  EXPECT_EQ(standin::arrivalOf(host.scene(), *bone, stored, slot()), Arrival::There)
      << "stored \"" << stored.at(slot()) << "\"";
}

TEST_P(RoundTrip, BringsTheChangeToTheBone) { bringTheChangeToTheBone(); }

class RoundTripInACommaLocale : public RoundTrip {
  standin::CommaLocale locale_;
};

// One of each kind of number.
INSTANTIATE_TEST_SUITE_P(Slots, RoundTripInACommaLocale,
                         testing::Values(Slot::LimitBoneNum, Slot::Strength, Slot::RangeMin, Slot::HeadingMin,
                                         Slot::XPositionMin));

TEST_P(RoundTripInACommaLocale, BringsTheChangeToTheBone) { bringTheChangeToTheBone(); }

}  // namespace
}  // namespace varnel::test
