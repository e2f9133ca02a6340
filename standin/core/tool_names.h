// The tools of the module, by the names under which a user starts them.
#pragma once

namespace standin {

inline constexpr const char* kSelectorTool = "Orlo:SkelegonSelector";
inline constexpr const char* kRenamerTool = "Orlo:SkelegonRenamer";
inline constexpr const char* kPropertyTool = "Orlo:SkelegonProperty";
inline constexpr const char* kConversionTool = "Orlo:SkelegonOptimize";

}  // namespace standin
