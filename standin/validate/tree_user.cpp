#include "standin/validate/tree_user.h"

#include <algorithm>

namespace standin::validate {
namespace {

constexpr int kRows = 8;         // that are clicked one by one
constexpr int kOneRow = 3;       // a skelegon's
constexpr int kOtherRow = 5;     // another one's
constexpr int kScrolledRow = 1;  // shows another row when the tree is scrolled
constexpr int kBar = 6;          // from the edge, the middle of a scroll bar
constexpr int kSteps = 4;        // of a drag
constexpr int kBeside = 2;       // pixels, where a hand that clicks twice comes to click

int middleOf(int row) { return row * TreeUser::kRow + TreeUser::kRow / 2; }

}  // namespace

TreeUser::TreeUser(ModelerHost& host, Panel& panel) : host_(host), panel_(panel), tree_(panel.find(ControlKind::OpenGL, 0)) {
  panels().paintWanted(panel);
}

void TreeUser::click(int x, int row, int qualifiers, int quick) {
  press(x, middleOf(row), qualifiers, quick);
  release(x, middleOf(row));
}

void TreeUser::drag(int fromX, int fromY, int toX, int toY) {
  press(fromX, fromY, 0, 1);
  for (int step = 1; step <= kSteps; ++step) {
    move(fromX + (toX - fromX) * step / kSteps, fromY + (toY - fromY) * step / kSteps);
  }
  release(toX, toY);
}

std::vector<std::string> TreeUser::selectedBy(int row) {
  click(kLabel, row);
  return host_.selectedNames();
}

int TreeUser::width() const { return tree_ == nullptr ? 0 : tree_->hotWidth; }
int TreeUser::height() const { return tree_ == nullptr ? 0 : tree_->hotHeight; }
int TreeUser::paints() const { return tree_ == nullptr ? 0 : tree_->paints; }

void TreeUser::press(int x, int y, int qualifiers, int quick) {
  if (tree_ == nullptr) return finds(false, "there is a tree");
  const Rectangle hot = tree_->hot();
  after(person::mousePress(&panel_, hot.x + x, hot.y + y, MouseButton::Left, qualifiers, quick));
}

void TreeUser::move(int x, int y) {
  if (tree_ != nullptr) after(person::mouseMove(&panel_, tree_->hot().x + x, tree_->hot().y + y));
}

void TreeUser::release(int x, int y) {
  if (tree_ != nullptr) after(person::mouseRelease(&panel_, tree_->hot().x + x, tree_->hot().y + y));
}

void TreeUser::after(const Done& done) {
  does(done);
  panels().paintWanted(panel_);
}

// ---------------------------------------------------------------------------------------------------------------------

void clickEachRow(TreeUser& tree) {
  std::vector<std::string> seen;
  for (int row = 1; row < kRows; ++row) {
    const int paints = tree.paints();
    const std::vector<std::string> names = tree.selectedBy(row);
    tree.finds(tree.paints() > paints, "the tree is painted after a click");
    tree.finds(names.size() <= 1, "a click selects one row only");
    if (names.empty()) continue;
    tree.finds(std::find(seen.begin(), seen.end(), names.front()) == seen.end(), "a click selects the row that is clicked");
    seen.push_back(names.front());
  }
  const std::size_t there = tree.host().current()->skelegons().size();
  tree.finds(seen.size() >= std::min<std::size_t>(there, 4), "a click on each row selects each skelegon");
}

void clickInOtherWays(TreeUser& tree) {
  const std::vector<std::string> one = tree.selectedBy(kOneRow);
  const std::vector<std::string> other = tree.selectedBy(kOtherRow);
  const auto isSelected = [&](const std::vector<std::string>& wanted) { return tree.host().selectedNames() == wanted; };
  tree.finds(one.size() == 1 && other.size() == 1 && one != other, "two rows are two skelegons");
  tree.click(TreeUser::kLabel, kOneRow, lw::kMouseCtrl);
  tree.finds(tree.host().selectedNames().size() == 2, "Ctrl and a click add a row");
  tree.click(TreeUser::kLabel + 8, kOneRow, lw::kMouseCtrl);
  tree.finds(isSelected(other), "Ctrl and a second click take it out again");
  tree.click(TreeUser::kLabel + 8 + kBeside, kOneRow, lw::kMouseCtrl);
  tree.finds(tree.host().selectedNames().size() == 2, "a click a few pixels beside the last is one");
  tree.click(TreeUser::kLabel, kOneRow, 0, 1);
  tree.click(TreeUser::kLabel, kOtherRow, 0, 2);
  tree.finds(isSelected(other), "of two quick clicks on two rows the second selects its own");
  tree.drag(TreeUser::kLabel, middleOf(kOneRow), TreeUser::kLabel, middleOf(kOtherRow));
  tree.finds(isSelected(one), "a drag over rows selects the one that was pressed");
}

// By dragging the thumb. Where the host tells of no moves, by a press on it and one at the other end.
void scrollDown(TreeUser& tree) {
  const std::vector<std::string> before = tree.selectedBy(kScrolledRow);
  const int bar = tree.width() - kBar;
  const int end = tree.height() - 2 * kBar - 1;
  const int paints = tree.paints();
  tree.drag(bar, kBar, bar, end);
  const bool isPainted = tree.paints() > paints;
  if (tree.selectedBy(kScrolledRow) == before) {
    tree.drag(bar, kBar, bar, kBar);
    tree.drag(bar, end, bar, end);
  } else {
    tree.finds(isPainted, "the tree is painted while it is scrolled");
  }
  tree.finds(tree.selectedBy(kScrolledRow) != before, "the scroll bar moves the rows");
}

}  // namespace standin::validate
