#include "views/picture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "rigs/text.h"
#include "views/palette.h"
#include "views/picture_frame.h"

namespace standin::views {
namespace {

constexpr std::size_t kMostShaded = 500;
constexpr std::size_t kMostShapes = 6000;
constexpr double kNarrowest = 240;
constexpr double kWidest = 10000;
constexpr double kTitleSize = 15;
constexpr double kNoteSize = 11;
constexpr double kNoteHeight = 16;
constexpr const char* kFonts =
    "'Noto Sans', 'Segoe UI', 'Noto Sans CJK JP', 'Noto Sans JP', 'Yu Gothic UI', Meiryo, 'Hiragino Sans', sans-serif";

// A round length that is long enough to be compared with: 1, 2 or 5 with noughts.
double roundLength(double most) {
  if (!(most > 0) || !std::isfinite(most)) return 0;
  const double power = std::pow(10, std::floor(std::log10(most)));
  for (const double factor : {5.0, 2.0}) {
    if (factor * power <= most) return factor * power;
  }
  return power;
}

class Picture {
 public:
  Picture(const PosedRig& rig, const PictureOptions& options)
      : options_(options),
        width_(std::clamp(static_cast<double>(options.width), kNarrowest, kWidest)),
        content_{rig, options_, {}, {}, {}, MeshOutline(meshesOf(rig, options))} {
    if (options_.views.empty()) options_.views = {View::Front, View::Side, View::Top, View::Turned};
    choose();
  }

  std::string svg() {
    const double top = options_.title.empty() ? 0 : kTitleSize * 2;
    const Sheet sheet = sheetOf(options_.views, extents(), width_, top);
    const std::vector<std::string> lines = noteLines();
    const double height = std::ceil(sheet.height + 8 + kNoteHeight * static_cast<double>(lines.size()) + 8);
    begin(height);
    for (std::size_t i = 0; i < sheet.frames.size(); ++i) PictureFrame(content_, sheet.frames[i], i == 0, svg_).draw();
    drawScale(sheet.frames.front(), sheet.height + 8);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      svg_.put("text",
               {{"x", coordinate(kScaleRoom)},
                {"y", coordinate(sheet.height + 8 + kNoteHeight * (static_cast<double>(i) + 0.8))}},
               lines[i]);
    }
    svg_.lineEnd();
    return svg_.take() + "\n";
  }

 private:
  static constexpr double kScaleRoom = 130;

  static bool isChosen(const PictureOptions& options, std::size_t layer) {
    return options.layers.empty() || std::find(options.layers.begin(), options.layers.end(), layer) != options.layers.end();
  }

  static std::vector<const PosedMesh*> meshesOf(const PosedRig& rig, const PictureOptions& options) {
    std::vector<const PosedMesh*> meshes;
    for (std::size_t i = 0; i < rig.layers.size(); ++i) {
      if (isChosen(options, i)) meshes.push_back(&rig.layers[i].mesh);
    }
    return meshes;
  }

  void choose() {
    const PosedRig& rig = content_.rig;
    std::vector<bool> isChosenBone;
    for (const PosedBone& bone : rig.bones) {
      content_.shapes.push_back(shapeOf(bone));
      isChosenBone.push_back(isChosen(options_, bone.layer));
      if (!isChosenBone.back()) continue;
      if (bone.isMarked) ++marked_;
      if (content_.shapes.back().isDrawn) {
        content_.bones.push_back(content_.shapes.size() - 1);
      } else {
        ++nowhere_;
      }
    }
    for (std::size_t i = 0; i < rig.nulls.size(); ++i) {
      const PosedNull& null = rig.nulls[i];
      const bool isOfOthers = !null.lines.empty() && std::none_of(null.lines.begin(), null.lines.end(),
                                                                  [&](const auto& line) { return isChosenBone[line.bone]; });
      if (isOfOthers) continue;
      if (isFinite(null.position)) {
        content_.nulls.push_back(i);
      } else {
        ++nullsNowhere_;
      }
    }
    const std::size_t count = content_.bones.size();
    content_.detail = count <= kMostShaded ? Detail::Shaded : count <= kMostShapes ? Detail::Plain : Detail::Lines;
  }

  std::vector<Extent> extents() const {
    std::vector<Extent> extents;
    for (const View view : options_.views) {
      const ViewAxes axes = axesOf(view);
      Extent extent;
      for (const Vec3& point : content_.mesh.points()) extent.add(seen(axes, point));
      for (const std::size_t bone : content_.bones) {
        for (const Vec3& corner : content_.shapes[bone].corners) extent.add(seen(axes, corner));
      }
      for (const std::size_t null : content_.nulls) extent.add(seen(axes, content_.rig.nulls[null].position));
      extents.push_back(extent);
    }
    return extents;
  }

  std::vector<std::string> notes() const {
    const Language language = options_.language;
    std::vector<std::string> notes;
    const auto add = [&](Counted what, std::size_t count) {
      if (count > 0) notes.push_back(countText(what, count, language));
    };
    const Counted bones = content_.rig.isAfter ? Counted::Bones : Counted::Skelegons;
    notes.push_back(countText(bones, content_.bones.size() + nowhere_, language));
    add(Counted::Helpers, content_.nulls.size() + nullsNowhere_);
    add(options_.marks == Marks::Problems ? Counted::Problems : Counted::Changes, marked_);
    add(Counted::Nowhere, nowhere_);
    add(Counted::NullsNowhere, nullsNowhere_);
    if (content_.detail == Detail::Lines) notes.emplace_back(remarkText(Remark::ManyBones, language));
    if (content_.mesh.isSimplified()) notes.emplace_back(remarkText(Remark::OutlineOnly, language));
    return notes;
  }

  // As many notes in a line as there is room for, beside the scale.
  std::vector<std::string> noteLines() const {
    std::vector<std::string> lines(1);
    for (const std::string& note : notes()) {
      const std::string longer = lines.back().empty() ? note : lines.back() + " · " + note;
      if (lines.back().empty() || kScaleRoom + textWidth(longer, kNoteSize) <= width_) {
        lines.back() = longer;
      } else {
        lines.push_back(note);
      }
    }
    return lines;
  }

  void begin(double height) {
    const std::string size = coordinate(width_) + " " + coordinate(height);
    SvgAttributes root = {{"xmlns", "http://www.w3.org/2000/svg"},
                          {"viewBox", "0 0 " + size},
                          {"width", coordinate(width_)},
                          {"height", coordinate(height)},
                          {"role", "img"},
                          {"font-family", kFonts},
                          {"font-size", coordinate(kNoteSize)},
                          {"fill", "currentColor"},
                          {"stroke-linejoin", "round"},
                          {"lang", options_.language == Language::Japanese ? "ja" : "en"}};
    if (options_.standsAlone) {
      root.push_back({"color", kInk});
    } else {
      root.push_back({"style", "max-width:100%;height:auto"});
    }
    svg_.begin("svg", root);
    svg_.lineEnd();
    std::string description;
    for (const std::string& note : notes()) description += (description.empty() ? "" : ", ") + note;
    svg_.put("title", {}, options_.title.empty() ? description : options_.title);
    svg_.put("desc", {}, description);
    svg_.lineEnd();
    if (options_.standsAlone) svg_.put("rect", {{"width", "100%"}, {"height", "100%"}, {"fill", kGround}});
    if (options_.title.empty()) return;
    svg_.put(
        "text",
        {{"x", "10"}, {"y", coordinate(kTitleSize * 1.3)}, {"font-size", coordinate(kTitleSize)}, {"font-weight", "bold"}},
        options_.title);
    svg_.lineEnd();
  }

  void drawScale(const Frame& frame, double top) {
    const double metres = roundLength((kScaleRoom - 24) / frame.scale);
    const double dots = metres * frame.scale;
    if (!(dots > 0)) return;
    PathData line;
    line.move(10, top + 4);
    line.line(10, top + 8);
    line.line(10 + dots, top + 8);
    line.line(10 + dots, top + 4);
    svg_.path(line, {{"fill", "none"}, {"stroke", "currentColor"}});
    svg_.put("text", {{"x", "13"}, {"y", coordinate(top + 5)}, {"font-size", "9"}}, lengthText(metres));
  }

  PictureOptions options_;
  double width_;
  PictureContent content_;
  SvgWriter svg_;
  std::size_t marked_ = 0;
  std::size_t nowhere_ = 0;
  std::size_t nullsNowhere_ = 0;
};

}  // namespace

std::string pictureSvg(const PosedRig& rig, const PictureOptions& options) {
  const char* const head = options.standsAlone ? "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" : "";
  return head + Picture(rig, options).svg();
}

}  // namespace standin::views
