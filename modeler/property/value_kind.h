// The kind of value that a control of the property panel shows and takes.
#pragma once

namespace mst {

enum class ValueKind { None, Integer, Real, Text, Colour };

}  // namespace mst
