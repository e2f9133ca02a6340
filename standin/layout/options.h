// What is known of the real Layout leaves some behaviour open. The defaults here are the strict, well-behaved reading; the
// table of host variants and single tests turn others on to see that the module works in each.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace standin {

class Scene;

// What becomes of the selection when a command makes items.
enum class NewItems { Left, Selected, Added, Cleared };

// In which order the selection is listed.
enum class SelectionOrder { AsSelected, NewestFirst, AsInScene };

// The file name of an object without a file.
enum class NoFileName { Null, Empty, Blank, OwnName };

// The names of items that were given the same one: "a (1)" and "a (2)", "a" and "a (2)", "a" and "a (1)", or just "a" twice.
enum class Counters { All, FromTwo, FromOne, None };

// createKey at the time of a key: the value is changed, or is and null is given back, or nothing is done, or there are two
// keys then, of which the new one counts.
enum class KeyAtSameTime { Changed, ChangedSilently, Refused, Second };

// The bones of SkelegonsToBones: as in the file, each followed by those below it, or from the last to the first.
enum class BoneOrder { AsInFile, AsInTree, Reversed };

// The switches of the whole program, sent with 0 or 1: set to it, switched over without a look at it, or refused.
enum class SwitchArgument { Taken, Ignored, Refused };

// The numbers of items: far from zero, near it, or with their highest bit set.
enum class ItemNumbers { Apart, Small, High };

// Returned texts: spoilt at the next one, all in one place, or there as long as the session.
enum class TextLife { UntilNext, OnePlace, Session };

struct LayoutOptions {
  // Selection
  NewItems newNull = NewItems::Selected;
  NewItems newBones = NewItems::Left;
  bool newNullBelowSelection = false;       // AddNull makes the new null a child of the first selected item
  bool selectedItemsNullWhenEmpty = false;  // the selection is a null pointer, not an empty list, when nothing is selected
  bool selectionFollows = false;            // the list of selected items is one array that follows later selections
  SelectionOrder selectionOrder = SelectionOrder::AsSelected;

  // Items
  bool topBoneHasParent = true;  // the parent of a topmost bone is its object, not null
  NoFileName nullFileName = NoFileName::Null;
  bool noWeightMapIsEmpty = false;  // the weight map name of a bone without one is empty, not null
  int layerBase = 0;                // what the first layer of a file is called by the query for the loaded layer
  Counters counters = Counters::All;
  ItemNumbers itemNumbers = ItemNumbers::Apart;
  std::uint64_t highIdBits = 0x7A5C000000000000;  // above the 32 bits of an item identifier that count
  bool parentingReorders = false;                 // an item that is parented comes to stand behind its parent in the list
  bool parentInPlace = false;                     // an item that is parented stays where it is in space
  bool childFromOrigin = false;                   // a child counts from its parent's origin, not from its pivot
  bool pivotRotationsAdd = false;                 // RecordPivotRotation adds the angles, instead of keeping the orientation

  // SkelegonsToBones
  BoneOrder boneOrder = BoneOrder::AsInFile;
  bool bonesOfWholeFile = false;     // the skelegons of all layers become bones of the one object
  bool bonesTakeColour = true;       // the skelegon's own colour becomes the bone's
  bool skelegonsStay = false;        // they can be made into bones again
  bool noSkelegonsIsRefused = true;  // the command fails on an object without any

  // Channels and keys
  int keysOnNewItems = 1;  // keys of each motion channel of a new item, a second apart from time 0
  KeyAtSameTime keyAtSameTime = KeyAtSameTime::Changed;
  double keyTolerance = 1e-6;  // seconds within which two keys are at the same time
  double framesPerSecond = 30;
  bool nestedChannels = false;     // channels "X" in a group "Position" below the item's, not "Position.X" in the item's
  std::string missingChannel;      // motion channel that items do not have, "Position.X" for example
  std::string channelWithoutKeys;  // motion channels whose names begin so have no envelope
  bool decoyChannel = false;       // the group below an item's group holds a channel "Position.X" as well

  // Commands and services
  SwitchArgument switchArgument = SwitchArgument::Taken;
  int acceptedResult = 1;           // of a command that is accepted
  int statusResult = 1;             // of StatusMsg
  bool oneInterfaceRecord = false;  // the interface service is one record, filled anew when it is asked for
  bool oneTimeRecord = false;
  TextLife textLife = TextLife::UntilNext;
  // Another plug-in, which may change the scene in answer to a command that was accepted.
  void (*otherPlugin)(Scene&, std::string_view command) = nullptr;

  bool operator==(const LayoutOptions&) const = default;
};

}  // namespace standin
