#include "standin/core/program_folder.h"

#include <cstdlib>
#include <filesystem>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace standin {
namespace {

namespace fs = std::filesystem;

#if defined(_WIN32)
constexpr const char* kModuleName = "varnel.p";

fs::path runningFile() {
  wchar_t buffer[32768];
  const DWORD length = GetModuleFileNameW(nullptr, buffer, static_cast<DWORD>(std::size(buffer)));
  return std::wstring(buffer, length);
}
#else
constexpr const char* kModuleName = "varnel.so";

fs::path runningFile() { return fs::read_symlink("/proc/self/exe"); }
#endif

std::string utf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

}  // namespace

std::string programFile() { return utf8(runningFile()); }

std::string programFolder() { return utf8(runningFile().parent_path()); }

std::string moduleFileName() { return kModuleName; }

std::string modulePath() {
  if (const char* const chosen = std::getenv("VARNEL_MODULE"); chosen != nullptr && *chosen != '\0') return chosen;
  const fs::path folder = runningFile().parent_path();
  for (const fs::path& candidate : {folder / kModuleName, folder.parent_path() / kModuleName}) {
    if (fs::exists(candidate)) return utf8(candidate);
  }
  return {};
}

}  // namespace standin
