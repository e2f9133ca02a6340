// The OpenGL behind an "OpenGLControl": a context of its own, which draws into memory of exactly the control's size. The
// control's window shows that as a picture, so that what is on the screen never depends on how the system composes windows.
#pragma once

#include <functional>
#include <string>

#include "standin/windows/picture.h"
#include "standin/windows/system.h"

namespace standin {

class GlArea {
 public:
  explicit GlArea(HWND window);
  ~GlArea();
  GlArea(const GlArea&) = delete;
  GlArea& operator=(const GlArea&) = delete;

  // False when the system's OpenGL cannot draw into memory.
  bool works() const { return framebuffer_ != 0; }

  // Makes the call with the context current and the viewport over the whole area, and makes the context current again that
  // was so before. Gives what the call left changed, or did wrong; empty when nothing. What a call that draws has drawn is
  // kept.
  std::string during(const std::function<void()>& call, bool draws);
  // Shows what was drawn last.
  void show() const;
  // What was drawn last.
  const Picture& drawn() const { return drawn_; }

 private:
  void makeMemory();
  void fitMemory();
  void keep();

  HWND window_;   // shows
  HWND surface_;  // never seen; the system gives contexts to windows only. It keeps its device context for good.
  HDC dc_;
  HGLRC context_ = nullptr;
  unsigned framebuffer_ = 0;
  unsigned colours_ = 0;
  unsigned depths_ = 0;
  SIZE size_{};
  Picture drawn_;
};

}  // namespace standin
