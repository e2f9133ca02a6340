#include "standin/core/folded_text.h"

#include <cstdint>

namespace standin {
namespace {

struct Letter {
  std::uint32_t code = 0;
  std::size_t bytes = 1;
};

// A byte that begins no letter counts as a letter by itself.
Letter letterAt(const std::string& text, std::size_t at) {
  const auto first = static_cast<unsigned char>(text[at]);
  const std::size_t bytes = first < 0xC0 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  if (bytes == 1 || at + bytes > text.size()) return {first, 1};
  std::uint32_t code = first & (0xFFU >> (bytes + 1));
  for (std::size_t i = 1; i < bytes; ++i) code = (code << 6) | (static_cast<unsigned char>(text[at + i]) & 0x3FU);
  return {code, bytes};
}

// Hangul, the CJK blocks with their punctuation, full-width forms, and what lies in the planes behind.
bool isWide(std::uint32_t code) {
  return (code >= 0x1100 && code <= 0x115F) || (code >= 0x2E80 && code <= 0xA4CF) || (code >= 0xAC00 && code <= 0xD7A3) ||
         (code >= 0xF900 && code <= 0xFAFF) || (code >= 0xFE30 && code <= 0xFE6F) || (code >= 0xFF00 && code <= 0xFF60) ||
         (code >= 0xFFE0 && code <= 0xFFE6) || code >= 0x1F300;
}

}  // namespace

std::size_t columnsOf(const std::string& text) {
  std::size_t columns = 0;
  for (std::size_t at = 0; at < text.size();) {
    const Letter letter = letterAt(text, at);
    columns += isWide(letter.code) ? 2 : 1;
    at += letter.bytes;
  }
  return columns;
}

std::string folded(const std::string& line, std::size_t columns, std::size_t indent) {
  if (columnsOf(line) <= columns) return line;
  // The spaces at the front belong to the first word.
  std::size_t begin = line.find_first_not_of(' ');
  if (begin == std::string::npos) return line;
  std::string result = line.substr(0, begin);
  std::size_t used = begin;
  bool isFirstOfLine = true;
  while (begin < line.size()) {
    const std::size_t gap = line.find(' ', begin);
    const std::size_t end = gap == std::string::npos ? line.size() : gap;
    const std::string word = line.substr(begin, end - begin);
    const std::size_t width = columnsOf(word);
    if (isFirstOfLine) {
      result += word;
      used += width;
    } else if (used + 1 + width <= columns) {
      result += ' ' + word;
      used += 1 + width;
    } else {
      result += '\n' + std::string(indent, ' ') + word;
      used = indent + width;
    }
    isFirstOfLine = false;
    begin = end + 1;
  }
  return result;
}

}  // namespace standin
