#include "tests/pictures/gl_window.h"

#include <GL/gl.h>

#include <algorithm>
#include <stdexcept>

namespace pictures {
namespace {

constexpr wchar_t kClass[] = L"GlWindow";

void must(bool done, const char* what) {
  if (!done) throw std::runtime_error(what);
}

void registerClass() {
  WNDCLASSW windowClass{};
  windowClass.style = CS_OWNDC;
  windowClass.lpfnWndProc = DefWindowProcW;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = kClass;
  static const bool isRegistered = RegisterClassW(&windowClass) != 0;
  must(isRegistered, "RegisterClass");
}

}  // namespace

GlWindow::GlWindow(int width, int height) : width_(width), height_(height) {
  registerClass();
  window_ =
      CreateWindowExW(0, kClass, L"", WS_POPUP, 0, 0, width, height, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  must(window_ != nullptr, "CreateWindow");
  device_ = GetDC(window_);
  PIXELFORMATDESCRIPTOR format{};
  format.nSize = sizeof format;
  format.nVersion = 1;
  format.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
  format.iPixelType = PFD_TYPE_RGBA;
  format.cColorBits = 24;
  format.cAlphaBits = 8;
  format.cDepthBits = 24;
  must(SetPixelFormat(device_, ChoosePixelFormat(device_, &format), &format) != FALSE, "SetPixelFormat");
  context_ = wglCreateContext(device_);
  must(context_ != nullptr, "wglCreateContext");
  makeCurrent();
}

GlWindow::~GlWindow() {
  if (wglGetCurrentContext() == context_ || wglGetCurrentDC() == device_) wglMakeCurrent(nullptr, nullptr);
  wglDeleteContext(context_);
  ReleaseDC(window_, device_);
  DestroyWindow(window_);
}

void GlWindow::makeCurrent(HGLRC context) const {
  must(wglMakeCurrent(device_, context == nullptr ? context_ : context) != FALSE, "wglMakeCurrent");
  glViewport(0, 0, width_, height_);
}

standin::Picture GlWindow::read() const {
  standin::Picture picture(width_, height_);
  glReadPixels(0, 0, width_, height_, GL_RGBA, GL_UNSIGNED_BYTE, picture.pixels.data());
  for (std::uint32_t& pixel : picture.pixels) pixel |= 0xFF000000U;
  for (int y = 0; y < height_ / 2; ++y) {
    const auto row = picture.pixels.begin() + static_cast<std::ptrdiff_t>(y) * width_;
    std::swap_ranges(row, row + width_, picture.pixels.end() - static_cast<std::ptrdiff_t>(y + 1) * width_);
  }
  return picture;
}

}  // namespace pictures
