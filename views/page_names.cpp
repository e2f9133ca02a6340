#include "views/page_names.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>

#include "objectfile/file_bytes.h"
#include "texts/utf8.h"
#include "views/html.h"

namespace standin::views {
namespace {

namespace fs = std::filesystem;

// With a count and an extension behind it, below what the systems allow for a name.
constexpr std::size_t kLongestStem = 200;

// In whole characters.
std::string shortStem(const std::string& name) {
  std::string_view rest = name;
  while (!rest.empty() && name.size() - rest.size() < kLongestStem) texts::takeCharacter(rest);
  return name.substr(0, name.size() - rest.size());
}

// Only of the letters that are in every code page: others are as they stand.
std::string withoutCase(std::string name) {
  std::transform(name.begin(), name.end(), name.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return name;
}

}  // namespace

std::vector<std::string> pageNames(const std::vector<std::string>& paths) {
  std::set<std::string> taken = {kIndexPage};
  std::vector<std::string> names;
  for (const std::string& path : paths) {
    const std::string stem = shortStem(utf8Of(pathFromUtf8(path).stem()));
    std::string name = stem + ".html";
    for (std::size_t n = 2; !taken.insert(withoutCase(name)).second; ++n) name = stem + '-' + std::to_string(n) + ".html";
    names.push_back(name);
  }
  return names;
}

ManualPlace manualAt(const std::string& place, const std::string& reportFolder) {
  if (place.empty()) return {};
  if (place.find("://") != std::string::npos) return {place.ends_with('/') ? place : place + '/'};
  const fs::path folder = pathFromUtf8(place);
  // As the paths are written, since that is how the reader's browser will go.
  const auto plain = [](const fs::path& path) { return fs::absolute(path).lexically_normal(); };
  const fs::path way = plain(folder / "").lexically_proximate(plain(pathFromUtf8(reportFolder) / ""));
  const auto utf8 = way.relative_path().generic_u8string();
  std::string link = linkTo(std::string(utf8.begin(), utf8.end()));
  if (!link.ends_with('/')) link += '/';
  // No way leads there from another drive.
  if (way.is_absolute()) link.insert(0, "file:///" + way.root_name().string() + '/');
  // The manual as it is written, where no pages have been made of it.
  std::error_code error;
  const bool isMade = fs::exists(folder / "en" / "surprises.html", error);
  return {link, isMade ? ".html" : ".md"};
}

}  // namespace standin::views
