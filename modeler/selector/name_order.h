// The order in which a person lists names: numbers inside them count as numbers, so that Bone2 comes before Bone10.
#pragma once

#include <string_view>

namespace mst {

// True when `first` comes before `second`. Apart from the numbers it goes by bytes. Names that differ only in leading zeros
// of their numbers are equal.
bool comesBefore(std::string_view first, std::string_view second);

}  // namespace mst
