#include "views/picture_frame.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "rigs/text.h"
#include "views/palette.h"

namespace standin::views {
namespace {

constexpr double kFontSize = 11;
constexpr double kCaptionHeight = 22;
constexpr double kFootHeight = 34;     // where the axes are
constexpr double kWeightOfANull = 30;  // its name is worth as much as that of a bone of this length on the page
constexpr std::size_t kMostFailures = 600;

constexpr std::size_t kMostMarks = 300;
constexpr double kLeastForAMark = 22;     // of the bone's length on the page
constexpr std::size_t kMostNulls = 1000;  // that are drawn one by one

std::string exactText(const Vec3& point) {
  return exactNumber(point[0]) + " " + exactNumber(point[1]) + " " + exactNumber(point[2]);
}

void addCross(PathData& path, const OnPage& at, double size) {
  path.move(at.x - size, at.y);
  path.line(at.x + size, at.y);
  path.move(at.x, at.y - size);
  path.line(at.x, at.y + size);
}

}  // namespace

PictureFrame::PictureFrame(const PictureContent& content, const Frame& frame, bool isFirst, SvgWriter& svg)
    : content_(content),
      frame_(frame),
      isFirst_(isFirst),
      svg_(svg),
      places_(frame.left + 3, frame.top + kCaptionHeight, frame.width - 6, frame.height - kCaptionHeight - 3) {
  for (const BoneShape& shape : content.shapes) spans_.push_back(spanOf(shape, frame));
}

void PictureFrame::draw() {
  svg_.begin("g", {{"data-view", nameOf(frame_.view, Language::English)},
                   {"data-scale", exactNumber(frame_.scale)},
                   {"data-centre", exactNumber(frame_.middleRight) + " " + exactNumber(frame_.middleUp)},
                   {"data-middle", exactNumber(frame_.middle.x) + " " + exactNumber(frame_.middle.y)}});
  svg_.put("rect", {{"x", coordinate(frame_.left + 0.5)},
                    {"y", coordinate(frame_.top + 0.5)},
                    {"width", coordinate(frame_.width - 1)},
                    {"height", coordinate(frame_.height - 1)},
                    {"rx", "4"},
                    {"fill", "none"},
                    {"stroke", "currentColor"},
                    {"stroke-opacity", ".2"}});
  svg_.put("text", {{"x", coordinate(frame_.left + 10)}, {"y", coordinate(frame_.top + 17)}, {"font-weight", "bold"}},
           nameOf(frame_.view, content_.options.language));
  drawMesh();
  drawLines();
  drawBones();
  drawNulls();
  drawMarks();
  drawAxes();
  if (content_.options.labels) drawLabels();
  drawLeftOut();
  svg_.end();
  svg_.lineEnd();
}

void PictureFrame::drawMesh() {
  const MeshDrawing mesh = content_.mesh.drawing(frame_);
  edgesLeft_ = mesh.left;
  svg_.begin("g", {{"fill", "none"}, {"stroke", "currentColor"}, {"stroke-width", ".7"}});
  if (!mesh.surface.empty())
    svg_.path(mesh.surface, {{"fill", "currentColor"}, {"fill-opacity", ".05"}, {"stroke", "none"}});
  if (!mesh.edges.empty()) svg_.path(mesh.edges, {{"stroke-opacity", ".1"}});
  if (!mesh.outline.empty()) svg_.path(mesh.outline, {{"stroke-opacity", content_.mesh.isSimplified() ? ".16" : ".26"}});
  svg_.end();
  svg_.lineEnd();
}

// From bones to the items they refer to. They begin in the bone's middle: many items lie where their bone begins.
void PictureFrame::drawLines() {
  PathData lines;
  const auto add = [&](std::size_t bone, const OnPage& to) {
    lines.move(spans_[bone].middle.x, spans_[bone].middle.y);
    lines.line(to.x, to.y);
  };
  std::vector<bool> isShown(content_.rig.bones.size());
  for (const std::size_t bone : content_.bones) isShown[bone] = true;
  for (const std::size_t null : content_.nulls) {
    const PosedNull& item = content_.rig.nulls[null];
    for (const HelperLine& line : item.lines) {
      if (isShown[line.bone]) add(line.bone, frame_.place(item.position));
    }
  }
  for (const BoneLine& line : content_.rig.boneLines) {
    if (isShown[line.from] && isShown[line.to]) add(line.from, spans_[line.to].head);
  }
  if (lines.empty()) return;
  svg_.path(lines, {{"fill", "none"}, {"stroke", "currentColor"}, {"stroke-opacity", ".6"}, {"stroke-dasharray", "3 3"}});
  svg_.lineEnd();
}

void PictureFrame::drawBones() {
  for (const std::size_t bone : content_.bones) keepFromNames(bone);
  if (content_.bones.empty()) return;
  if (content_.detail == Detail::Lines) return drawBonesAsLines();
  std::vector<std::pair<double, std::size_t>> farFirst;
  for (const std::size_t bone : content_.bones) {
    farFirst.emplace_back(-seen(frame_.axes, content_.shapes[bone].middle).away, bone);
  }
  std::sort(farFirst.begin(), farFirst.end());
  svg_.begin("g", {{"stroke", "currentColor"}, {"stroke-width", content_.detail == Detail::Shaded ? ".8" : ".5"}});
  for (const auto& [depth, bone] : farFirst) drawBone(bone);
  svg_.end();
  svg_.lineEnd();
}

// Names should rather not cover bones: all of the shape where there are few, else the line from head to tail.
void PictureFrame::keepFromNames(std::size_t bone) {
  constexpr double kStep = 3;
  constexpr int kMostSteps = 60;
  const BoneSpan& span = spans_[bone];
  places_.draw(span.head, span.tail);
  if (content_.detail != Detail::Shaded) return;
  const auto& corners = content_.shapes[bone].corners;
  for (const std::size_t side : {std::size_t{2}, std::size_t{3}}) {
    const OnPage from = frame_.place(corners[side]);
    const OnPage to = frame_.place(corners[side + 2]);
    const int steps = std::min(kMostSteps, static_cast<int>(std::hypot(to.x - from.x, to.y - from.y) / kStep));
    for (int i = 0; i <= steps; ++i) {
      const double part = steps == 0 ? 0 : static_cast<double>(i) / steps;
      const OnPage between{from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
      places_.draw(span.head, between);
      places_.draw(between, span.tail);
    }
  }
}

void PictureFrame::drawBonesAsLines() {
  std::array<PathData, kColourCount + 1> paths;
  for (const std::size_t bone : content_.bones) {
    const PosedBone& posed = content_.rig.bones[bone];
    PathData& path = paths[posed.isMarked ? kColourCount : colourIndex(posed.colour)];
    path.move(spans_[bone].head.x, spans_[bone].head.y);
    path.line(spans_[bone].tail.x, spans_[bone].tail.y);
  }
  svg_.begin("g", {{"fill", "none"}, {"stroke-width", "1.2"}, {"stroke-linecap", "round"}});
  for (std::size_t colour = 0; colour <= kColourCount; ++colour) {
    if (paths[colour].empty()) continue;
    svg_.path(paths[colour],
              {colour == kColourCount ? inProblemColour("stroke") : SvgAttribute{"stroke", kPalette[colour]}});
  }
  svg_.end();
  svg_.lineEnd();
}

// Far-reaching answers stand where they cost little: all of them while there are few bones, else in the first frame alone.
void PictureFrame::drawBone(std::size_t index) {
  const PosedBone& bone = content_.rig.bones[index];
  const BoneDrawing drawing = drawingOf(content_.shapes[index], frame_, content_.detail == Detail::Shaded);
  const bool isTold = content_.detail == Detail::Shaded || isFirst_ || bone.isMarked;
  if (isTold) {
    SvgAttributes attributes;
    if (isFirst_) attributes = {{"data-head", exactText(bone.head)}, {"data-tail", exactText(bone.tail)}};
    svg_.begin("g", attributes);
    svg_.put("title", {}, titleOf(bone, content_.options.language));
  }
  SvgAttributes look = {{"fill", kPalette[colourIndex(bone.colour)]}};
  if (bone.isMarked)
    look.insert(look.end(),
                {inProblemColour("stroke"), {"stroke-width", spans_[index].length < kLeastForAMark ? "1.2" : "2"}});
  svg_.path(drawing.outline, look);
  if (!drawing.shade.empty()) {
    svg_.path(drawing.shade, {{"fill", "#000"}, {"fill-opacity", ".3"}, {"stroke", "none"}});
  }
  if (isTold) svg_.end();
}

// A page has its own red for the dark, on which that of paper is hard to read.
SvgAttribute PictureFrame::inProblemColour(const char* property) const {
  if (content_.options.standsAlone) return {property, kProblemColour};
  return {"style", std::string(property) + ":var(--problem," + kProblemColour + ")"};
}

void PictureFrame::drawMarks() {
  std::size_t count = 0;
  for (const std::size_t index : content_.bones) {
    const PosedBone& bone = content_.rig.bones[index];
    // On a small one it would hide the bone, whose red edge tells as much.
    if (!bone.isMarked || spans_[index].length < kLeastForAMark || ++count > kMostMarks) continue;
    const OnPage& at = spans_[index].middle;
    svg_.begin("g");
    svg_.put("title", {}, titleOf(bone, content_.options.language));
    svg_.put(
        "circle",
        {{"cx", coordinate(at.x)}, {"cy", coordinate(at.y)}, {"r", "4.5"}, {"fill", kProblemColour}, {"stroke", "#fff"}});
    svg_.put("text",
             {{"x", coordinate(at.x)},
              {"y", coordinate(at.y + 2.8)},
              {"font-size", "8"},
              {"font-weight", "bold"},
              {"text-anchor", "middle"},
              {"fill", "#fff"}},
             "!");
    svg_.end();
    places_.keepFree(at.x - 5, at.y - 5, 10, 10);
  }
}

void PictureFrame::drawNulls() {
  if (content_.nulls.empty()) return;
  svg_.begin("g", {{"fill", "none"}, {"stroke", "currentColor"}});
  PathData many;
  for (const std::size_t index : content_.nulls) {
    const PosedNull& null = content_.rig.nulls[index];
    if (content_.nulls.size() <= kMostNulls) {
      drawNull(null);
    } else {
      addCross(many, frame_.place(null.position), 3);
    }
  }
  if (!many.empty()) svg_.path(many);
  svg_.end();
  svg_.lineEnd();
}

void PictureFrame::drawNull(const PosedNull& null) {
  constexpr double kSize = 6;
  const OnPage at = frame_.place(null.position);
  PathData cross;
  addCross(cross, at, kSize);
  SvgAttributes attributes;
  if (isFirst_) attributes = {{"data-at", exactText(null.position)}};
  svg_.begin("g", attributes);
  svg_.put("title", {}, titleOf(null, content_.rig.bones, content_.options.language));
  svg_.path(cross, {{"stroke-width", "3.4"}, {"stroke-linecap", "round"}});
  svg_.path(cross, {{"stroke", kPalette[colourIndex(null.colour)]}, {"stroke-width", "1.6"}, {"stroke-linecap", "round"}});
  svg_.end();
  places_.draw({at.x - kSize, at.y}, {at.x + kSize, at.y});
  places_.draw({at.x, at.y - kSize}, {at.x, at.y + kSize});
}

// ---------------------------------------------------------------------------------------------------------------------
// Names

std::vector<PictureFrame::Wish> PictureFrame::wishes() const {
  constexpr double kAlwaysFirst = 1e6;
  std::vector<Wish> wishes;
  for (const std::size_t index : content_.bones) {
    const BoneSpan& span = spans_[index];
    wishes.push_back({span.middle, span.length + (content_.rig.bones[index].isMarked ? kAlwaysFirst : 0), index, false});
  }
  for (const std::size_t index : content_.nulls) {
    wishes.push_back({frame_.place(content_.rig.nulls[index].position), kWeightOfANull, index, true});
  }
  std::stable_sort(wishes.begin(), wishes.end(), [](const Wish& a, const Wish& b) { return a.weight > b.weight; });
  return wishes;
}

std::size_t PictureFrame::placeLabels(PathData& leaders) {
  std::size_t left = 0;
  for (const Wish& wish : wishes()) {
    const PosedBone* const bone = wish.isNull ? nullptr : &content_.rig.bones[wish.index];
    const PosedNull* const null = wish.isNull ? &content_.rig.nulls[wish.index] : nullptr;
    const std::string& name = null != nullptr ? null->name : bone->name;
    // Looking on would take as long as there are bones.
    const bool isFull = left > kMostFailures;
    if (isFull && !name.empty()) {
      ++left;
      continue;
    }
    std::string text = shortened(rigs::printable(name));
    if (null != nullptr) text += captionOf(*null, content_.options.language);
    if (text.empty()) continue;
    const std::optional<LabelPlace> place =
        isFull ? std::nullopt : places_.place(wish.at, textWidth(text, kFontSize), kFontSize);
    if (!place) {
      ++left;
      continue;
    }
    if (place->leaderStart) {
      leaders.move(place->leaderStart->x, place->leaderStart->y);
      leaders.line(wish.at.x, wish.at.y);
    }
    labels_.push_back({place->left, place->baseline, std::move(text), bone != nullptr && bone->isMarked, wish.isNull});
  }
  return left;
}

void PictureFrame::drawLabels() {
  PathData leaders;
  namesLeft_ = placeLabels(leaders);
  if (!leaders.empty()) {
    svg_.path(leaders, {{"fill", "none"}, {"stroke", "currentColor"}, {"stroke-opacity", ".55"}, {"stroke-width", ".6"}});
  }
  // Edged in the ground's colour, for names may have to stand on bones.
  SvgAttributes edged = {{"stroke-width", "2.6"}, {"paint-order", "stroke"}};
  if (content_.options.standsAlone) {
    edged.push_back({"stroke", kGround});
  } else {
    edged.push_back({"style", "stroke:var(--ground,Canvas)"});
  }
  svg_.begin("g", edged);
  for (const Label& label : labels_) {
    SvgAttributes attributes = {{"x", coordinate(label.left)}, {"y", coordinate(label.baseline)}};
    if (label.isMarked) attributes.push_back(inProblemColour("fill"));
    if (label.isNull) attributes.push_back({"font-style", "italic"});
    svg_.put("text", attributes, label.text);
  }
  svg_.end();
}

void PictureFrame::drawLeftOut() {
  std::string text;
  const auto add = [&](Counted what, std::size_t count) {
    if (count == 0) return;
    text += (text.empty() ? "" : " · ") + countText(what, count, content_.options.language);
  };
  add(Counted::NamesLeftOut, namesLeft_);
  add(Counted::EdgesLeftOut, edgesLeft_);
  if (text.empty()) return;
  svg_.put("text",
           {{"x", coordinate(frame_.left + frame_.width - 10)},
            {"y", coordinate(frame_.top + 17)},
            {"text-anchor", "end"},
            {"fill-opacity", ".75"}},
           text);
}

void PictureFrame::drawAxes() {
  constexpr double kLength = 16;
  constexpr std::array kNames{"X", "Y", "Z"};
  constexpr std::array kColours{"#d1382c", "#2f9441", "#3b6fd4"};
  const OnPage origin{frame_.left + 24, frame_.top + frame_.height - 20};
  places_.keepFree(frame_.left + 4, frame_.top + frame_.height - kFootHeight - 10, 52, kFootHeight + 8);
  svg_.begin("g", {{"font-size", "9"}, {"text-anchor", "middle"}});
  for (std::size_t axis = 0; axis < 3; ++axis) {
    Vec3 direction{};
    direction[axis] = 1;
    const Seen end = seen(frame_.axes, direction);
    const double size = std::hypot(end.right, end.up);
    if (size < 0.1) continue;  // seen from its end
    PathData line;
    line.move(origin.x, origin.y);
    line.line(origin.x + end.right * kLength, origin.y - end.up * kLength);
    svg_.path(line, {{"stroke", kColours[axis]}, {"stroke-width", "1.5"}});
    const double farther = kLength + 6 / size;
    svg_.put("text",
             {{"x", coordinate(origin.x + end.right * farther)},
              {"y", coordinate(origin.y - end.up * farther + 3)},
              {"fill", kColours[axis]}},
             kNames[axis]);
  }
  svg_.end();
}

}  // namespace standin::views
