// The selector's tree under a user's hand, for the trips. The host paints after each press, move and release.
#pragma once

#include <string>
#include <vector>

#include "standin/modeler/modeler_host.h"
#include "standin/validate/tries.h"

namespace standin::validate {

class TreeUser : public Tries {
 public:
  static constexpr int kLabel = 200;  // from the left, where every row has its label
  static constexpr int kRow = 14;

  TreeUser(ModelerHost& host, Panel& panel);

  // `quick` counts the presses that follow each other quickly, this one included.
  void click(int x, int row, int qualifiers = 0, int quick = 1);
  void drag(int fromX, int fromY, int toX, int toY);

  ModelerHost& host() { return host_; }
  // The names of the skelegons that are selected after a click on the row.
  std::vector<std::string> selectedBy(int row);
  int width() const;
  int height() const;
  // How often the host has had the tree painted.
  int paints() const;

 private:
  void press(int x, int y, int qualifiers, int quick);
  void move(int x, int y);
  void release(int x, int y);
  void after(const Done& done);

  ModelerHost& host_;
  Panel& panel_;
  Control* tree_;
};

// Every click counts, once, and is seen.
void clickEachRow(TreeUser& tree);
// With Ctrl, quickly, and with the pointer moving. Shift and Alt tell nothing about how the mouse arrives.
void clickInOtherWays(TreeUser& tree);
// By the scroll bar. The tree must have more rows than it shows.
void scrollDown(TreeUser& tree);

}  // namespace standin::validate
