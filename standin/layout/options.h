// What is known of the real Layout leaves some behaviour open. The defaults here are the strict, well-behaved reading; tests
// turn single ones round to see that the module works either way.
#pragma once

#include <cstdint>
#include <string>

namespace standin {

struct LayoutOptions {
  bool newNullSelected = true;              // AddNull makes the new null the selection
  bool newBonesSelected = false;            // SkelegonsToBones makes the new bones the selection
  bool selectedItemsNullWhenEmpty = false;  // the selection is a null pointer, not an empty list, when nothing is selected
  bool topBoneHasParent = true;             // the parent of a topmost bone is its object, not null
  bool nullFileNameIsEmpty = false;         // the file name of an object without a file is empty, not null
  bool noWeightMapIsEmpty = false;          // the weight map name of a bone without one is empty, not null
  int layerBase = 0;                        // what the first layer of a file is called by the query for the loaded layer
  int keysOnNewItems = 1;                   // keys of each motion channel of a new item, a second apart from time 0
  double framesPerSecond = 30;
  std::string missingChannel;                     // motion channel that items do not have, "Position.X" for example
  std::string channelWithoutKeys;                 // motion channel that has no envelope
  bool decoyChannel = false;                      // the group below an item's group holds a channel "Position.X" as well
  std::uint64_t highIdBits = 0x7A5C000000000000;  // above the 32 bits of an item identifier that count

  bool operator==(const LayoutOptions&) const = default;
};

}  // namespace standin
