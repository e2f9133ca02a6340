// From an object file to the settings of one skelegon, as the conversion needs them. No host.
#pragma once

#include <string>
#include <string_view>

#include "reader/object_reader.h"
#include "skelegon/slots.h"

namespace lwp {

// The settings of a skelegon of the file.
skg::SkelegonProperties storedProperties(const st::ObjectFileData& data, const st::SkelegonRecord& skelegon);

// Puts the object's name and a colon wherever a text says "[file]:". What was put in is not searched again.
std::string withObjectName(std::string_view text, std::string_view objectName);
void putObjectName(skg::SkelegonProperties& properties, std::string_view objectName);

}  // namespace lwp
