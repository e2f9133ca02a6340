// Under which names the pages of a report are written, and how they are linked to.
#pragma once

#include <string>
#include <vector>

namespace standin::views {

inline constexpr const char* kIndexPage = "index.html";

// A page for each file, named after it: "lizard.html" for "rigs/lizard.lwo". No two are the same, nor the index, on systems
// either that know no case: what would be is counted, as in "lizard-2.html".
std::vector<std::string> pageNames(const std::vector<std::string>& paths);

// Where the entries of the manual are: behind this stands what a finding names. A place of the web, or a folder, which is
// linked to as it lies from the report's. Empty where there is none.
struct ManualPlace {
  std::string link;
  std::string extension = ".html";
};
ManualPlace manualAt(const std::string& place, const std::string& reportFolder);

}  // namespace standin::views
