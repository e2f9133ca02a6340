// The rig that the probe brings along, as an object file in the system's temporary folder.
//
// Layer 0 "Probe" holds a face and four skelegons, in an order that is not that of their tree: Root; below it Left and Right;
// Tip below Left. The second layer has no name, a pivot and one more skelegon. There are two weight maps, one of which has no
// name. One polygon has two tags of one type, which a file can have and a program has to choose from.
#pragma once

#include <cstdint>
#include <string>

#include "interface/lightwave.h"
#include "objectfile/temporary_folder.h"

namespace probe {

inline constexpr char kRigLayer[] = "Probe";
inline constexpr char kRigRoot[] = "ProbeRoot";
inline constexpr char kRigLeft[] = "ProbeLeft";  // of a colour
inline constexpr char kRigRight[] = "ProbeRight";
inline constexpr char kRigTip[] = "ProbeTip";      // of the weight map with a name
inline constexpr char kRigOther[] = "ProbeOther";  // alone in the second layer
inline constexpr char kRigWeightMap[] = "ProbeWeight";
inline constexpr char kRigColour[] = "Red";
inline constexpr std::uint32_t kRigTwiceTag = lw::fourCharacters('V', 'P', 'R', '2');  // on the root
inline constexpr char kRigTwiceFirst[] = "first";
inline constexpr char kRigTwiceLast[] = "last";

// Written when it is made, gone with its folder when this goes.
class RigFile {
 public:
  // Throws std::runtime_error, with the place and the system's words, where it cannot be written.
  explicit RigFile(const std::string& name = "varnel-probe.lwo");
  // UTF-8.
  const std::string& path() const { return path_; }

 private:
  standin::TemporaryFolder folder_;
  std::string path_;
};

}  // namespace probe
