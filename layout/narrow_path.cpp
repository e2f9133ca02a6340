#include "layout/narrow_path.h"

#include <algorithm>
#include <utility>

#include "host/platform.h"

namespace lwp {

const std::string& CNarrowPath::ToNarrowPath(const char* utf8) {
  if (utf8 == nullptr) {
    path_.clear();
    utf8_.clear();
    return path_;
  }
  const std::u16string wide = platform::utf16FromUtf8(utf8);
  const std::size_t units = wide.size() + 1;
  if (units > std::min(kMaxPathUnits, kPathBufferUnits)) return path_;
  std::string narrow = platform::narrowFromUtf16(wide);
  if (narrow.size() + 1 > kMaxPathBytes) return path_;
  utf8_ = utf8;
  path_ = std::move(narrow);
  return path_;
}

}  // namespace lwp
