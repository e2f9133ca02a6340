// The stored settings of a rig as JSON, and back into an object. The format is described in docs/rig-settings.md.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "objectfile/object_file.h"
#include "rigs/rig.h"

namespace standin::rigs {

// Ends with a line end; the same rig always gives the same text, and the file's name is not in it.
std::string exportSettings(const Rig& rig);

// What that holds of one skelegon, on one line.
std::string exportSkelegon(const Skelegon& skelegon);

// What becomes of the settings that the JSON does not list for a skelegon that it names.
enum class Unlisted { Removed, Kept };

// Gives every skelegon that the JSON names the settings that it lists; what is at its default is not stored, unless it stands so
// in the object already. Skelegons that are not named stay as they are, and so does everything but tags of settings. Refused
// whole, with the object unchanged and a sentence that says where, when anything in it is not understood. The number of tags that
// were changed.
Outcome<std::size_t> importSettings(ObjectFile& object, std::string_view json, Unlisted unlisted = Unlisted::Removed);

// The form of this JSON as a JSON Schema: every setting with its kind, choices, default and Japanese name.
std::string settingsSchema();

}  // namespace standin::rigs
