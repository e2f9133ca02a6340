// For tests that have a tool's code in their own program, not in the built module, so that they can stand in the list of
// open panels.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

#include "host/lwtool2_globals.h"
#include "modeler/shared/open_panels.h"
#include "tests/tools/modeler_session.h"

namespace varnel::test {

using mst::PanelNews;
using News = std::vector<PanelNews>;

inline const News kEveryNews = {PanelNews::Refresh, PanelNews::NamesChanged, PanelNews::PropertiesChanged,
                                PanelNews::SelectionChanged};

// Another open tool panel: it keeps what it is told.
class PanelListener {
 public:
  PanelListener() {
    mst::enterPanel(this, [](void* self, PanelNews news) { static_cast<PanelListener*>(self)->heard.push_back(news); });
  }
  ~PanelListener() { mst::removePanel(this); }
  PanelListener(const PanelListener&) = delete;
  PanelListener& operator=(const PanelListener&) = delete;

  News heard;
};

// Modeler with an object in its layers 0 and 1, and a tool made and opened by the test.
template <class Tool>
class OwnPanel : public testing::Test {
 protected:
  OwnPanel(standin::ObjectFile file, const Names& selected) : object(&host.add(std::move(file), "rig.lwo")) {
    host.showLayers({0, 1});
    host.select(selected);
    const standin::ActivationRecord local("");
    EXPECT_TRUE(lw::AcquireHostGlobals(lw::Program::Modeler, standin::Globals::lookup(), local.get()));
    lw::modelerFunctions() = lw::ModelerFunctions{};
    lw::AcquireModelerFunctions(lw::modelerFunctions(), standin::Globals::lookup(), local.get());
    lw::LoadModelerStrings(standin::Globals::lookup());
    lw::LoadRenamerStrings(standin::Globals::lookup());
    tool = std::make_unique<Tool>();
  }
  ~OwnPanel() override {
    tool.reset();
    standin::panels().moduleUnloaded();
    EXPECT_EQ(standin::witness().report(), "");
  }

  standin::ModelerHost host;
  standin::ModelerObject* object;
  std::unique_ptr<Tool> tool;
  standin::Panel* panel = nullptr;
};

}  // namespace varnel::test
