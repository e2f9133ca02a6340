// A hidden window with OpenGL of its own, to draw in and to read from.
#pragma once

#include "standin/windows/picture.h"
#include "standin/windows/system.h"

namespace pictures {

class GlWindow {
 public:
  // Its context is current afterwards; throws std::runtime_error where the system gives none.
  GlWindow(int width, int height);
  ~GlWindow();
  GlWindow(const GlWindow&) = delete;
  GlWindow& operator=(const GlWindow&) = delete;

  HDC device() const { return device_; }
  HGLRC context() const { return context_; }
  // Its device context becomes current, with its own OpenGL context or that of another window.
  void makeCurrent(HGLRC context = nullptr) const;
  // [current] What was drawn.
  standin::Picture read() const;

 private:
  int width_;
  int height_;
  HWND window_ = nullptr;
  HDC device_ = nullptr;
  HGLRC context_ = nullptr;
};

}  // namespace pictures
