#include "standin/panels/folded_text.h"

#include "standin/panels/metrics.h"

namespace standin {

std::size_t columnsOf(std::string_view text) {
  std::size_t columns = 0;
  while (!text.empty()) columns += isWide(takePiece(text).character) ? 2 : 1;
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
