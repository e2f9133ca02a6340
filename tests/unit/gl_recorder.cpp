#include "tests/unit/gl_recorder.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace mst {
namespace {

GlRecorder* recorder = nullptr;

// Some systems raise it for characters without pixels.
constexpr unsigned kOutOfMemory = 0x0505;

Spot placed(const GlRecorder::Matrix& matrix, double x, double y) {
  return {matrix.move.x + matrix.scale.x * x, matrix.move.y + matrix.scale.y * y};
}

}  // namespace

// Each takes the place of the OpenGL function of its name.
struct RecordedCalls {
  static GlRecorder& counted() {
    ++recorder->callCount;
    return *recorder;
  }
  // What is allowed between begin and end is little: everything else comes through here.
  static GlRecorder& outside(const char* what) {
    if (recorder->isDrawing_) recorder->faults.push_back(std::string(what) + " between begin and end");
    return counted();
  }

  static void pushAttrib(unsigned attributes) {
    GlRecorder& r = outside("pushAttrib");
    if (attributes != gl::kAllAttributes) r.faults.emplace_back("not all attributes were kept");
    if (r.attribDepth == r.mostAttribDepth) return static_cast<void>(r.faults.emplace_back("too many pushes"));
    ++r.attribDepth;
    r.pushed_.push_back(r.state);
  }
  static void popAttrib() {
    GlRecorder& r = outside("popAttrib");
    if (r.pushed_.empty()) return static_cast<void>(r.faults.emplace_back("a pop of what somebody else pushed"));
    --r.attribDepth;
    r.state = r.pushed_.back();
    r.pushed_.pop_back();
  }
  static void getIntegers(unsigned what, int* values) {
    GlRecorder& r = outside("getIntegers");
    *values = what == gl::kAttribStackDepth       ? r.attribDepth
              : what == gl::kMostAttribStackDepth ? r.mostAttribDepth
                                                  : r.pixelStore[what];
  }
  static void getFloats(unsigned what, float* values) {
    GlRecorder& r = outside("getFloats");
    const GlRecorder::Matrix& matrix = what == gl::kProjectionMatrix ? r.projection : r.modelView;
    std::fill_n(values, 16, 0.0F);
    values[0] = static_cast<float>(matrix.scale.x);
    values[5] = static_cast<float>(matrix.scale.y);
    values[12] = static_cast<float>(matrix.move.x);
    values[13] = static_cast<float>(matrix.move.y);
  }
  static void enable(unsigned capability) { outside("enable").state.enabled.insert(capability); }
  static void disable(unsigned capability) { outside("disable").state.enabled.erase(capability); }
  static void polygonMode(unsigned /*face*/, unsigned /*mode*/) { outside("polygonMode"); }
  static void pixelStore(unsigned what, int value) { outside("pixelStore").pixelStore[what] = value; }
  static void matrixMode(unsigned mode) { outside("matrixMode").state.matrixMode = mode; }
  static void loadIdentity() { outside("loadIdentity").matrix() = {}; }
  static void loadMatrix(const float* m) { outside("loadMatrix").matrix() = {{m[0], m[5]}, {m[12], m[13]}}; }
  static void ortho(double left, double right, double bottom, double top, double front, double back) {
    GlRecorder& r = outside("ortho");
    if (r.state.matrixMode != gl::kProjection) r.faults.emplace_back("ortho for another matrix");
    r.ortho = {left, right, bottom, top, front, back};
    r.projection = {{2 / (right - left), 2 / (top - bottom)}, {-1, 1}};
  }
  static void translate(double x, double y, double /*z*/) {
    GlRecorder::Matrix& matrix = outside("translate").matrix();
    matrix.move = placed(matrix, x, y);
  }
  static void scale(double x, double y, double /*z*/) {
    GlRecorder::Matrix& matrix = outside("scale").matrix();
    matrix.scale = {matrix.scale.x * x, matrix.scale.y * y};
  }
  static void clear(unsigned /*buffers*/) { ++outside("clear").clears; }
  static void colour3(double red, double green, double blue) { counted().state.colour = {red, green, blue}; }
  static void colour4(std::uint8_t red, std::uint8_t green, std::uint8_t blue, std::uint8_t /*alpha*/) {
    counted().state.colour = {red / 255.0, green / 255.0, blue / 255.0};
  }
  static void lineWidth(float pixels) { outside("lineWidth").state.width = pixels; }
  static void lineStipple(int factor, std::uint16_t pattern) {
    if (factor != 1) recorder->faults.emplace_back("another stipple factor");
    outside("lineStipple").state.pattern = pattern;
  }
  static void begin(unsigned primitive) {
    GlRecorder& r = outside("begin");
    r.isDrawing_ = true;
    const bool isDotted = primitive == gl::kLines && r.state.enabled.contains(gl::kLineStipple);
    r.shapes.push_back({primitive, r.state.colour, isDotted, r.state.pattern, r.state.width, {}});
  }
  static void end() {
    GlRecorder& r = counted();
    if (!r.isDrawing_) r.faults.emplace_back("end without begin");
    r.isDrawing_ = false;
  }
  static void vertex(double x, double y) {
    GlRecorder& r = counted();
    if (!r.isDrawing_) return static_cast<void>(r.faults.emplace_back("a vertex of nothing"));
    r.shapes.back().corners.push_back(placed(r.modelView, x, y));
  }
  static void rasterPosition(double x, double y) {
    GlRecorder& r = outside("rasterPosition");
    r.raster_ = placed(r.modelView, x, y);
    r.rasterColour_ = r.state.colour;
  }
  static void callList(unsigned list) {
    GlRecorder& r = outside("callList");
    if (!r.lists.contains(list)) r.faults.push_back("there is no list " + std::to_string(list));
    r.characters.push_back({list, r.rasterColour_, r.raster_});
  }
  static std::uint8_t isList(unsigned list) { return outside("isList").lists.contains(list) ? 1 : 0; }
  static void deleteLists(unsigned first, int count) {
    GlRecorder& r = outside("deleteLists");
    for (unsigned list = first; list < first + static_cast<unsigned>(count); ++list) {
      r.deletedLists.insert(list);
      r.lists.erase(list);
    }
  }

  static unsigned genLists(int count) {
    GlRecorder& r = outside("genLists");
    if (r.hasNoMoreLists) return 0;
    unsigned first = 1;
    for (const unsigned list : r.lists) {
      if (list >= first + static_cast<unsigned>(count)) break;
      first = list + 1;
    }
    for (unsigned list = first; list < first + static_cast<unsigned>(count); ++list) r.lists.insert(list);
    return first;
  }

  static unsigned getError() { return std::exchange(outside("getError").error, 0U); }

  static void* currentDevice() { return recorder->device; }
  static void* currentContext() { return recorder->context; }
  static SelectedFont selectFont(void* /*device*/) {
    if (!recorder->hasFont) return {};
    ++recorder->fontsMade;
    ++recorder->fontsOut;
    return {recorder, nullptr};
  }
  static void giveFontBack(void* device, const SelectedFont& font) {
    if (font.font != recorder || device != recorder->device) recorder->faults.emplace_back("another font came back");
    --recorder->fontsOut;
  }
  static void mustHaveFont() {
    if (recorder->fontsOut != 1) recorder->faults.emplace_back("lists without the font");
  }
  static bool makeByteLists(void* /*device*/, unsigned firstCharacter, unsigned count, unsigned firstList) {
    mustHaveFont();
    if (firstCharacter != 0 || count != 255) recorder->faults.emplace_back("other characters than 0 to 254");
    ++recorder->byteListRuns;
    recorder->error = kOutOfMemory;
    for (unsigned i = 0; i < count; ++i) recorder->lists.insert(firstList + i);
    return true;
  }
  static bool makeWideList(void* /*device*/, char16_t character, unsigned list) {
    mustHaveFont();
    if (!recorder->makesWideLists) return false;
    recorder->wideLists.push_back(character);
    recorder->error = kOutOfMemory;
    recorder->lists.insert(list);
    return true;
  }
};

GlRecorder::GlRecorder() { recorder = this; }
GlRecorder::~GlRecorder() { recorder = nullptr; }

void GlRecorder::clear() {
  callCount = clears = fontsMade = byteListRuns = 0;
  shapes.clear();
  characters.clear();
  wideLists.clear();
  deletedLists.clear();
}

std::vector<DrawnShape> GlRecorder::shapesOf(unsigned primitive) const {
  std::vector<DrawnShape> found;
  std::copy_if(shapes.begin(), shapes.end(), std::back_inserter(found),
               [&](const DrawnShape& shape) { return shape.primitive == primitive; });
  return found;
}

const GlCalls& GlRecorder::calls() {
  using C = RecordedCalls;
  static const GlCalls table = {
      .pushAttrib = C::pushAttrib,
      .popAttrib = C::popAttrib,
      .getIntegers = C::getIntegers,
      .getFloats = C::getFloats,
      .enable = C::enable,
      .disable = C::disable,
      .polygonMode = C::polygonMode,
      .pixelStore = C::pixelStore,
      .matrixMode = C::matrixMode,
      .loadIdentity = C::loadIdentity,
      .loadMatrix = C::loadMatrix,
      .ortho = C::ortho,
      .translate = C::translate,
      .scale = C::scale,
      .clear = C::clear,
      .colour3 = C::colour3,
      .colour4 = C::colour4,
      .lineWidth = C::lineWidth,
      .lineStipple = C::lineStipple,
      .begin = C::begin,
      .end = C::end,
      .vertex = C::vertex,
      .rasterPosition = C::rasterPosition,
      .callList = C::callList,
      .isList = C::isList,
      .genLists = C::genLists,
      .deleteLists = C::deleteLists,
      .getError = C::getError,
      .currentDevice = C::currentDevice,
      .currentContext = C::currentContext,
      .selectFont = C::selectFont,
      .giveFontBack = C::giveFontBack,
      .makeByteLists = C::makeByteLists,
      .makeWideList = C::makeWideList,
  };
  return table;
}

}  // namespace mst
