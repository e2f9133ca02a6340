// Shared libraries of this machine: dlopen or LoadLibrary.
#pragma once

#include <string>

namespace standin {

// The library at a UTF-8 path, or null and a sentence in `why`.
void* openLibrary(const std::string& path, std::string& why);
// The address of an exported data symbol, null when there is none.
const void* findSymbol(void* library, const char* name);
void closeLibrary(void* library);
// True while the file at the path is loaded, by whomever.
bool isLibraryLoaded(const std::string& path);

}  // namespace standin
