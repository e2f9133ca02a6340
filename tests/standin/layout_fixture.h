// A session of the stand-in Layout with the services as a module gets them, and small objects made in code.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "interface/lightwave.h"
#include "standin/core/globals.h"
#include "standin/core/witness.h"
#include "standin/layout/layout_host.h"
#include "standin/layout/scene_report.h"

namespace standin {

struct SkelegonSpec {
  std::uint32_t head;
  std::uint32_t tail;
  std::vector<PolygonTag> tags;
};

inline SkelegonSpec named(std::uint32_t head, std::uint32_t tail, const std::string& name) {
  return {head, tail, {{lw::kTagBone, name}}};
}

// One layer with these points and skelegons.
inline ObjectLayer skelegonLayer(std::vector<FilePoint> points, const std::vector<SkelegonSpec>& skelegons) {
  ObjectLayer layer;
  layer.points = std::move(points);
  PolygonGroup& group = layer.group(lw::kTypeBone);
  for (const SkelegonSpec& skelegon : skelegons) {
    ObjectPolygon polygon;
    polygon.points = {skelegon.head, skelegon.tail};
    polygon.tags = skelegon.tags;
    group.polygons.push_back(polygon);
  }
  return layer;
}

inline ObjectFile oneLayer(ObjectLayer layer) {
  ObjectFile file;
  file.layers.push_back(std::move(layer));
  return file;
}

class LayoutSession {
 public:
  explicit LayoutSession(const LayoutOptions& options = {}) : host(options) {}

  template <class Table>
  Table* table(const char* name) {
    return static_cast<Table*>(Globals::lookup()(name, lw::kUseTransient));
  }
  lw::LWItemInfo* items() { return table<lw::LWItemInfo>("LW Item Info 9"); }
  lw::LWObjectInfo* objects() { return table<lw::LWObjectInfo>("LW Object Info 14"); }
  lw::LWBoneInfo* bones() { return table<lw::LWBoneInfo>("LW Bone Info 7"); }
  lw::LWChannelInfo* channels() { return table<lw::LWChannelInfo>("Channel Info 3"); }
  lw::LWEnvelopeFuncs* envelopes() { return table<lw::LWEnvelopeFuncs>("Animation Envelopes 4"); }
  lw::LWInterfaceInfo* interfaceInfo() { return table<lw::LWInterfaceInfo>("LW Interface Info 8"); }

  // As the module sends it.
  int send(const std::string& command) {
    const auto function = reinterpret_cast<lw::CommandFunc>(Globals::lookup()("LW Command Interface", lw::kUseTransient));
    return function(command.c_str());
  }

  Scene& scene() { return host.scene(); }
  lw::ItemId id(const Item& item) { return host.scene().idOf(&item); }

  // An object with one bone, selected.
  Item& selectedBone() {
    Item& bone = scene().addBone(*object(), "Bone");
    host.select({&bone});
    return bone;
  }
  Item* object() {
    if (object_ == nullptr) object_ = scene().addObject(oneLayer({}), "rig.lwo").front();
    return object_;
  }

  std::string setting(const Item& item, const std::string& name) {
    for (const Setting& setting : settingsOf(scene(), item)) {
      if (setting.name == name) return setting.value;
    }
    return "no such setting";
  }

  std::string lastReason() { return host.transcript().events().empty() ? "" : host.transcript().events().back().why; }

  LayoutHost host;

 private:
  Item* object_ = nullptr;
};

// Fails the test when the session saw misuse that the test did not ask for.
inline ::testing::AssertionResult noFaults() {
  if (witness().faults().empty()) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << witness().report();
}

inline ::testing::AssertionResult oneFaultSaying(const std::string& part) {
  const auto& faults = witness().faults();
  if (faults.size() == 1 && faults.front().what.find(part) != std::string::npos) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "faults: " << witness().report();
}

}  // namespace standin
