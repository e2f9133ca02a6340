#include "standin/core/shared_library.h"

#include <filesystem>
#include <system_error>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace standin {
namespace {

// Absolute, since the loaders look for a bare name in places of their own. Empty, with a sentence, when there is no file.
std::filesystem::path existingFile(const std::string& path, std::string& why) {
  std::error_code error;
  const std::filesystem::path file(std::u8string(path.begin(), path.end()));
  if (!std::filesystem::is_regular_file(file, error)) {
    why = "there is no file \"" + path + '"';
    return {};
  }
  return std::filesystem::absolute(file, error);
}

}  // namespace

#ifdef _WIN32

void* openLibrary(const std::string& path, std::string& why) {
  const std::filesystem::path file = existingFile(path, why);
  if (file.empty()) return nullptr;
  HMODULE library = LoadLibraryW(file.c_str());
  if (library == nullptr) why = path + " cannot be loaded (error " + std::to_string(GetLastError()) + ")";
  return library;
}

const void* findSymbol(void* library, const char* name) {
  return reinterpret_cast<const void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

void closeLibrary(void* library) { FreeLibrary(static_cast<HMODULE>(library)); }

bool isLibraryLoaded(const std::string& path) {
  std::string why;
  const std::filesystem::path file = existingFile(path, why);
  return !file.empty() && GetModuleHandleW(file.c_str()) != nullptr;
}

#else

void* openLibrary(const std::string& path, std::string& why) {
  const std::filesystem::path file = existingFile(path, why);
  if (file.empty()) return nullptr;
  void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) why = path + " cannot be loaded: " + dlerror();
  return library;
}

const void* findSymbol(void* library, const char* name) { return dlsym(library, name); }

void closeLibrary(void* library) { dlclose(library); }

bool isLibraryLoaded(const std::string& path) {
  std::string why;
  const std::filesystem::path file = existingFile(path, why);
  void* library = file.empty() ? nullptr : dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (library != nullptr) dlclose(library);
  return library != nullptr;
}

#endif

}  // namespace standin
