#include "program/nearest_name.h"

#include <algorithm>
#include <cstddef>

namespace standin {
namespace {

constexpr std::size_t kFurthest = 3;      // letters to change
constexpr std::size_t kLongestWord = 64;  // longer than any name by more than that

// Letters to put in, take out, exchange or swap with the next one until one text is the other.
std::size_t distance(const std::string& a, const std::string& b) {
  std::vector<std::vector<std::size_t>> rows(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
  for (std::size_t i = 0; i <= a.size(); ++i) {
    for (std::size_t j = 0; j <= b.size(); ++j) {
      if (i == 0 || j == 0) {
        rows[i][j] = i + j;
        continue;
      }
      rows[i][j] = std::min({rows[i - 1][j] + 1, rows[i][j - 1] + 1, rows[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0U : 1U)});
      const bool areSwapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (areSwapped) rows[i][j] = std::min(rows[i][j], rows[i - 2][j - 2] + 1);
    }
  }
  return rows.back().back();
}

}  // namespace

std::string nearestName(const std::string& word, const std::vector<std::string>& names) {
  std::string nearest;
  if (word.size() > kLongestWord) return nearest;
  // Of a short word, at most half may be wrong.
  std::size_t least = std::min(kFurthest, word.size() / 2) + 1;
  for (const std::string& name : names) {
    const std::size_t far = !word.empty() && name.starts_with(word) ? 0 : distance(word, name);
    if (far >= least) continue;
    least = far;
    nearest = name;
  }
  return nearest;
}

}  // namespace standin
