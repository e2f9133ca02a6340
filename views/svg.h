// Writes SVG. Whatever it is given, what comes out is well-formed XML with finite numbers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace standin::views {

// The text as it may stand between tags and in quotation marks. Control characters and bytes that are no UTF-8 are shown as
// \xNN, and what XML has no place for at all as a replacement character.
std::string xmlText(std::string_view text);

// At most two decimals; 0 for what is not finite. No exponent.
std::string coordinate(double value);
// So many digits that the same float is read from it; 0 for what is not finite.
std::string exactNumber(double value);

// Lines in a path, in hundredths, each told by its distance from the one before, which is shortest.
class PathData {
 public:
  void move(double x, double y);
  void line(double x, double y);
  void close();

  bool empty() const { return text_.empty(); }
  const std::string& text() const { return text_; }

 private:
  void add(std::int64_t value);
  void go(double x, double y);

  std::string text_;
  std::int64_t x_ = 0;
  std::int64_t y_ = 0;
  std::int64_t startX_ = 0;
  std::int64_t startY_ = 0;
  bool isLetterNeeded_ = true;
};

struct SvgAttribute {
  const char* name;
  std::string value;
};
using SvgAttributes = std::vector<SvgAttribute>;

class SvgWriter {
 public:
  void begin(const char* element, const SvgAttributes& attributes = {});
  void end();
  // Without content.
  void put(const char* element, const SvgAttributes& attributes);
  // With a text alone.
  void put(const char* element, const SvgAttributes& attributes, std::string_view text);
  void path(const PathData& data, const SvgAttributes& attributes = {});
  void lineEnd() { text_ += '\n'; }

  // Ends what was begun.
  std::string take();

 private:
  void head(const char* element, const SvgAttributes& attributes);

  std::string text_;
  std::vector<const char*> open_;
};

}  // namespace standin::views
