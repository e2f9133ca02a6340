// The selector's tree in a real window, painted by whichever callback: what is seen while a button is down.
#include <gmock/gmock.h>

#include "objectfile/sample_rigs.h"
#include "standin/core/program_folder.h"
#include "standin/core/tool_names.h"
#include "standin/modeler/modeler_host.h"
#include "standin/windows/driver.h"

namespace standin {
namespace {

class FrontSelector : public testing::TestWithParam<Painter> {
 protected:
  void TearDown() override { EXPECT_EQ("", witness().report()); }

  // What is seen before anything, with the button down on a row, with the thumb half way down, and after all.
  static std::vector<Picture> seenWith(Painter painter) {
    ModelerHost host;
    panels().options.painter = painter;
    host.add(makeDemoRig());
    host.showLayers({0, 1});
    host.deselectAll();
    ModuleFile module;
    EXPECT_EQ("", module.load(modulePath()));
    std::vector<Picture> seen;
    {
      WindowsFront front;
      Driver driver(front);
      EXPECT_EQ(0, host.activate(module, kSelectorTool));
      Panel& panel = *panels().find(kSelectorTool);
      EXPECT_TRUE(person::resize(&panel, 250, 200));
      const Control& tree = *panel.find(ControlKind::OpenGL);
      const auto look = [&] {
        front.settle();
        seen.push_back(driver.picture(tree));
      };
      look();
      EXPECT_TRUE(person::mousePress(&panel, tree.x + 120, tree.y + 49));
      look();
      EXPECT_TRUE(person::mouseRelease(&panel, tree.x + 120, tree.y + 49));
      EXPECT_TRUE(person::mousePress(&panel, tree.x + 234, tree.y + 5));
      EXPECT_TRUE(person::mouseMove(&panel, tree.x + 234, tree.y + 40));
      look();
      EXPECT_TRUE(person::mouseRelease(&panel, tree.x + 234, tree.y + 40));
      look();
      panels().moduleUnloaded();
    }
    module.unload();
    return seen;
  }
};

INSTANTIATE_TEST_SUITE_P(Painters, FrontSelector, testing::Values(Painter::EventCallback, Painter::Both));

TEST_P(FrontSelector, ShowsEachStepAsAHostDoesThatPaintsByTheDrawCallback) {
  const std::vector<Picture> expected = seenWith(Painter::DrawCallback);
  EXPECT_NE(expected[0], expected[1]) << "a press is not seen";
  EXPECT_NE(expected[1], expected[2]) << "a drag is not seen";
  EXPECT_EQ(expected[2], expected[3]);
  const std::vector<Picture> seen = seenWith(GetParam());
  ASSERT_EQ(seen.size(), expected.size());
  for (std::size_t i = 0; i < seen.size(); ++i) EXPECT_EQ(seen[i], expected[i]) << i;
}

}  // namespace
}  // namespace standin
