// What a walk over the panels expects of the mesh: tags and selection of each skelegon, changed by the walk's own few lines for
// the storing rules, and the steps by which the user goes back.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "standin/modeler/modeler_object.h"

namespace varnel::test::walk {

inline constexpr std::size_t kNone = static_cast<std::size_t>(-1);
inline constexpr std::uint32_t kFamily = 0x73673100;  // the tags of settings: the family, then the slot
inline constexpr std::uint32_t kColourCopy = kFamily | 129;

// Skelegons are known by their places in scan order.
using Places = std::vector<std::size_t>;

struct Skelegon {
  const standin::MeshPolygon* polygon = nullptr;
  std::array<double, 3> head{};
  std::size_t parent = kNone;  // the one that ends where this one begins; the rig has no points where two end
  std::map<std::uint32_t, std::string> tags;
  bool isSelected = false;
  bool isThere = true;

  // Empty where there is no such tag.
  std::string text(std::uint32_t type) const;
  std::string name() const { return text(lw::kTagBone); }
};

class Mesh {
 public:
  explicit Mesh(const standin::ModelerObject& object);

  const Skelegon& operator[](std::size_t place) const { return skelegons_[place]; }
  std::size_t size() const { return skelegons_.size(); }
  Places living() const;
  Places inFront() const;   // living, in a layer of the foreground
  Places selected() const;  // of those

  // The user's own selecting and showing of layers: no steps. What leaves the foreground is selected no more.
  void selectAsUser(const Places& chosen);
  void showLayers(const std::vector<int>& front);

  // Parts of a step. What changes nothing is none.
  void put(std::size_t place, std::uint32_t type, const std::string& text);
  void putOnSelected(std::uint32_t type, const std::string& text);
  // The setting with its default: the default text is not stored.
  void putValue(int slot, std::string text);
  void resetSettings(std::size_t place);
  void select(const Places& chosen);
  void remove(const Places& places);
  // All since the last call are one step.
  void endStep();

  bool undo();
  bool redo();

  // What differs from the object; empty when nothing does.
  std::string difference(const standin::ModelerObject& object) const;

 private:
  enum class What { Tag, Selection, Existence };
  struct Change {
    What what;
    std::size_t place;
    std::uint32_t type;  // of a tag
    std::optional<std::string> before;
    std::optional<std::string> after;
  };
  using Step = std::vector<Change>;

  bool isInFront(const Skelegon& skelegon) const;
  void change(What what, std::size_t place, std::uint32_t type, std::optional<std::string> after);
  std::optional<std::string> present(What what, std::size_t place, std::uint32_t type) const;
  void set(const Change& change, const std::optional<std::string>& value);

  std::vector<Skelegon> skelegons_;
  std::vector<int> front_;  // layers
  Step open_;
  std::vector<Step> past_;
  std::vector<Step> future_;
};

}  // namespace varnel::test::walk
