#include "layout/last_object_file.h"

namespace lwp {

const st::ObjectFileData* CLastObjectFile::read(const char* utf8) {
  // Every path goes through the conversion: it remembers the last one for an object whose path is too long.
  const std::string& narrow = path_.ToNarrowPath(utf8);
  // While nothing was read, the path of the data is empty, as that of an object without a file is.
  const bool wasReadLast = !narrow.empty() && narrow == data_.path();
  return wasReadLast || st::ReadObjectFile(data_, narrow) ? &data_ : nullptr;
}

}  // namespace lwp
