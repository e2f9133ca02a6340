// Object files are opened by narrow paths, while the host names them in UTF-8.
#pragma once

#include <cstddef>
#include <string>

namespace lwp {

// Limits of the conversion, each with the closing zero, as the system's own conversion counts.
inline constexpr std::size_t kMaxPathUnits = 4096;    // UTF-16 units that are looked at
inline constexpr std::size_t kMaxPathBytes = 4096;    // narrow bytes
inline constexpr std::size_t kPathBufferUnits = 260;  // UTF-16 units that are written: the system's longest classic path

// Converts paths and remembers the last one.
class CNarrowPath {
 public:
  // The narrow form of a UTF-8 path; empty for a null one. A path beyond a limit leaves the previous one in place,
  // for the one buffer is simply not written.
  const std::string& ToNarrowPath(const char* utf8);

  // The same path as the host gave it. Names are to be taken from this one: in a narrow text the second byte of a letter may
  // look like a backslash.
  const std::string& utf8() const { return utf8_; }

 private:
  std::string path_;
  std::string utf8_;
};

}  // namespace lwp
