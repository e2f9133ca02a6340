// How a view looks at the rig, and where its frame lies on the sheet.
#pragma once

#include <limits>
#include <vector>

#include "standin/layout/transform.h"

namespace standin::views {

// Front is seen along +Z, as the host's first camera looks: +X lies right. Side is seen from +X: +Z lies right. Top is seen
// from +Y: +X lies right and +Z up. Turned looks down at the front from the right.
enum class View { Front, Side, Top, Turned };

// The directions in space that lie right, up and away from who looks.
struct ViewAxes {
  Vec3 right{};
  Vec3 up{};
  Vec3 away{};
};
ViewAxes axesOf(View view);

// A point as a view sees it, in metres.
struct Seen {
  double right = 0;
  double up = 0;
  double away = 0;
};
Seen seen(const ViewAxes& axes, const Vec3& point);

bool isFinite(const Vec3& point);

// What a view has to find room for.
struct Extent {
  double left = std::numeric_limits<double>::infinity();
  double right = -std::numeric_limits<double>::infinity();
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void add(const Seen& point);
  bool isEmpty() const { return left > right; }
  double width() const { return isEmpty() ? 0 : right - left; }
  double height() const { return isEmpty() ? 0 : high - low; }
};

struct OnPage {
  double x = 0;
  double y = 0;
};

// The part of the sheet for one view. All frames of a sheet have the same scale.
struct Frame {
  View view = View::Front;
  ViewAxes axes{};
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
  OnPage middle{};         // of the room for the rig
  double scale = 1;        // dots for a metre
  double middleRight = 0;  // what stands in the middle, in metres
  double middleUp = 0;

  OnPage place(const Seen& point) const {
    return {middle.x + (point.right - middleRight) * scale, middle.y - (point.up - middleUp) * scale};
  }
  OnPage place(const Vec3& point) const { return place(seen(axes, point)); }
};

struct Sheet {
  std::vector<Frame> frames;
  double height = 0;  // below the last frame
};

// Two in a row where there is room for it, as in drawings of engineers: frames of a row have the height of the highest, those
// of a column the width of the widest. One extent for each view.
Sheet sheetOf(const std::vector<View>& views, const std::vector<Extent>& extents, double width, double top);

}  // namespace standin::views
