// The system's OpenGL, and the tree's font as bitmap lists.
#include <windows.h>

#include <GL/gl.h>

#include "host/gl_calls.h"
#include "host/platform.h"

namespace platform {
namespace {

// "MS Gothic" in Japanese full-width letters, in the code page of a Japanese system.
constexpr char kFaceName[] = "\x82\x6C\x82\x72\x20\x83\x53\x83\x56\x83\x62\x83\x4E";
constexpr int kFontHeight = 12;
constexpr int kFontWidth = 6;
constexpr int kFontWeight = 100;
constexpr DWORD kJapanese = 128;
constexpr DWORD kOutputPrecision = 7;
constexpr DWORD kQuality = 4;

void* currentDevice() { return wglGetCurrentDC(); }

void* currentContext() { return wglGetCurrentContext(); }

SelectedFont selectFont(void* device) {
  const HFONT font = CreateFontA(kFontHeight, kFontWidth, 0, 0, kFontWeight, FALSE, FALSE, FALSE, kJapanese,
                                 kOutputPrecision, 0, kQuality, 0, kFaceName);
  if (font == nullptr) return {};
  const HGDIOBJ before = SelectObject(static_cast<HDC>(device), font);
  if (before == nullptr) {
    DeleteObject(font);
    return {};
  }
  return {font, before};
}

void giveFontBack(void* device, const SelectedFont& selected) {
  SelectObject(static_cast<HDC>(device), selected.selectedBefore);
  DeleteObject(selected.font);
}

bool makeByteLists(void* device, unsigned firstCharacter, unsigned count, unsigned firstList) {
  return wglUseFontBitmapsA(static_cast<HDC>(device), firstCharacter, count, firstList) != FALSE;
}

bool makeWideList(void* device, char16_t character, unsigned list) {
  return wglUseFontBitmapsW(static_cast<HDC>(device), character, 1, list) != FALSE;
}

}  // namespace

const GlCalls* glCalls() {
  static const GlCalls calls = {
      .pushAttrib = glPushAttrib,
      .popAttrib = glPopAttrib,
      .getIntegers = [](unsigned what, int* values) { glGetIntegerv(what, values); },
      .getFloats = glGetFloatv,
      .enable = glEnable,
      .disable = glDisable,
      .polygonMode = glPolygonMode,
      .pixelStore = glPixelStorei,
      .matrixMode = glMatrixMode,
      .loadIdentity = glLoadIdentity,
      .loadMatrix = glLoadMatrixf,
      .ortho = glOrtho,
      .translate = glTranslated,
      .scale = glScaled,
      .clear = glClear,
      .colour3 = glColor3d,
      .colour4 = glColor4ub,
      .lineWidth = glLineWidth,
      .lineStipple = glLineStipple,
      .begin = glBegin,
      .end = glEnd,
      .vertex = glVertex2d,
      .rasterPosition = glRasterPos2d,
      .callList = glCallList,
      .isList = glIsList,
      .genLists = glGenLists,
      .deleteLists = glDeleteLists,
      .getError = glGetError,
      .currentDevice = currentDevice,
      .currentContext = currentContext,
      .selectFont = selectFont,
      .giveFontBack = giveFontBack,
      .makeByteLists = makeByteLists,
      .makeWideList = makeWideList,
  };
  return &calls;
}

}  // namespace platform
