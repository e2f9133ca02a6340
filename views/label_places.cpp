#include "views/label_places.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "standin/layout/settings.h"
#include "texts/utf8.h"

namespace standin::views {
namespace {

constexpr double kCell = 3;      // dots
constexpr double kNarrow = 0.6;  // of the font's size
constexpr double kWide = 1.05;
constexpr std::size_t kLongest = 24;  // in narrow characters
constexpr std::size_t kEndOfLongest = 7;

// How far a name may lie from what it names, in dots. Beyond the first two a line leads to it.
constexpr std::array<double, 7> kDistances{5, 10, 18, 28, 40, 54, 70};
constexpr double kFarEnoughForALine = 11;
constexpr double kCostOfADot = 0.25;       // of distance, in cells covered
constexpr double kCostOfANameCrossed = 6;  // by the line, each cell: a name can be read before a thin line
constexpr int kMostCrossed = 6;

std::array<OnPage, 16> directionsAround() {
  std::array<OnPage, 16> directions;
  for (std::size_t i = 0; i < directions.size(); ++i) {
    const double angle = 2 * kPi * static_cast<double>(i) / static_cast<double>(directions.size());
    directions[i] = {std::cos(angle), std::sin(angle)};
  }
  return directions;
}

bool isWide(char32_t character) { return character >= 0x1100 && character != texts::kNoCharacter; }

std::size_t columnsOf(std::string_view text) {
  std::size_t columns = 0;
  while (!text.empty()) columns += isWide(texts::takeCharacter(text)) ? 2 : 1;
  return columns;
}

}  // namespace

double textWidth(std::string_view text, double fontSize) {
  double width = 0;
  while (!text.empty()) width += isWide(texts::takeCharacter(text)) ? kWide : kNarrow;
  return width * fontSize;
}

std::string shortened(const std::string& text) {
  if (columnsOf(text) <= kLongest) return text;
  std::vector<std::string_view> characters;
  std::vector<std::size_t> columns;
  std::string_view rest = text;
  std::size_t all = 0;
  while (!rest.empty()) {
    const std::string_view from = rest;
    columns.push_back(isWide(texts::takeCharacter(rest)) ? 2 : 1);
    all += columns.back();
    characters.push_back(from.substr(0, from.size() - rest.size()));
  }
  std::string begin;
  std::string end;
  std::size_t at = 0;
  for (std::size_t i = 0; i < characters.size(); ++i) {
    if (at + columns[i] <= kLongest - kEndOfLongest - 1) begin += characters[i];
    if (all - at <= kEndOfLongest) end += characters[i];
    at += columns[i];
  }
  return begin + "…" + end;
}

LabelPlaces::LabelPlaces(double left, double top, double width, double height)
    : left_(left),
      top_(top),
      width_(width),
      height_(height),
      columns_(static_cast<std::size_t>(std::max(width, 1.0) / kCell) + 1),
      rows_(static_cast<std::size_t>(std::max(height, 1.0) / kCell) + 1),
      taken_(columns_ * rows_),
      drawn_(columns_ * rows_) {}

std::size_t LabelPlaces::cellAt(double x, double y) const {
  const double column = std::clamp((x - left_) / kCell, 0.0, static_cast<double>(columns_ - 1));
  const double row = std::clamp((y - top_) / kCell, 0.0, static_cast<double>(rows_ - 1));
  return static_cast<std::size_t>(row) * columns_ + static_cast<std::size_t>(column);
}

template <class Visit>
void LabelPlaces::visit(const Box& box, Visit&& visit) {
  const std::size_t first = cellAt(box.left, box.top);
  const std::size_t last = cellAt(box.right, box.bottom);
  const std::size_t width = last % columns_ - first % columns_;
  for (std::size_t row = first; row <= last; row += columns_) {
    for (std::size_t cell = row; cell <= row + width; ++cell) visit(cell);
  }
}

void LabelPlaces::draw(const OnPage& from, const OnPage& to) {
  const double distance = std::hypot(to.x - from.x, to.y - from.y);
  // What reaches far beyond the frame is not worth its steps.
  const int steps = static_cast<int>(std::min(distance / kCell, static_cast<double>(columns_ + rows_)));
  for (int i = 0; i <= steps; ++i) {
    const double part = steps == 0 ? 0 : static_cast<double>(i) / steps;
    std::uint8_t& cell = drawn_[cellAt(from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part)];
    if (cell < 3) ++cell;
  }
}

void LabelPlaces::keepFree(double left, double top, double width, double height) {
  visit({left, top, left + width, top + height}, [&](std::size_t cell) { taken_[cell] = 1; });
}

std::optional<double> LabelPlaces::costOf(const Box& box) const {
  if (box.left < left_ || box.top < top_ || box.right > left_ + width_ || box.bottom > top_ + height_) return std::nullopt;
  const std::size_t first = cellAt(box.left, box.top);
  const std::size_t last = cellAt(box.right, box.bottom);
  if (taken_[first] != 0 || taken_[last] != 0) return std::nullopt;
  const std::size_t width = last % columns_ - first % columns_;
  int cost = 0;
  const std::uint8_t* const taken = taken_.data();
  const std::uint8_t* const drawn = drawn_.data();
  for (std::size_t row = first; row <= last; row += columns_) {
    for (std::size_t cell = row; cell <= row + width; ++cell) {
      if (taken[cell] != 0) return std::nullopt;
      cost += drawn[cell];
    }
  }
  return cost;
}

int LabelPlaces::namesOn(const OnPage& from, const OnPage& to) const {
  const int steps = static_cast<int>(std::hypot(to.x - from.x, to.y - from.y) / kCell) + 1;
  int names = 0;
  // Not where it begins: the name may touch another one there.
  for (int i = 1; i <= steps; ++i) {
    const double part = static_cast<double>(i) / steps;
    if (taken_[cellAt(from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part)] != 0) ++names;
  }
  return names;
}

std::optional<LabelPlace> LabelPlaces::place(const OnPage& thing, double width, double fontSize) {
  static const std::array<OnPage, 16> directions = directionsAround();
  const double height = fontSize * 1.15;
  std::optional<Box> best;
  std::optional<OnPage> bestLine;
  double bestCost = 0;
  for (const double distance : kDistances) {
    // Farther away nothing can be better.
    if (best && distance * kCostOfADot > bestCost) break;
    for (const auto& [dx, dy] : directions) {
      // The nearest point of the box lies on the circle.
      const double x = thing.x + dx * (distance + width / 2);
      const double y = thing.y + dy * (distance + height / 2);
      const Box box{x - width / 2, y - height / 2, x + width / 2, y + height / 2};
      const std::optional<double> covered = costOf(box);
      double cost = covered.value_or(0) + distance * kCostOfADot;
      if (!covered || (best && cost >= bestCost)) continue;
      std::optional<OnPage> line;
      if (distance > kFarEnoughForALine) {
        line = OnPage{std::clamp(thing.x, box.left, box.right), std::clamp(thing.y, box.top, box.bottom)};
        const int names = namesOn(*line, thing);
        cost += names * kCostOfANameCrossed;
        if (names > kMostCrossed || (best && cost >= bestCost)) continue;
      }
      best = box;
      bestLine = line;
      bestCost = cost;
    }
  }
  if (!best) return std::nullopt;
  keepFree(best->left, best->top, width, height);
  if (bestLine) {
    for (int i = 0; i < 3; ++i) draw(*bestLine, thing);
  }
  return LabelPlace{best->left, best->top + fontSize * 0.92, bestLine};
}

}  // namespace standin::views
