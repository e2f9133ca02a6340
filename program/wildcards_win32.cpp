#include "program/wildcards.h"

#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "objectfile/file_bytes.h"

namespace standin {
namespace {

namespace fs = std::filesystem;

bool isSame(wchar_t a, wchar_t b) { return CompareStringOrdinal(&a, 1, &b, 1, TRUE) == CSTR_EQUAL; }

// The system's own search would compare the short names too: "*.lwo" would find rig.lwobak.
bool fits(std::wstring_view name, std::wstring_view pattern) {
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::wstring_view::npos;  // the last one, which takes ever more of the name when the rest does not fit
  std::size_t taken = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == L'*') {
      star = p++;
      taken = n;
    } else if (p < pattern.size() && (pattern[p] == L'?' || isSame(pattern[p], name[n]))) {
      ++p;
      ++n;
    } else if (star != std::wstring_view::npos) {
      p = star + 1;
      n = ++taken;
    } else {
      return false;
    }
  }
  return pattern.substr(p).find_first_not_of(L'*') == std::wstring_view::npos;
}

bool hasWildcards(std::wstring_view text) { return text.find_first_of(L"*?") != std::wstring_view::npos; }

// The entries of a folder that fit, each behind the folder as it was typed.
std::vector<fs::path> entries(const fs::path& folder, const std::wstring& pattern) {
  std::vector<fs::path> found;
  std::error_code error;
  for (fs::directory_iterator entry(folder.empty() ? fs::path(L".") : folder, error), end; !error && entry != end;
       entry.increment(error)) {
    const fs::path name = entry->path().filename();
    if (fits(name.native(), pattern)) found.push_back(folder / name);
  }
  std::sort(found.begin(), found.end());
  return found;
}

std::vector<fs::path> expand(const fs::path& typed) {
  std::vector<fs::path> paths{typed.root_path()};
  for (const fs::path& part : typed.relative_path()) {
    std::vector<fs::path> next;
    for (const fs::path& path : paths) {
      if (hasWildcards(part.native())) {
        const std::vector<fs::path> found = entries(path, part.native());
        next.insert(next.end(), found.begin(), found.end());
      } else {
        next.push_back(path / part);
      }
    }
    paths = std::move(next);
  }
  std::erase_if(paths, [](const fs::path& path) {
    std::error_code error;
    return !fs::exists(path, error);
  });
  return paths;
}

}  // namespace

std::vector<std::string> expandWildcards(const std::vector<std::string>& words) {
  std::vector<std::string> expanded;
  for (const std::string& word : words) {
    const fs::path typed = pathFromUtf8(word);
    const bool isPattern = !word.starts_with('-') && hasWildcards(typed.native());
    std::vector<fs::path> found = isPattern ? expand(typed) : std::vector<fs::path>();
    if (found.empty()) expanded.push_back(word);
    for (const fs::path& path : found) expanded.push_back(utf8Of(path));
  }
  return expanded;
}

}  // namespace standin
