// The OpenGL 1.x functions that the selector's tree is drawn with, as a table: the system's own in the host, a recorder in
// tests. Nothing here needs an OpenGL header or library.
#pragma once

#include <cstdint>

namespace gl {

// Values of OpenGL's own constants.
inline constexpr unsigned kLines = 0x0001;
inline constexpr unsigned kTriangles = 0x0004;
inline constexpr unsigned kQuads = 0x0007;
inline constexpr unsigned kFrontAndBack = 0x0408;
inline constexpr unsigned kLineStipple = 0x0B24;
inline constexpr unsigned kAttribStackDepth = 0x0BB0;
inline constexpr unsigned kModelViewMatrix = 0x0BA6;
inline constexpr unsigned kProjectionMatrix = 0x0BA7;
inline constexpr unsigned kMostAttribStackDepth = 0x0D35;
inline constexpr unsigned kModelView = 0x1700;
inline constexpr unsigned kProjection = 0x1701;
inline constexpr unsigned kFill = 0x1B02;
inline constexpr unsigned kColourBuffer = 0x00004000;
inline constexpr unsigned kAllAttributes = 0x000FFFFF;

inline constexpr unsigned kLineSmooth = 0x0B20;
inline constexpr unsigned kPolygonSmooth = 0x0B41;
inline constexpr unsigned kPolygonStipple = 0x0B42;
inline constexpr unsigned kCullFace = 0x0B44;
inline constexpr unsigned kLighting = 0x0B50;
inline constexpr unsigned kFog = 0x0B60;
inline constexpr unsigned kDepthTest = 0x0B71;
inline constexpr unsigned kStencilTest = 0x0B90;
inline constexpr unsigned kAlphaTest = 0x0BC0;
inline constexpr unsigned kBlend = 0x0BE2;
inline constexpr unsigned kColourLogicOperation = 0x0BF2;
inline constexpr unsigned kTexture1D = 0x0DE0;
inline constexpr unsigned kTexture2D = 0x0DE1;

inline constexpr unsigned kUnpackSwapBytes = 0x0CF0;
inline constexpr unsigned kUnpackLeastBitFirst = 0x0CF1;
inline constexpr unsigned kUnpackRowLength = 0x0CF2;
inline constexpr unsigned kUnpackSkipRows = 0x0CF3;
inline constexpr unsigned kUnpackSkipPixels = 0x0CF4;
inline constexpr unsigned kUnpackAlignment = 0x0CF5;

}  // namespace gl

struct SelectedFont {
  void* font = nullptr;
  void* selectedBefore = nullptr;
};

// Each entry is the function of its name; all are to be set.
struct GlCalls {
  void (*pushAttrib)(unsigned attributes);
  void (*popAttrib)();
  void (*getIntegers)(unsigned what, int* values);
  void (*getFloats)(unsigned what, float* values);
  void (*enable)(unsigned capability);
  void (*disable)(unsigned capability);
  void (*polygonMode)(unsigned face, unsigned mode);
  void (*pixelStore)(unsigned what, int value);

  void (*matrixMode)(unsigned mode);
  void (*loadIdentity)();
  void (*loadMatrix)(const float* sixteen);
  void (*ortho)(double left, double right, double bottom, double top, double front, double back);
  void (*translate)(double x, double y, double z);
  void (*scale)(double x, double y, double z);

  void (*clear)(unsigned buffers);
  void (*colour3)(double red, double green, double blue);
  void (*colour4)(std::uint8_t red, std::uint8_t green, std::uint8_t blue, std::uint8_t alpha);
  void (*lineWidth)(float pixels);
  void (*lineStipple)(int factor, std::uint16_t pattern);
  void (*begin)(unsigned primitive);
  void (*end)();
  void (*vertex)(double x, double y);
  void (*rasterPosition)(double x, double y);
  void (*callList)(unsigned list);
  std::uint8_t (*isList)(unsigned list);
  unsigned (*genLists)(int count);
  void (*deleteLists)(unsigned first, int count);
  unsigned (*getError)();

  // The system's own part.
  // The device context that is current for OpenGL, null when there is none.
  void* (*currentDevice)();
  // The OpenGL context that is current, null when there is none.
  void* (*currentContext)();
  // Makes the tree's font and selects it into the device context; 'font' is null when that failed. What it gives must go
  // back through giveFontBack, which selects what was selected before and deletes the font.
  SelectedFont (*selectFont)(void* device);
  void (*giveFontBack)(void* device, const SelectedFont& font);
  // With the font selected: bitmap lists of characters of its code page, and of one UTF-16 character. False: not made.
  bool (*makeByteLists)(void* device, unsigned firstCharacter, unsigned count, unsigned firstList);
  bool (*makeWideList)(void* device, char16_t character, unsigned list);
};
