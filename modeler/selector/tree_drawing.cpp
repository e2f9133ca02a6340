#include "modeler/selector/tree_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "modeler/selector/text_cells.h"

namespace mst {
namespace {

struct Colour {
  double red;
  double green;
  double blue;
};
constexpr Colour grey(double level) { return {level, level, level}; }

//                                        even rows                            odd rows
constexpr std::array kSelectedStripe = {Colour{0.6098039, 0.5901961, 0.5470588}, Colour{0.6598039, 0.6401961, 0.5970588}};
constexpr std::array kPlainStripe = {grey(0.4), grey(0.5)};
constexpr Colour kGuideColour = grey(0.2);
constexpr Colour kPlainMarker = grey(0.8);  // where the owner has no colours at all
constexpr Rgba kUncolouredMarker = {205, 205, 205, 255};
constexpr Colour kTextColour = grey(0.0);
constexpr Colour kStripColour = grey(0.3);
constexpr Colour kThumbColour = grey(0.7);
constexpr Colour kCornerColour = grey(0.2);

// Of a row, in pixels. A marker stands where its row's guide line does; each level is two cells further to the right.
constexpr int kMarkerX = -2;
constexpr int kMarkerY = kRowHeight / 2;
constexpr int kTextX = kMarkerX + kCellWidth;
constexpr double kBaseline = 0.4;  // below the row's middle, in cells

// Every other pixel. The first one of a line is left out.
constexpr int kGuideFactor = 1;
constexpr std::uint16_t kGuidePattern = 0xAAAA;
constexpr std::uint16_t kGuidePatternFromOddPixel = 0x5555;

struct Point {
  double x;
  double y;
};
// In cells around the marker's place, y downwards.
constexpr std::array<Point, 4> kLeafMarker = {{{-0.24, -0.12}, {0.24, -0.12}, {0.24, 0.12}, {-0.24, 0.12}}};
constexpr std::array<Point, 3> kExpandedMarker = {{{-0.5, -0.333}, {0, 0.533}, {0.5, -0.333}}};
constexpr std::array<Point, 3> kCollapsedMarker = {{{-0.866, 0.25}, {-0.866, -0.25}, {0.866, 0}}};

// What another user of the context may have switched on and would show in the picture.
constexpr std::array kUnwanted = {
    gl::kTexture1D,     gl::kTexture2D,
    gl::kLighting,      gl::kFog,
    gl::kDepthTest,     gl::kStencilTest,
    gl::kAlphaTest,     gl::kBlend,
    gl::kCullFace,      gl::kLineSmooth,
    gl::kPolygonSmooth, gl::kPolygonStipple,
    gl::kLineStipple,   gl::kColourLogicOperation,
};

// Keeps OpenGL's state and gives it back. The matrices are read and written, for of the projection's stack only two levels
// are promised, which may be in use; where no level is left for the attributes, nothing is kept and nothing may be drawn.
class CKeptState {
 public:
  explicit CKeptState(const GlCalls& gl) : gl_(gl) {
    int depth = 0;
    int most = 0;
    gl_.getIntegers(gl::kAttribStackDepth, &depth);
    gl_.getIntegers(gl::kMostAttribStackDepth, &most);
    isKept_ = depth < most;
    if (!isKept_) return;
    gl_.pushAttrib(gl::kAllAttributes);
    gl_.getFloats(gl::kProjectionMatrix, projection_.data());
    gl_.getFloats(gl::kModelViewMatrix, modelView_.data());
  }
  ~CKeptState() {
    if (!isKept_) return;
    gl_.matrixMode(gl::kProjection);
    gl_.loadMatrix(projection_.data());
    gl_.matrixMode(gl::kModelView);
    gl_.loadMatrix(modelView_.data());
    gl_.popAttrib();
  }
  CKeptState(const CKeptState&) = delete;
  CKeptState& operator=(const CKeptState&) = delete;

  bool isKept() const { return isKept_; }

 private:
  const GlCalls& gl_;
  bool isKept_ = false;
  std::array<float, 16> projection_{};
  std::array<float, 16> modelView_{};
};

// Takes whole characters off the front until 'cells' cells are gone, or the text is; gives how many went.
double skipCells(std::string_view& text, double cells) {
  double skipped = 0;
  while (skipped < cells && !text.empty()) {
    // Most names are plain, and one may be very long.
    if (static_cast<unsigned char>(text.front()) < 0x80) {
      text.remove_prefix(1);
      ++skipped;
    } else {
      skipped += takeCell(text).cells;
    }
  }
  return skipped;
}

// One picture. The owner of the rows is never asked between OpenGL's begin and end: it may throw. Places are in pixels from
// the top left of the view: the scroll offsets are taken off here, in doubles, since OpenGL's own floats lose parts of
// pixels far down a long tree.
class CFrame {
 public:
  CFrame(const GlCalls& gl, const TreePicture& picture)
      : gl_(gl), picture_(picture), rows_(picture.owner == nullptr ? std::span<const TreeRow>() : picture.rows) {
    const auto least = static_cast<std::size_t>(std::ceil(static_cast<double>(picture.height) / kRowHeight));
    stripes_ = std::max(least, rows_.size());
    const auto row = [&](double number) {
      return static_cast<std::size_t>(std::clamp(number, 0.0, static_cast<double>(stripes_)));
    };
    first_ = row(std::floor(picture.scrollY / kRowHeight));
    end_ = row(std::ceil((picture.scrollY + picture.height) / kRowHeight));
  }

  void begin();
  void drawStripes();
  void drawGuideLines();
  void drawMarkersAndTexts(CTreeFont& font, CTreeFont::CUse& use);
  void drawScrollBars();

 private:
  std::size_t endOfRows() const { return std::min(end_, rows_.size()); }
  double topOf(std::size_t row) const { return static_cast<double>(row) * kRowHeight - picture_.scrollY; }
  double leftOf(const TreeRow& row) const { return static_cast<double>(row.depth) * kIndent - picture_.scrollX; }

  void set(const Colour& colour) { gl_.colour3(colour.red, colour.green, colour.blue); }
  void moveTo(double x, double y);
  void rectangle(const Colour& colour, double left, double top, double right, double bottom);
  template <std::size_t kCorners>
  void shape(const std::array<Point, kCorners>& corners);

  void branch(std::size_t row);
  void twig(std::size_t row);
  void dots(double from, double to, double across, bool isVertical);
  void marker(std::size_t row);
  void text(std::size_t row, CTreeFont& font, CTreeFont::CUse& use);

  const GlCalls& gl_;
  const TreePicture& picture_;
  std::span<const TreeRow> rows_;
  std::size_t stripes_ = 0;  // in the whole content
  std::size_t first_ = 0;    // stripe in view
  std::size_t end_ = 0;      // after the last one in view
};

void CFrame::begin() {
  for (const unsigned capability : kUnwanted) gl_.disable(capability);
  gl_.polygonMode(gl::kFrontAndBack, gl::kFill);
  gl_.lineWidth(1);
  gl_.matrixMode(gl::kProjection);
  gl_.loadIdentity();
  gl_.ortho(0, picture_.width, picture_.height, 0, -1, 1);
  gl_.matrixMode(gl::kModelView);
  gl_.loadIdentity();
  gl_.clear(gl::kColourBuffer);
}

void CFrame::moveTo(double x, double y) {
  gl_.loadIdentity();
  gl_.translate(x, y, 0);
  gl_.scale(kCellWidth, kCellHeight, 1);
}

// With the matrix that 'begin' leaves.
void CFrame::rectangle(const Colour& colour, double left, double top, double right, double bottom) {
  set(colour);
  shape(std::array<Point, 4>{{{left, top}, {right, top}, {right, bottom}, {left, bottom}}});
}

template <std::size_t kCorners>
void CFrame::shape(const std::array<Point, kCorners>& corners) {
  gl_.begin(kCorners == 3 ? gl::kTriangles : gl::kQuads);
  for (const Point& corner : corners) gl_.vertex(corner.x, corner.y);
  gl_.end();
}

void CFrame::drawStripes() {
  const double right = std::max(picture_.contentWidth, picture_.width) - picture_.scrollX;
  for (std::size_t row = first_; row < end_; ++row) {
    const bool isSelected = row < rows_.size() && (picture_.owner->stateOf(rows_[row].node) & kStateSelected) != 0;
    rectangle((isSelected ? kSelectedStripe : kPlainStripe)[row % 2], -picture_.scrollX, topOf(row), right, topOf(row + 1));
  }
}

void CFrame::drawGuideLines() {
  if (first_ >= rows_.size()) return;
  set(kGuideColour);
  gl_.enable(gl::kLineStipple);
  // Of the rows above the view only those that the first row in view hangs from can have a line that reaches into it.
  for (std::size_t row = rows_[first_].parent; row != kNoRow; row = rows_[row].parent) branch(row);
  for (std::size_t row = first_; row < endOfRows(); ++row) {
    branch(row);
    twig(row);
  }
  gl_.disable(gl::kLineStipple);
}

// From a row down to its last child.
void CFrame::branch(std::size_t row) {
  if (rows_[row].lastChild == kNoRow) return;
  dots(topOf(row) + kMarkerY, topOf(rows_[row].lastChild) + kMarkerY, leftOf(rows_[row]) + kMarkerX, true);
}

// From the parent's line to a row.
void CFrame::twig(std::size_t row) {
  if (rows_[row].parent == kNoRow) return;
  const double from = leftOf(rows_[rows_[row].parent]) + kMarkerX;
  dots(from, from + kIndent, topOf(row) + kMarkerY, false);
}

// A dotted line to the right or down. OpenGL counts the dots from where a line enters the view, so that they would crawl
// along when the tree is scrolled: what lies before the view is left out here, and the count goes on as if it had been
// drawn.
void CFrame::dots(double from, double to, double across, bool isVertical) {
  const double extent = isVertical ? picture_.height : picture_.width;
  const double extentAcross = isVertical ? picture_.width : picture_.height;
  if (across < -1 || across > extentAcross + 1) return;
  const double leftOut = from < 0 ? std::round(-from) : 0;
  const double begin = from + leftOut;
  const double end = std::min(to, extent + 1);
  if (begin >= end) return;

  gl_.lineStipple(kGuideFactor, std::fmod(leftOut, 2) == 0 ? kGuidePattern : kGuidePatternFromOddPixel);
  gl_.begin(gl::kLines);
  gl_.vertex(isVertical ? across : begin, isVertical ? begin : across);
  gl_.vertex(isVertical ? across : end, isVertical ? end : across);
  gl_.end();
}

void CFrame::drawMarkersAndTexts(CTreeFont& font, CTreeFont::CUse& use) {
  const bool haveFont = font.prepare(use);
  for (std::size_t row = first_; row < endOfRows(); ++row) {
    marker(row);
    if (haveFont) text(row, font, use);
  }
  gl_.loadIdentity();
}

void CFrame::marker(std::size_t row) {
  const CTreeOwner& owner = *picture_.owner;
  const std::size_t node = rows_[row].node;
  if (owner.givesColours()) {
    const Rgba colour = owner.colourOf(node).value_or(kUncolouredMarker);
    gl_.colour4(colour[0], colour[1], colour[2], colour[3]);
  } else {
    set(kPlainMarker);
  }
  moveTo(leftOf(rows_[row]) + kMarkerX, topOf(row) + kMarkerY);
  if (owner.childCountOf(node) == 0) return shape(kLeafMarker);
  shape((owner.stateOf(node) & kStateExpanded) != 0 ? kExpandedMarker : kCollapsedMarker);
}

// OpenGL shows no character that begins outside the view, so only those that may begin inside are given to it.
void CFrame::text(std::size_t row, CTreeFont& font, CTreeFont::CUse& use) {
  const double left = leftOf(rows_[row]) + kTextX;
  std::string_view rest = picture_.owner->textOf(rows_[row].node);
  const double firstCell = left < 0 ? skipCells(rest, std::floor(-left / kCellWidth)) : 0;
  const double begin = left + firstCell * kCellWidth;
  if (rest.empty() || begin > picture_.width) return;

  moveTo(begin, topOf(row) + kMarkerY);
  // With the axis turned, down to the baseline is towards smaller numbers.
  gl_.scale(1, -1, 1);
  gl_.translate(0, -kBaseline, 0);
  set(kTextColour);
  for (int cell = 0; !rest.empty() && begin + static_cast<double>(cell) * kCellWidth <= picture_.width;) {
    const TextCell next = takeCell(rest);
    const unsigned list = font.listOf(next.character, use);
    gl_.rasterPosition(cell, 0);
    gl_.callList(list);
    cell += next.cells;
  }
}

// Not scrolled with the rest.
void CFrame::drawScrollBars() {
  const double width = picture_.width;
  const double height = picture_.height;
  const double right = width - kScrollBarSize;
  const double bottom = height - kScrollBarSize;
  rectangle(kStripColour, 0, bottom, right, height);
  rectangle(kStripColour, right, 0, width, bottom);
  rectangle(kThumbColour, picture_.horizontalThumb.from, bottom, picture_.horizontalThumb.to, height);
  rectangle(kThumbColour, right, picture_.verticalThumb.from, width, picture_.verticalThumb.to);
  rectangle(kCornerColour, right, bottom, width, height);
}

}  // namespace

void CTreeDrawing::draw(const TreePicture& picture) {
  if (gl_ == nullptr || picture.width <= 0 || picture.height <= 0) return;
  void* const device = gl_->currentDevice();
  if (device == nullptr) return;
  const CKeptState kept(*gl_);
  if (!kept.isKept()) return;

  CTreeFont::CUse use(*gl_, device);
  CFrame frame(*gl_, picture);
  frame.begin();
  frame.drawStripes();
  frame.drawGuideLines();
  frame.drawMarkersAndTexts(font_, use);
  frame.drawScrollBars();
}

void CTreeDrawing::giveFontBack() {
  if (gl_ != nullptr) font_.giveBack(*gl_);
}

}  // namespace mst
