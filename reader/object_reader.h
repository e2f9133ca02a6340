// Reads an object file as the conversion needs it. Called by the conversion tool, once for each object.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "reader/object_file_data.h"

namespace lwp::st {

// Loads the file of that path, which is in the system's narrow code page, and parses it. True when it is a sound object
// file; else false, and 'data' is empty. Says nothing. The file's bytes are given back before it returns.
bool ReadObjectFile(ObjectFileData& data, std::string narrowPath);

// The same for a file that is in memory; 'path' is only noted. The bytes may go away afterwards.
bool ParseObjectFile(ObjectFileData& data, std::span<const std::byte> file, std::string path);

}  // namespace lwp::st
