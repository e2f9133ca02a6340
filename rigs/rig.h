// The skelegons of an object file as a rigger sees them: a tree in each layer, each skelegon with what it stores.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "objectfile/object_file.h"
#include "rigs/file_tags.h"
#include "rigs/settings.h"

namespace standin::rigs {

struct StoredSetting {
  const Setting* setting = nullptr;
  const std::string* text = nullptr;
};

struct Skelegon {
  std::size_t layer = 0;  // place in Rig::layers
  // Where it stands in the object.
  std::size_t group = 0;
  std::size_t polygon = 0;

  std::string name;  // empty without a name tag too
  FilePoint head{};
  FilePoint tail{};
  std::vector<PolygonTag> tags;  // one of a type at most
  std::vector<RepeatedTag> repeated;
  std::vector<TextlessTag> textless;

  std::optional<std::size_t> parent;  // the last in its layer that ends where this one begins, as in Modeler's tools
  std::vector<std::size_t> children;
  std::size_t number = 0;     // among those of its name in its layer, from 0
  std::size_t namesakes = 1;  // how many bear the name in its layer, this one included

  // The stored text, or null.
  const std::string* stored(const Setting& setting) const;
  // All of them, in the order of the settings.
  std::vector<StoredSetting> storedSettings() const;
};

struct Layer {
  std::uint16_t number = 0;
  std::string name;      // as stored; may be empty
  std::string itemName;  // of the item that Layout makes of it
  std::vector<std::size_t> skelegons;
};

struct Rig {
  std::string fileName;        // without its folder
  std::size_t pathLength = 0;  // of the whole path, in units of UTF-16; 0 where it is not known
  bool isInJapanese = false;   // its texts are those of the Japanese code page, not UTF-8
  std::vector<Layer> layers;
  std::vector<Skelegon> skelegons;
};

Rig rigOf(const ObjectFile& object, const std::string& fileName);

// "Tail", "(no name)", or "Tail [2]" for the second of that name.
std::string nameShown(const Skelegon& skelegon, Language language = Language::English);

// Its name, or "layer 2".
std::string nameShown(const Layer& layer, Language language);

// "BONE", or "sg1+200" for a tag of the settings' family.
std::string tagName(std::uint32_t tag);

// Tags of the settings' family that no setting has.
bool isUnknownSlot(std::uint32_t tag);

}  // namespace standin::rigs
