// The rigs that are shipped, made by the stand-in's own writer.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "objectfile/object_file.h"

namespace standin {

// A lizard of two layers, "Lizard" and "Tail": meshes, a weight map for each bone and 24 skelegons that together store every
// bone setting but the two weight switches, helper nulls of all seven kinds among them. One conversion brings all of it to the
// bones.
ObjectFile makeDemoRig();
// The same skelegons in three boxes, for those who play a rig thousands of times, once for each call that fails.
ObjectFile makeBoxedLizard();
// The boxed one with what one conversion does not bring as it is stored: both weight switches, and a colour of which Layout
// reads the host's empty half.
ObjectFile makeEverySettingRig();

// The lizard with Japanese names, for pictures: 腰, 背骨①, 前足_L_01, 尾_01.
ObjectFile makeJapaneseLizard();
// A name of the lizard's, or a text with some in it, as the Japanese one has it.
std::string lizardNameInJapanese(std::string text);

// A doll with names, weight maps and linked items in Japanese. The map of its head has another name than the bone.
ObjectFile makeJapaneseRig();
// The same skelegons in a box.
ObjectFile makeBoxedDoll();

// `skelegons` in one chain, each with its first `settingsEach` (0 to 20) settings stored, for measurements. Names are unique
// up to 50,000 skelegons and begin again after that, since a file can number 65,536 different texts.
ObjectFile makeChainRig(std::size_t skelegons, std::size_t settingsEach);

// Write them as object files. Empty when written, else the failure.
std::optional<Failure> writeDemoRig(const std::string& path);
std::optional<Failure> writeJapaneseRig(const std::string& path);

}  // namespace standin
