// A small mesh in the stand-in Modeler, used through the tables that a module gets.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "objectfile/rig_builder.h"
#include "standin/modeler/modeler_host.h"

namespace standin {

// Layer 0 "Body": a face, Hips, Chest, Head and a weight map "Head". Layer 1 "Tail": Tail_01 and Tail_02.
inline ObjectFile twoLayerRig() {
  RigBuilder rig;
  rig.layer(0, "Body");
  rig.face({rig.point({0, 0, 0}), rig.point({1, 0, 0}), rig.point({0, 1, 0})}, "Skin");
  rig.weightMap("Head", {{0, 1.0F}});
  const auto spine = rig.chain({"Hips", "Chest", "Head"}, {{0, 0, 0}, {0, 1, 0}, {0, 2, 0}, {0, 3, 0}});
  rig.settings(spine[0], {{13, "2"}});
  rig.layer(1, "Tail", {0, 0, 10});
  rig.chain({"Tail_01", "Tail_02"}, {{0, 0, 0}, {0, 0, 1}, {0, 0, 2}});
  return rig.take();
}

class ModelerTest : public testing::Test {
 protected:
  ModelerTest()
      : host(std::make_unique<ModelerHost>()),
        object(&host->add(twoLayerRig(), "rig.lwo")),
        record(std::make_unique<ActivationRecord>("")) {}

  lw::LWModCommand& local() { return *record->get(); }
  lw::MeshEditOp* begin(int mode) { return local().editBegin2(0, 0, 0, mode); }

  // An edit from begin to done, with the calls between.
  void edit(int mode, const std::function<void(lw::MeshEditOp&)>& calls, int error = 0, int after = 0) {
    lw::MeshEditOp* op = begin(mode);
    ASSERT_NE(op, nullptr) << witness().report();
    calls(*op);
    op->done(op->state, error, after);
  }

  lw::PolygonId id(std::string_view name) const { return object->skelegon(name)->id; }

  static std::string lastFault() { return witness().faults().empty() ? std::string() : witness().faults().back().what; }
  static std::size_t faultCount() { return witness().faults().size(); }

  std::unique_ptr<ModelerHost> host;
  ModelerObject* object;
  std::unique_ptr<ActivationRecord> record;
};

// The polygons that a fast scan delivers, by name; "face" for what is no skelegon.
inline std::vector<std::string> scannedNames(lw::MeshEditOp& op, const ModelerObject& object, int layers,
                                             int selectedOnly = 0) {
  std::vector<lw::PolygonId> ids;
  const auto collect = [](void* user, lw::PolygonId polygon) {
    static_cast<std::vector<lw::PolygonId>*>(user)->push_back(polygon);
    return 0;
  };
  EXPECT_EQ(op.fastPolyScan(op.state, collect, &ids, layers, selectedOnly), 0);
  std::vector<std::string> names;
  for (const lw::PolygonId id : ids) {
    const MeshPolygon& polygon = object.polygon(id);
    names.push_back(polygon.isSkelegon() ? polygon.tag(lw::kTagBone) : "face");
  }
  return names;
}

using Names = std::vector<std::string>;

}  // namespace standin
