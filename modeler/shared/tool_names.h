// The names of the Modeler tools, under which the host lists them.
#pragma once

namespace mst {

inline constexpr const char* kSelectorName = "Orlo:SkelegonSelector";
inline constexpr const char* kRenamerName = "Orlo:SkelegonRenamer";
inline constexpr const char* kPropertyName = "Orlo:SkelegonProperty";

}  // namespace mst
