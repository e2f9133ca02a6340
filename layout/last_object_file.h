// The object file that a run of the conversion has read last. Each layer of a file is an item of its own in Layout; those
// that are selected follow each other as a rule, and a character's file takes long to read.
#pragma once

#include <string>

#include "layout/narrow_path.h"
#include "reader/object_reader.h"

namespace lwp {

// For one run only: between runs the user may save the file. Within a run nothing writes it; the commands that are sent
// change the scene alone. No second file is kept, for a file may be large.
class CLastObjectFile {
 public:
  explicit CLastObjectFile(CNarrowPath& path) : path_(path) {}

  // The file of that path (UTF-8; may be null, which names none), read unless it was read last. Null when it cannot be read.
  // What it gives is good until the next call.
  const st::ObjectFileData* read(const char* utf8);

  // The path (UTF-8) of what was read.
  const std::string& utf8() const { return path_.utf8(); }

 private:
  CNarrowPath& path_;
  st::ObjectFileData data_;
};

}  // namespace lwp
