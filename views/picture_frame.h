// Draws one view into its frame.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "views/bone_shape.h"
#include "views/label_places.h"
#include "views/mesh_outline.h"
#include "views/picture.h"
#include "views/svg.h"

namespace standin::views {

// How much of each bone there is to see: the more bones, the less, so that the picture stays one that opens at once.
enum class Detail { Shaded, Plain, Lines };

// What all frames show.
struct PictureContent {
  const PosedRig& rig;
  const PictureOptions& options;
  std::vector<BoneShape> shapes;   // of all bones; those that are not shown are not drawn
  std::vector<std::size_t> bones;  // that are drawn
  std::vector<std::size_t> nulls;
  MeshOutline mesh;
  Detail detail = Detail::Shaded;
};

class PictureFrame {
 public:
  PictureFrame(const PictureContent& content, const Frame& frame, bool isFirst, SvgWriter& svg);

  void draw();

 private:
  // Something to name.
  struct Wish {
    OnPage at;
    double weight;  // those of most are named first
    std::size_t index;
    bool isNull;
  };

  struct Label {
    double left;
    double baseline;
    std::string text;
    bool isMarked;
    bool isNull;
  };

  void drawMesh();
  void drawLines();
  void drawBones();
  void keepFromNames(std::size_t bone);
  void drawBonesAsLines();
  void drawBone(std::size_t index);
  SvgAttribute inProblemColour(const char* property) const;
  void drawMarks();
  void drawNulls();
  void drawNull(const PosedNull& null);
  void drawLabels();
  void drawLeftOut();
  void drawAxes();
  std::vector<Wish> wishes() const;
  // How many names found no room.
  std::size_t placeLabels(PathData& leaders);

  const PictureContent& content_;
  const Frame& frame_;
  bool isFirst_;
  SvgWriter& svg_;
  LabelPlaces places_;
  std::vector<BoneSpan> spans_;  // of all bones
  std::vector<Label> labels_;
  std::size_t namesLeft_ = 0;
  std::size_t edgesLeft_ = 0;
};

}  // namespace standin::views
