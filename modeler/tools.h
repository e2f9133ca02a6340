// The runs of the Modeler tools. Each answers non-zero for success, 0 for failure.
#pragma once

namespace mst {

inline constexpr const char* kSelectorName = "Orlo:SkelegonSelector";
inline constexpr const char* kRenamerName = "Orlo:SkelegonRenamer";
inline constexpr const char* kPropertyName = "Orlo:SkelegonProperty";

int runSelector();
int runRenamer();
int runProperty();

}  // namespace mst
