#include "standin/layout/narrow_text.h"

#ifdef _WIN32
#include <windows.h>

#include "standin/core/wide_text.h"
#endif

namespace standin {

#ifdef _WIN32

std::string fromNarrow(std::string_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0)), L'\0');
  const int length = static_cast<int>(wide.size());
  MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), length);
  return utf8(wide);
}

#else

std::string fromNarrow(std::string_view text) { return std::string(text); }

#endif

}  // namespace standin
