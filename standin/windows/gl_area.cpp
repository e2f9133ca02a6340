#include "standin/windows/gl_area.h"

// After windows.h, which they need.
#include <GL/gl.h>
#include <GL/glext.h>

#include <algorithm>
#include <vector>

#include "standin/windows/gl_state.h"

namespace standin {
namespace {

constexpr wchar_t kSurfaceClass[] = L"VarnelSurface";

// What the system's library does not export by name.
struct Framebuffers {
  PFNGLGENFRAMEBUFFERSPROC generate;
  PFNGLBINDFRAMEBUFFERPROC bind;
  PFNGLGENRENDERBUFFERSPROC generateMemory;
  PFNGLBINDRENDERBUFFERPROC bindMemory;
  PFNGLRENDERBUFFERSTORAGEPROC sizeMemory;
  PFNGLFRAMEBUFFERRENDERBUFFERPROC attach;
  PFNGLCHECKFRAMEBUFFERSTATUSPROC check;

  bool areThere() const {
    return generate != nullptr && bind != nullptr && generateMemory != nullptr && bindMemory != nullptr &&
           sizeMemory != nullptr && attach != nullptr && check != nullptr;
  }
};

// Needs a current context; the same for all contexts of one format.
const Framebuffers& framebuffers() {
  static const Framebuffers found = [] {
    Framebuffers functions{};
    const auto find = []<class Function>(const char* name, Function& function) {
      function = reinterpret_cast<Function>(reinterpret_cast<void*>(wglGetProcAddress(name)));
    };
    find("glGenFramebuffers", functions.generate);
    find("glBindFramebuffer", functions.bind);
    find("glGenRenderbuffers", functions.generateMemory);
    find("glBindRenderbuffer", functions.bindMemory);
    find("glRenderbufferStorage", functions.sizeMemory);
    find("glFramebufferRenderbuffer", functions.attach);
    find("glCheckFramebufferStatus", functions.check);
    return functions;
  }();
  return found;
}

HWND makeSurface() {
  static const bool isRegistered = [] {
    WNDCLASSW kind{};
    kind.style = CS_OWNDC;
    kind.lpfnWndProc = DefWindowProcW;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = kSurfaceClass;
    return RegisterClassW(&kind) != 0;
  }();
  static_cast<void>(isRegistered);
  return CreateWindowExW(0, kSurfaceClass, L"", WS_POPUP, 0, 0, 16, 16, nullptr, nullptr, GetModuleHandleW(nullptr),
                         nullptr);
}

HGLRC makeContext(HDC dc) {
  PIXELFORMATDESCRIPTOR wanted{};
  wanted.nSize = sizeof wanted;
  wanted.nVersion = 1;
  wanted.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
  wanted.iPixelType = PFD_TYPE_RGBA;
  wanted.cColorBits = 24;
  wanted.cDepthBits = 24;
  const int format = ChoosePixelFormat(dc, &wanted);
  return format != 0 && SetPixelFormat(dc, format, &wanted) != FALSE ? wglCreateContext(dc) : nullptr;
}

// Makes a context current for a while.
class Current {
 public:
  Current(HDC dc, HGLRC context) : beforeDc_(wglGetCurrentDC()), before_(wglGetCurrentContext()) {
    wglMakeCurrent(dc, context);
  }
  ~Current() { wglMakeCurrent(beforeDc_, before_); }
  Current(const Current&) = delete;
  Current& operator=(const Current&) = delete;

 private:
  HDC beforeDc_;
  HGLRC before_;
};

SIZE sizeOf(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  return {std::max(area.right, 1L), std::max(area.bottom, 1L)};
}

void join(std::string& text, const std::string& more) {
  if (!more.empty()) text += (text.empty() ? "" : "; ") + more;
}

}  // namespace

GlArea::GlArea(HWND window) : window_(window), surface_(makeSurface()), dc_(GetDC(surface_)), context_(makeContext(dc_)) {
  if (context_ == nullptr) return;
  const Current current(dc_, context_);
  if (framebuffers().areThere()) makeMemory();
}

GlArea::~GlArea() {
  if (context_ != nullptr) {
    if (wglGetCurrentContext() == context_) wglMakeCurrent(nullptr, nullptr);
    wglDeleteContext(context_);  // its memory goes with it
  }
  DestroyWindow(surface_);
}

void GlArea::makeMemory() {
  const Framebuffers& gl = framebuffers();
  gl.generate(1, &framebuffer_);
  gl.generateMemory(1, &colours_);
  gl.generateMemory(1, &depths_);
  gl.bind(GL_FRAMEBUFFER, framebuffer_);
  fitMemory();
  gl.attach(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, colours_);
  gl.attach(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, depths_);
  if (gl.check(GL_FRAMEBUFFER) != GL_FRAMEBUFFER_COMPLETE) framebuffer_ = 0;
}

void GlArea::fitMemory() {
  const SIZE size = sizeOf(window_);
  if (size.cx == size_.cx && size.cy == size_.cy) return;
  size_ = size;
  const Framebuffers& gl = framebuffers();
  gl.bindMemory(GL_RENDERBUFFER, colours_);
  gl.sizeMemory(GL_RENDERBUFFER, GL_RGBA8, size.cx, size.cy);
  gl.bindMemory(GL_RENDERBUFFER, depths_);
  gl.sizeMemory(GL_RENDERBUFFER, GL_DEPTH_COMPONENT24, size.cx, size.cy);
  glScissor(0, 0, size.cx, size.cy);
}

std::string GlArea::during(const std::function<void()>& call, bool draws) {
  const Current current(dc_, context_);
  fitMemory();
  framebuffers().bind(GL_FRAMEBUFFER, framebuffer_);
  glViewport(0, 0, size_.cx, size_.cy);
  const GlState before = GlState::now();
  call();
  std::string found;
  if (wglGetCurrentContext() != context_) {
    join(found, "another context was left current");
    wglMakeCurrent(dc_, context_);
  }
  join(found, before.differenceTo(GlState::now()));
  if (const std::string errors = takeGlErrors(); !errors.empty()) join(found, "OpenGL refused " + errors);
  if (draws) keep();
  return found;
}

void GlArea::keep() {
  Picture upsideDown(size_.cx, size_.cy);
  glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
  glPixelStorei(GL_PACK_ALIGNMENT, 4);
  glReadPixels(0, 0, size_.cx, size_.cy, GL_RGBA, GL_UNSIGNED_BYTE, upsideDown.pixels.data());
  glPopClientAttrib();
  drawn_ = Picture(size_.cx, size_.cy);
  for (int y = 0; y < drawn_.height; ++y) {
    for (int x = 0; x < drawn_.width; ++x) drawn_.at(x, y) = upsideDown.at(x, drawn_.height - 1 - y) | 0xFF000000U;
  }
}

void GlArea::show() const {
  if (drawn_.isEmpty()) return;
  std::vector<std::uint32_t> pixels = drawn_.pixels;
  for (std::uint32_t& pixel : pixels) {  // red and blue change places
    pixel = (pixel & 0xFF00FF00U) | (pixel & 0xFFU) << 16 | (pixel >> 16 & 0xFFU);
  }
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = drawn_.width;
  info.bmiHeader.biHeight = -drawn_.height;  // rows from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  HDC const dc = GetDC(window_);
  SetDIBitsToDevice(dc, 0, 0, static_cast<DWORD>(drawn_.width), static_cast<DWORD>(drawn_.height), 0, 0, 0,
                    static_cast<UINT>(drawn_.height), pixels.data(), &info, DIB_RGB_COLORS);
  ReleaseDC(window_, dc);
}

}  // namespace standin
