#include "views/projection.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>

#include "standin/layout/settings.h"

namespace standin::views {
namespace {

// Of the turned view, in radians.
constexpr double kTurnedRight = 35 * kPi / 180;
constexpr double kTurnedDown = 22 * kPi / 180;

// In dots.
constexpr double kGap = 10;
constexpr double kAside = 56;             // room for names beside the rig
constexpr double kAbove = 40;             // for the caption too
constexpr double kBelow = 40;             // for the axes too
constexpr double kLowest = 70;            // of the room for the rig
constexpr double kNarrowestForTwo = 420;  // of a sheet with two columns

constexpr double kLeastShare = 0.4;  // of the widest column
constexpr double kHighest = 1.0;     // all rows together, of the width

double sum(const std::vector<double>& values) { return std::accumulate(values.begin(), values.end(), 0.0); }

double largest(const std::vector<double>& values) { return *std::max_element(values.begin(), values.end()); }

}  // namespace

ViewAxes axesOf(View view) {
  switch (view) {
    case View::Front: return {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    case View::Side: return {{0, 0, 1}, {0, 1, 0}, {-1, 0, 0}};
    case View::Top: return {{1, 0, 0}, {0, 0, 1}, {0, -1, 0}};
    case View::Turned: break;
  }
  const double ch = std::cos(kTurnedRight);
  const double sh = std::sin(kTurnedRight);
  const double cp = std::cos(kTurnedDown);
  const double sp = std::sin(kTurnedDown);
  return {{ch, 0, sh}, {-sh * sp, cp, ch * sp}, {-sh * cp, -sp, ch * cp}};
}

Seen seen(const ViewAxes& axes, const Vec3& point) {
  return {dot(axes.right, point), dot(axes.up, point), dot(axes.away, point)};
}

bool isFinite(const Vec3& point) {
  // Far beyond the floats of a file, and far below where differences and products are no numbers any more.
  constexpr double kFarthest = 1e100;
  return std::all_of(point.begin(), point.end(), [](double value) { return std::abs(value) < kFarthest; });
}

void Extent::add(const Seen& point) {
  left = std::min(left, point.right);
  right = std::max(right, point.right);
  low = std::min(low, point.up);
  high = std::max(high, point.up);
}

Sheet sheetOf(const std::vector<View>& views, const std::vector<Extent>& extents, double width, double top) {
  const std::size_t columns = views.size() == 1 || width < kNarrowestForTwo ? 1 : 2;
  std::vector<double> across(columns);
  std::vector<double> down((views.size() + columns - 1) / columns);
  for (std::size_t i = 0; i < views.size(); ++i) {
    across[i % columns] = std::max(across[i % columns], extents[i].width());
    down[i / columns] = std::max(down[i / columns], extents[i].height());
  }
  if (largest(across) == 0 && largest(down) == 0) across[0] = down[0] = 1;
  const double least = std::max(largest(across), largest(down) / 10) * kLeastShare;
  for (double& column : across) column = std::max(column, least);

  const auto count = static_cast<double>(columns);
  const double widthScale = (width - (count - 1) * kGap - count * 2 * kAside) / sum(across);
  const double scale = std::min(widthScale, sum(down) > 0 ? kHighest * width / sum(down) : widthScale);
  Sheet sheet;
  double y = top;
  for (std::size_t row = 0; row < down.size(); ++row) {
    const double room = std::max(down[row] * scale, kLowest);
    double x = 0;
    for (std::size_t i = row * columns; i < std::min(views.size(), (row + 1) * columns); ++i) {
      const double frameWidth = across[i % columns] * widthScale + 2 * kAside;
      Frame frame{views[i], axesOf(views[i]), x, y, frameWidth, room + kAbove + kBelow};
      frame.middle = {x + frameWidth / 2, y + kAbove + room / 2};
      frame.scale = scale;
      if (!extents[i].isEmpty()) {
        frame.middleRight = extents[i].left / 2 + extents[i].right / 2;
        frame.middleUp = extents[i].low / 2 + extents[i].high / 2;
      }
      sheet.frames.push_back(frame);
      x += frameWidth + kGap;
    }
    y += room + kAbove + kBelow + kGap;
  }
  sheet.height = y - kGap;
  return sheet;
}

}  // namespace standin::views
