// The repository's documents and sources as texts, for the tests that compare the ones with the others.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace varnel::test {

namespace fs = std::filesystem;

inline fs::path repository() { return fs::path(VARNEL_REPOSITORY); }

inline std::string textOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path.string());
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// The names of a folder's files that end so, sorted.
inline std::vector<std::string> filesIn(const fs::path& folder, std::string_view extension) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == extension) names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

inline bool contains(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

inline std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = std::min(text.find('\n', from), text.size());
    lines.push_back(text.substr(from, end - from));
    from = end + 1;
  }
  return lines;
}

}  // namespace varnel::test
