// Finds places for names beside what they name, so that no name lies over another.
//
// The time for a name does not depend on how many there are: it looks at the cells of a grid around the thing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "views/projection.h"

namespace standin::views {

// How wide a text may come out, in dots: the font is not known here.
double textWidth(std::string_view text, double fontSize);

// The text, or its beginning and its end, where counters stand, with dots between them.
std::string shortened(const std::string& text);

struct LabelPlace {
  double left = 0;
  double baseline = 0;
  // From the name to the thing, where they are apart.
  std::optional<OnPage> leaderStart;
};

class LabelPlaces {
 public:
  // Names stay within this part of the page.
  LabelPlaces(double left, double top, double width, double height);

  // Something is drawn there that names should rather not cover.
  void draw(const OnPage& from, const OnPage& to);
  // Nothing may lie over this.
  void keepFree(double left, double top, double width, double height);

  // Nothing when there is no room near the thing.
  std::optional<LabelPlace> place(const OnPage& thing, double width, double fontSize);

 private:
  struct Box {
    double left, top, right, bottom;
  };

  // What covering the cells would spoil; nothing when a name is there or the box leaves the frame.
  std::optional<double> costOf(const Box& box) const;
  // How many cells of names a line would cross.
  int namesOn(const OnPage& from, const OnPage& to) const;
  std::size_t cellAt(double x, double y) const;
  template <class Visit>
  void visit(const Box& box, Visit&& visit);

  double left_;
  double top_;
  double width_;
  double height_;
  std::size_t columns_;
  std::size_t rows_;
  std::vector<std::uint8_t> taken_;  // by a name
  std::vector<std::uint8_t> drawn_;
};

}  // namespace standin::views
