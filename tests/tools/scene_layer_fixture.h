// A stand-in Layout whose services the test itself has acquired, for what the scene layer does without the tool.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "host/lwtool2_errors.h"
#include "host/lwtool2_globals.h"
#include "host/lwtool2_scene.h"
#include "standin/core/globals.h"
#include "standin/core/witness.h"
#include "standin/layout/layout_host.h"

namespace varnel::test {

using standin::Item;
using standin::Vec3;

// A Layout with the host layer acquired from it, as an activation does.
class SceneLayer : public testing::Test {
 protected:
  explicit SceneLayer(const standin::LayoutOptions& options = {}) : host(options) { acquire(); }
  void TearDown() override { EXPECT_EQ(standin::witness().report(), ""); }

  static void acquire() {
    lw::resetHostState();
    EXPECT_TRUE(lw::AcquireHostGlobals(lw::Program::Layout, standin::Globals::lookup(), nullptr));
  }
  // Puts a copy of a service in its place, to be changed by the test before it is acquired again.
  template <class Table>
  static void replace(const char* service, Table& with) {
    with = *static_cast<const Table*>(standin::Globals::lookup()(service, lw::kUseTransient));
    standin::globals().offer(service, &with);
  }

  lw::ItemId id(const Item& item) const { return host.scene().idOf(&item); }
  std::vector<std::string> commands() const { return host.transcript().commands(); }
  bool statusSays(const std::string& text) const {
    const std::vector<std::string> texts = host.transcript().texts(standin::EventKind::Status);
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }
  static std::string thrownBy(const std::function<void()>& action) {
    try {
      action();
    } catch (const lw::ex::CBaseEx& failure) {
      return failure.message();
    }
    return "";
  }
  // The item's position at time 0.
  static Vec3 positionOf(const Item& item) { return standin::Scene::motionAt(item, standin::kAxisX, 0); }

  standin::LayoutHost host;
};

}  // namespace varnel::test
