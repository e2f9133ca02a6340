#include "views/svg.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "rigs/text.h"
#include "texts/utf8.h"

namespace standin::views {
namespace {

// Far beyond every picture, and far below what an integer holds.
constexpr double kFarthest = 1e9;

std::int64_t hundredths(double value) {
  return std::isfinite(value) ? std::llround(std::clamp(value, -kFarthest, kFarthest) * 100) : 0;
}

void addHundredths(std::string& text, std::int64_t value) {
  if (value < 0) text += '-';
  const std::int64_t size = value < 0 ? -value : value;
  if (size >= 100 || size == 0) text += std::to_string(size / 100);
  const int rest = static_cast<int>(size % 100);
  if (rest == 0) return;
  text += '.';
  text += static_cast<char>('0' + rest / 10);
  if (rest % 10 != 0) text += static_cast<char>('0' + rest % 10);
}

const char* entityOf(char character) {
  switch (character) {
    case '&': return "&amp;";
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '"': return "&quot;";
    case '\'': return "&#39;";
    default: return nullptr;
  }
}

// The two that end every plane, and those that are set aside for programs' own use.
bool isNoCharacter(char32_t character) {
  return (character & 0xFFFE) == 0xFFFE || (character >= 0xFDD0 && character <= 0xFDEF);
}

}  // namespace

std::string xmlText(std::string_view text) {
  const std::string printable = rigs::printable(text);
  std::string_view rest = printable;
  std::string out;
  while (!rest.empty()) {
    const std::string_view from = rest;
    const char32_t character = texts::takeCharacter(rest);
    const std::string_view bytes = from.substr(0, from.size() - rest.size());
    if (const char* const entity = entityOf(bytes.front())) {
      out += entity;
    } else if (isNoCharacter(character)) {
      out += "\xEF\xBF\xBD";
    } else {
      out += bytes;
    }
  }
  return out;
}

std::string coordinate(double value) {
  std::string text;
  addHundredths(text, hundredths(value));
  return text;
}

std::string exactNumber(double value) {
  if (!std::isfinite(value) || value == 0) return "0";
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, 9).ptr;
  return {text.data(), end};
}

// ---------------------------------------------------------------------------------------------------------------------

void PathData::add(std::int64_t value) {
  const char last = text_.empty() ? ' ' : text_.back();
  const bool isApart = value < 0 || last == 'm' || last == 'l' || last == 'M';
  if (!isApart) text_ += ' ';
  addHundredths(text_, value);
}

void PathData::go(double x, double y) {
  const std::int64_t newX = hundredths(x);
  const std::int64_t newY = hundredths(y);
  add(newX - x_);
  add(newY - y_);
  x_ = newX;
  y_ = newY;
}

void PathData::move(double x, double y) {
  text_ += text_.empty() ? 'M' : 'm';
  go(x, y);
  startX_ = x_;
  startY_ = y_;
  isLetterNeeded_ = true;
}

void PathData::line(double x, double y) {
  if (isLetterNeeded_) text_ += 'l';
  isLetterNeeded_ = false;
  go(x, y);
}

void PathData::close() {
  text_ += 'z';
  x_ = startX_;
  y_ = startY_;
  isLetterNeeded_ = true;
}

// ---------------------------------------------------------------------------------------------------------------------

void SvgWriter::head(const char* element, const SvgAttributes& attributes) {
  text_.append("<").append(element);
  for (const SvgAttribute& attribute : attributes) {
    text_.append(" ").append(attribute.name).append("=\"").append(xmlText(attribute.value)).append("\"");
  }
}

void SvgWriter::begin(const char* element, const SvgAttributes& attributes) {
  head(element, attributes);
  text_ += '>';
  open_.push_back(element);
}

void SvgWriter::end() {
  text_.append("</").append(open_.back()).append(">");
  open_.pop_back();
}

void SvgWriter::put(const char* element, const SvgAttributes& attributes) {
  head(element, attributes);
  text_ += "/>";
}

void SvgWriter::put(const char* element, const SvgAttributes& attributes, std::string_view text) {
  begin(element, attributes);
  text_ += xmlText(text);
  end();
}

// The data is long and has nothing to escape.
void SvgWriter::path(const PathData& data, const SvgAttributes& attributes) {
  head("path", attributes);
  text_.append(" d=\"").append(data.text()).append("\"/>");
}

std::string SvgWriter::take() {
  while (!open_.empty()) end();
  return std::move(text_);
}

}  // namespace standin::views
