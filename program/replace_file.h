// Writing files whole: what reads the file sees the old content or the new, never a part. Paths are UTF-8.
#pragma once

#include <optional>
#include <string>

#include "objectfile/outcome.h"

namespace standin {

// Fails when there is something of that name. Empty when the file was written.
std::optional<Failure> writeNewFile(const std::string& path, const std::string& bytes);

// Writes a file beside it and renames that; its permissions stay. A link is followed. After a failure the file is as it was.
std::optional<Failure> replaceFile(const std::string& path, const std::string& bytes);

}  // namespace standin
