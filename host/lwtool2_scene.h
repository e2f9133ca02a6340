// Layout's scene as the conversion needs it: items by name, kinds, the selection, and motion channels.
// To be called in Layout only, after its services were acquired.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "interface/lightwave.h"

namespace lw {

enum class ItemKind : int {
  OtherObject = 0,  // no file, or a file that is not named *.lwo
  FileObject = 1,
  Bone = 2,
  Light = 3,
  Camera = 4,
  Other = 5,
};
ItemKind ClassifyItem(ItemId item);

// The item's name as the host has it now; empty where the host gives none.
std::string itemName(ItemId item);

// The object part (group 1) or the layer part (group 2) of an item name "object:layer"; empty when the name has another
// form.
std::string SplitItemName(ItemId item, int group);

// The number by which a command names the item. Only the low 32 bits count there.
unsigned commandId(ItemId item);

// Items by name during one run. The first item wins in this order: each object followed by its bones, then the lights, then
// the cameras.
//
// The scene is walked once and what was found is kept: a walk for every name would make large rigs slow. Other plug-ins may
// add and rename items in answer to our commands, so nothing of it is simply believed: a kept item is asked its name, and a
// name that no kept item bears is looked for in the scene before it counts as missing. So a name that is there costs one
// question, and one that is missing costs a walk.
//
// What this does not notice is an item that comes to stand before the kept one under the same name; forget() does.
class CSceneItems {
 public:
  // The first item of exactly that name, or null.
  ItemId FindItemByName(const std::string& name);

  // Tells of a new item that was asked for under `name`. Cheap while no other item has that name.
  void added(ItemId item, const std::string& name);

  // Lets the next search walk the scene again.
  void forget() { walked_ = false; }

 private:
  void walk();

  std::unordered_map<std::string, ItemId> first_;
  bool walked_ = false;
};

using Selection = std::vector<ItemId>;

// The selected items, each once, in the host's order.
Selection SaveSelection();

// Selects the items again, from the last to the first. An empty list changes nothing.
bool RestoreSelection(const Selection& selection);

// Saves the selection now and restores it at the end of its life, also when a throw ends it.
class CSavedSelection {
 public:
  CSavedSelection() : items_(SaveSelection()) {}
  ~CSavedSelection();
  CSavedSelection(const CSavedSelection&) = delete;
  CSavedSelection& operator=(const CSavedSelection&) = delete;
  const Selection& items() const { return items_; }

 private:
  Selection items_;
};

// Sets a motion channel, named by its path below the item's channel group ("Position.X"): the value of its only key, else
// of a key at the current time. Throws CBaseEx when there is no such channel or the host does not change the only key;
// nothing else ends a run. A channel without an envelope holds no keys: that is reported, and the channel is left as it is.
void SetChannelValue(ItemId item, const char* pathName, double value);

// Metres, radians (heading, pitch, bank), factors. All true; they throw as SetChannelValue does.
bool SetPosition(ItemId item, double x, double y, double z);
bool SetRotation(ItemId item, double h, double p, double b);
bool SetScale(ItemId item, double x, double y, double z);
bool ResetRotation(ItemId item);
bool ResetScale(ItemId item);

}  // namespace lw
