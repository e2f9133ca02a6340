// Objects with skelegons, made in code: for tests and for the rigs that are shipped.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "objectfile/object_file.h"

namespace standin {

class RigBuilder {
 public:
  // One skelegon of the rig. Points count within its layer.
  struct Skelegon {
    std::size_t layer = 0;    // place in ObjectFile::layers
    std::size_t polygon = 0;  // place in the layer's skelegons
    std::uint32_t head = 0;
    std::uint32_t tail = 0;
  };
  struct Setting {
    std::uint8_t number;
    const char* text;
  };

  explicit RigBuilder(std::uint32_t form = kFormObject2) { object_.form = form; }

  // Begins a layer. All that follows goes into it. Without this call the first element begins layer 0, without a name.
  RigBuilder& layer(std::uint16_t number, std::string name, FilePoint pivot = {},
                    std::optional<std::uint16_t> parent = std::nullopt);

  std::uint32_t point(FilePoint position);
  void face(std::vector<std::uint32_t> points, const std::string& surface = "Default");
  // Eight points and six faces; gives the first of the eight.
  std::uint32_t box(FilePoint low, FilePoint high);
  void weightMap(std::string name, std::initializer_list<std::pair<std::uint32_t, float>> weights);

  // A skelegon on two points of its own.
  Skelegon root(const std::string& name, FilePoint head, FilePoint tail);
  // A skelegon that begins where its parent ends, which is what makes it the parent.
  Skelegon child(const Skelegon& parent, const std::string& name, FilePoint tail);
  // Skelegons end to end from the first position to the last: one position more than names.
  std::vector<Skelegon> chain(const std::vector<std::string>& names, const std::vector<FilePoint>& positions);
  // A skelegon on points that are there; without a name it gets no name tag at all.
  Skelegon between(std::uint32_t head, std::uint32_t tail, const std::optional<std::string>& name);

  void tag(const Skelegon& skelegon, std::uint32_t type, std::string text);
  void settings(const Skelegon& skelegon, std::initializer_list<Setting> list);
  // The bone colour is stored twice: where the program looks for it, and under the number of its own setting.
  void colour(const Skelegon& skelegon, const std::string& word);
  // As the panel stores that a colour is left alone: a bone of which none is stored becomes orange.
  void leaveOtherColoursAlone();

  const ObjectFile& object() const { return object_; }
  ObjectFile take() { return std::move(object_); }

 private:
  ObjectLayer& current();

  ObjectFile object_;
};

}  // namespace standin
