// Pictures of a rig as SVG: its bones with their names over a faint mesh, its helper items and who refers to them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "views/picture_texts.h"
#include "views/posed_rig.h"
#include "views/projection.h"

namespace standin::views {

// Why bones are marked.
enum class Marks { Problems, Changes };

struct PictureOptions {
  std::vector<View> views;  // all when there is none
  int width = 960;
  bool labels = true;
  std::vector<std::size_t> layers;  // places in PosedRig::layers; all when there is none
  // With the XML head and a white ground; else an <svg> to put into a page. That one has no ground, its lines and texts have
  // the page's colour, names are edged in the page's property --ground, and what is marked is in its --problem.
  bool standsAlone = true;
  Language language = Language::English;
  Marks marks = Marks::Problems;
  std::string title = {};  // above the views; none when it is empty
};

// UTF-8, well-formed, numbers finite, nothing fetched, no script. The frame of each view tells how metres became dots:
// data-scale dots are one, and what stands at data-centre (metres to the right and up) stands at data-middle. In the first
// frame each bone tells its data-head and data-tail, each helper item its data-at, unless there are many thousands.
std::string pictureSvg(const PosedRig& rig, const PictureOptions& options);

}  // namespace standin::views
