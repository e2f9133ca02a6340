// A stand-in Modeler with the built module in it, and what a user of the selector does: he sees rows and clicks into them.
// What a row is shows in what Modeler has selected after a click on it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "modeler/selector/tree_rows.h"
#include "standin/panels/geometry.h"
#include "tests/tools/modeler_session.h"

namespace varnel::test {

inline constexpr int kCtrl = lw::kMouseCtrl;
inline constexpr int kShift = lw::kMouseShift;
inline constexpr int kAlt = lw::kMouseAlt;

// A row as it is seen: its number from the top, and its depth, which is how far it stands to the right.
struct SeenRow {
  int number;
  int depth;
};

// The rows of panelRig() as the tool first shows them.
namespace row {
inline constexpr SeenRow kTop{0, 0};
inline constexpr SeenRow kBody{1, 1};
inline constexpr SeenRow kHips{2, 2};
inline constexpr SeenRow kChest{3, 3};
inline constexpr SeenRow kHead{4, 4};
inline constexpr SeenRow kTail{5, 1};
inline constexpr SeenRow kTail1{6, 2};
inline constexpr SeenRow kTail2{7, 3};
inline constexpr SeenRow kMaps{8, 1};
inline constexpr int kCount = 9;
}  // namespace row

// How the host tells of the mouse.
enum class Delivery { ControlOnly, HooksOnly, Both };

inline std::string nameOf(Delivery delivery) {
  switch (delivery) {
    case Delivery::ControlOnly: return "ControlOnly";
    case Delivery::HooksOnly: return "HooksOnly";
    case Delivery::Both: return "Both";
  }
  return "";
}

class SelectorSession : public ModelerSession {
 public:
  SelectorSession() : SelectorSession(panelRig()) {}
  explicit SelectorSession(standin::ObjectFile file) : ModelerSession(std::move(file)) {}

  static void deliver(Delivery delivery) {
    standin::PanelOptions& options = standin::panels().options;
    switch (delivery) {
      case Delivery::ControlOnly: options.mouse = standin::MouseDelivery::Control; break;
      case Delivery::HooksOnly: options.mouse = standin::MouseDelivery::Hooks; break;
      case Delivery::Both: options.mouse = standin::MouseDelivery::Both; break;
    }
    // The panel does not ask for its hooks to be called; this host calls them all the same.
    options.hooksNeedMouseFlag = delivery == Delivery::ControlOnly;
  }

  void openTool() { runTool(kSelectorTool); }
  void openWith(const Names& selected) {
    host.select(selected);
    openTool();
  }

  Control* tree() const { return panel->find(standin::ControlKind::OpenGL); }
  Control* frame() const { return panel->find(standin::ControlKind::Border); }
  Control* sync() const { return panel->find("Sync"); }
  void pressSync() { EXPECT_TRUE(person::press(sync())); }

  // A click into the tree's control.
  void clickAt(int x, int y, int qualifiers = 0, standin::MouseButton button = standin::MouseButton::Left, int clicks = 1) {
    EXPECT_TRUE(person::click(tree(), x, y, button, qualifiers, clicks));
  }
  // The middle of a row's expander, some way into its label, and the gap that belongs to none.
  static int expanderX(SeenRow row) { return 12 * row.depth; }
  static int labelX(SeenRow row) { return 12 * row.depth + 15; }
  static int gapX(SeenRow row) { return 12 * row.depth - 16; }
  static int middleOf(SeenRow row) { return 14 * row.number + 7; }

  void click(SeenRow row, int qualifiers = 0) { clickAt(labelX(row), middleOf(row), qualifiers); }
  void clickExpander(SeenRow row) { clickAt(expanderX(row), middleOf(row)); }
  void rightClick(SeenRow row) { clickAt(labelX(row), middleOf(row), 0, standin::MouseButton::Right); }
  void doubleClick(SeenRow row, int qualifiers = 0) {
    click(row, qualifiers);
    clickAt(labelX(row), middleOf(row), qualifiers, standin::MouseButton::Left, 2);
  }

  // Position from the tree's corner, button still down.
  void pressAt(int x, int y, int qualifiers = 0) {
    EXPECT_TRUE(person::mousePress(panel, tree()->x + x, tree()->y + y, standin::MouseButton::Left, qualifiers));
  }
  void moveTo(int x, int y) { EXPECT_TRUE(person::mouseMove(panel, tree()->x + x, tree()->y + y)); }
  void releaseAt(int x, int y) { EXPECT_TRUE(person::mouseRelease(panel, tree()->x + x, tree()->y + y)); }

  Names selected() const { return host.selectedNames(); }
  // What Modeler has selected after a click on a row.
  Names selectedBy(SeenRow row) {
    click(row);
    return selected();
  }
  // The skelegon in a row that is in sight at that height, told by a click; "" for a row that is none.
  std::string shownAt(int y) {
    clickAt(tree()->hotWidth - 20, y);
    const Names names = selected();
    return names.empty() ? "" : names.front();
  }
  std::string shownIn(int row) { return shownAt(14 * row + 7); }
  // The same for the rows from the top on.
  Names shown(int rows) {
    Names names;
    for (int row = 0; row < rows; ++row) names.push_back(shownIn(row));
    return names;
  }

  // Counting of what the tool does begins anew.
  void startCounting() { counted_ = host.edits().size(); }
  std::size_t editsOf(int mode) const {
    std::size_t count = 0;
    for (std::size_t i = counted_; i < host.edits().size(); ++i) count += host.edits()[i].mode == mode ? 1U : 0U;
    return count;
  }
  // Selections that were pushed to Modeler. Each is followed by a reading of the selection, which looks like a scan.
  std::size_t pushes() const { return editsOf(lw::kEditSelecting | lw::kEditDirect); }
  std::size_t scans() const { return editsOf(lw::kEditDirect) - pushes(); }

 private:
  std::size_t counted_ = 0;
};

class Selector : public testing::Test, protected SelectorSession {};

// The same with each way in which a host tells of the mouse.
class SelectorMouse : public testing::TestWithParam<Delivery>, protected SelectorSession {
 protected:
  SelectorMouse() { deliver(GetParam()); }
};

inline auto allDeliveries() { return testing::Values(Delivery::ControlOnly, Delivery::HooksOnly, Delivery::Both); }
inline std::string nameOfParam(const testing::TestParamInfo<Delivery>& info) { return nameOf(info.param); }

}  // namespace varnel::test
