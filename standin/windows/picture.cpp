#include "standin/windows/picture.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#endif
#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#define STBI_WRITE_NO_STDIO
#include <stb/stb_image_write.h>
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

namespace standin {

void Picture::lay(const Picture& other, int x, int y) {
  for (int row = std::max(0, -y); row < std::min(other.height, height - y); ++row) {
    for (int column = std::max(0, -x); column < std::min(other.width, width - x); ++column) {
      at(x + column, y + row) = other.at(column, row);
    }
  }
}

Picture Picture::part(const Rectangle& area) const {
  const int left = std::max(0, area.x);
  const int top = std::max(0, area.y);
  Picture cut(std::max(0, std::min(width, area.right()) - left), std::max(0, std::min(height, area.bottom()) - top));
  cut.lay(*this, -left, -top);
  return cut;
}

bool savePng(const Picture& picture, const std::string& path) {
  if (picture.isEmpty()) return false;
  std::ofstream file(std::filesystem::path(std::u8string(path.begin(), path.end())), std::ios::binary);
  const auto write = [](void* out, void* data, int size) {
    static_cast<std::ofstream*>(out)->write(static_cast<const char*>(data), size);
  };
  const int rowBytes = picture.width * 4;
  return file &&
         stbi_write_png_to_func(write, &file, picture.width, picture.height, 4, picture.pixels.data(), rowBytes) != 0 &&
         file.flush();
}

}  // namespace standin
