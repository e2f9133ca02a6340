// What Modeler makes of several tags of one type that a file stores on one polygon: it holds one, and saves one.
#pragma once

#include "objectfile/object_file.h"

namespace standin {

// The object as it is with one tag of each type on each polygon: the first of the file, or the last. Its chunks hold no
// others either, so that none comes back when the object is saved.
Outcome<ObjectFile> withOneOfEachTag(ObjectFile object, bool theFirst);

}  // namespace standin
