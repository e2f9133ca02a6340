// A picture in memory, and its way to a PNG file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "standin/panels/panel.h"

namespace standin {

struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;  // 0xAABBGGRR, rows from the top

  Picture() = default;
  Picture(int w, int h, std::uint32_t pixel = 0xFF000000U)
      : width(w), height(h), pixels(static_cast<std::size_t>(w) * static_cast<std::size_t>(h), pixel) {}

  bool isEmpty() const { return pixels.empty(); }
  // The place must lie within.
  std::uint32_t& at(int x, int y) { return pixels[static_cast<std::size_t>(y * width + x)]; }
  std::uint32_t at(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }
  // Lays another picture over this one; what lies outside is cut off.
  void lay(const Picture& other, int x, int y);
  // The part within the area, as far as it lies within the picture.
  Picture part(const Rectangle& area) const;

  friend bool operator==(const Picture&, const Picture&) = default;
};

// Writes a PNG file; the path is UTF-8. False when it could not be written.
bool savePng(const Picture& picture, const std::string& path);

}  // namespace standin
