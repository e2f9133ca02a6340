// The scene of the stand-in Layout: items, their names, hierarchy, motions and settings, and the selection.
//
// This is the state that commands change and that the host's tables show. Nothing here knows of the binary interface but the
// handles: items are named by numbers that are unique in their low 32 bits and cannot be used as addresses.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "interface/lightwave.h"
#include "objectfile/object_file.h"
#include "standin/layout/envelope.h"
#include "standin/layout/options.h"
#include "standin/layout/settings.h"
#include "standin/layout/transform.h"

namespace standin {

inline Vec3 vectorOf(const FilePoint& point) { return {point[0], point[1], point[2]}; }

enum class ItemKind : int {
  Object = lw::kItemObject,
  Light = lw::kItemLight,
  Camera = lw::kItemCamera,
  Bone = lw::kItemBone,
};

// Items of one kind (bones: of one object) that were given the same name.
using Namesakes = std::vector<Item*>;

// The skelegons of an object that are still to become bones.
struct SkelegonSource {
  std::vector<FilePoint> points;
  std::vector<ObjectPolygon> polygons;
};

// Which layer of which loaded file an object item shows.
struct LayerSource {
  std::string path;
  int layer = 0;
};

struct Item {
  ItemKind kind = ItemKind::Object;
  std::uint32_t number = 0;  // the identifier's low 32 bits
  std::size_t serial = 0;    // place among all items ever made
  bool alive = true;
  bool selected = false;

  std::string givenName;
  Namesakes* namesakes = nullptr;
  std::size_t ordinal = 0;  // among the namesakes

  Item* owner = nullptr;  // the object of a bone, else null
  Item* parent = nullptr;
  std::vector<Item*> children;  // in no order
  std::size_t placeAmongChildren = 0;
  std::size_t placeInList = 0;  // among the items of its kind, for bones of its object
  std::vector<Item*> bones;     // of an object

  std::array<Envelope, kAxisCount> motion;
  Vec3 pivot{};
  Vec3 pivotRotation{};
  ItemSettings settings;
  BoneSettings bone;                  // of bones
  BoneRest rest;                      // of bones
  ObjectSettings object;              // of objects
  std::optional<LayerSource> source;  // of objects that come from a file
  SkelegonSource skelegons;

  // Kept by Scene::placement: while it is not valid, those of all items below are not valid either.
  bool placementValid = false;
  double placementTime = 0;
  Placement placement;

  bool isNull() const { return kind == ItemKind::Object && !source; }
};

class Scene {
 public:
  explicit Scene(LayoutOptions options);
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  const LayoutOptions& options() const { return options_; }

  // One item for each layer, in the file's order.
  std::vector<Item*> addObject(const ObjectFile& file, const std::string& path);
  Item& addNull(const std::string& name);
  Item& addLight(const std::string& name);
  Item& addCamera(const std::string& name);
  // A null parent makes a topmost bone.
  Item& addBone(Item& object, const std::string& name, Item* parentBone = nullptr);
  // Removes an item with its bones. Items below it lose their parent; who pointed to it points to nothing.
  void remove(Item& item);

  // As shown to the user: with a counter in parentheses where several items of a kind have the same name.
  std::string nameOf(const Item& item) const;
  // The first in the order objects, each followed by its bones, lights, cameras. Null when there is none.
  Item* find(std::string_view name) const;

  const std::vector<Item*>& objects() const { return lists_[0]; }
  const std::vector<Item*>& lights() const { return lists_[1]; }
  const std::vector<Item*>& cameras() const { return lists_[2]; }
  // Every item ever made, removed ones included.
  std::deque<Item>& all() { return items_; }
  const std::deque<Item>& all() const { return items_; }

  lw::ItemId idOf(const Item* item) const;
  // Null for a number that was never given out. A removed item is given, with `alive` false.
  Item* byNumber(std::uint32_t number);
  // As byNumber, but the identifier must be right in all its bits.
  Item* byId(lw::ItemId id);

  // As another plug-in may do: another name, another place among the items of its kind.
  void rename(Item& item, const std::string& name);
  void moveInList(Item& item, std::size_t place);

  // The local motion stays as it is, so the item moves in space. False when the item would come to stand below itself.
  bool setParent(Item& item, Item* parent);
  // Where the item is at a time. Good until the scene changes.
  const Placement& placement(Item& item, double time);
  // Gives the item the motion by which it is there at a time.
  void placeAt(Item& item, const Placement& wanted, double time);
  // The item's motion, pivot or order has changed.
  void moved(Item& item);
  // Adds the rotation to the pivot rotation and sets the rotation to 0, without turning the item.
  void recordPivotRotation(Item& item, double time);

  const std::vector<Item*>& selection() const { return selection_; }
  // The identifiers of the selected items as the host lists them, with the null at the end.
  std::vector<lw::ItemId> selectionList() const;
  // The same in one array that later selections change.
  const std::vector<lw::ItemId>& followingList();
  void deselectAll();
  void addToSelection(Item& item);

  // Of a fresh item: objects are textured, everything else is simply visible.
  static int freshVisibility(ItemKind kind);
  static int freshColour(ItemKind kind);

  // The vector of three motion channels that begins with `first`.
  static Vec3 motionAt(const Item& item, Axis first, double time);

 private:
  Item& make(ItemKind kind, const std::string& name, Item* owner);
  void giveName(Item& item, const std::string& name);
  void attach(Item& item, Item* parent);
  void detach(Item& item);
  std::vector<Item*>& listOf(const Item& item);
  void removeOne(Item& item);
  void dropName(Item& item);
  Vec3 originOfChildren(const Item& parent) const;
  std::uint32_t firstNumber(ItemKind kind) const;
  void selectionChanged();
  void forget(const Item& gone);

  LayoutOptions options_;
  std::deque<Item> items_;
  std::array<std::vector<Item*>, 3> lists_;
  std::array<std::vector<Item*>, 4> byKind_;  // by number, removed ones included
  std::unordered_map<std::string, Namesakes> names_;
  std::vector<Item*> selection_;
  std::vector<lw::ItemId> followingList_;
};

// The name part of a path: after the last separator of either kind, before the last full stop.
std::string fileBaseName(const std::string& path);

}  // namespace standin
