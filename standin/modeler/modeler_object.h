// One object in the stand-in Modeler: layers, points, polygons with tags and selection, weight maps, and its steps back.
//
// It comes from an object file and is saved to one; what the file holds beyond this is carried through. Whatever changes it,
// an edit of the module's or a person, goes through perform() as one step, so that undo() takes it back.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "interface/lightwave.h"
#include "objectfile/object_file.h"
#include "standin/modeler/handles.h"

namespace standin {

struct MeshPoint {
  lw::PointId id = nullptr;
  int layer = 0;
  std::array<double, 3> position{};
};

struct MeshPolygon {
  lw::PolygonId id = nullptr;
  int layer = 0;  // number, 0 for the first
  std::uint32_t type = 0;
  std::vector<lw::PointId> points;
  ObjectPolygon content;  // points as the file counts them, flags, tags
  bool selected = false;  // by the user, directly
  bool deleted = false;   // still delivered, but flagged: deleted within an edit that is not done
  bool gone = false;      // deleted for good; its identifier is dead unless the step is taken back

  bool isSkelegon() const { return type == lw::kTypeBone; }
  // The text of a tag; empty for none too.
  std::string tag(std::uint32_t tagType) const;
};

struct MeshLayer {
  int number = 0;
  std::string name;
  bool foreground = false;
  std::size_t place = 0;  // among the layers of the file
};

// One change and how it was before. Steps are lists of them.
struct TagChange {
  MeshPolygon* polygon;
  std::uint32_t type;
  std::optional<std::string> before;
  std::optional<std::string> after;
};
struct SelectionChange {
  MeshPolygon* polygon;
  bool before;
  bool after;
};
struct ExistenceChange {
  MeshPolygon* polygon;
  bool before;
  bool after;
};
struct MapRemoval {
  std::size_t layer;  // place
  std::size_t position;
  VertexMap map;
};
using MeshChange = std::variant<TagChange, SelectionChange, ExistenceChange, MapRemoval>;
using MeshStep = std::vector<MeshChange>;

class ModelerObject {
 public:
  // `fileName` is empty for an object that was never saved.
  ModelerObject(ObjectFile file, std::string fileName, std::string referenceName, Handles& handles);
  ModelerObject(const ModelerObject&) = delete;
  ModelerObject& operator=(const ModelerObject&) = delete;

  // The file name, or the reference name while the object was never saved.
  const std::string& name() const { return fileName_.empty() ? referenceName_ : fileName_; }
  const std::string& referenceName() const { return referenceName_; }
  bool wasSaved() const { return !fileName_.empty(); }
  const std::vector<MeshLayer>& layers() const { return layers_; }  // by number
  // Null when there is no layer of that number.
  const MeshLayer* layer(int number) const;
  bool holdsData(const MeshLayer& layer) const;
  const std::deque<MeshPoint>& points() const { return points_; }
  const std::deque<MeshPolygon>& polygons() const { return polygons_; }  // also those that are gone
  // `id` must be a polygon of this object.
  const MeshPolygon& polygon(lw::PolygonId id) const;
  // Skelegons that are there, in the order of a scan over all layers.
  std::vector<const MeshPolygon*> skelegons() const;
  // The first skelegon of that name that is there; null when there is none.
  const MeshPolygon* skelegon(std::string_view name) const;
  const std::vector<VertexMap>& maps(const MeshLayer& layer) const;
  bool hasMap(const std::pair<std::uint32_t, std::string>& map) const;  // type and name

  // Layers of a layer choice, by number. Empty optional: no tool makes that choice.
  std::optional<std::vector<const MeshLayer*>> chosen(int layerChoice) const;
  // Polygons of a layer choice in the order in which the program delivers them: by layer, then by age. On demand also those
  // that are gone, as long as their identifiers are theirs.
  std::vector<const MeshPolygon*> scan(const std::vector<const MeshLayer*>& layers, bool withGone = false) const;
  // Number of the lowest foreground layer.
  int primaryLayer() const;

  // --- changes -----------------------------------------------------------------------------------------------------------

  // Layer numbers; the other layers are hidden.
  void showLayers(const std::vector<int>& foreground, bool deselect);
  // Selects exactly these, as the user does. It is no step.
  void select(const std::vector<const MeshPolygon*>& polygons);
  // Flags a polygon as deleted in an edit that is not done; it stays where it is.
  void markDeleted(const MeshPolygon& polygon, bool deleted = true);

  void remove(const std::vector<const MeshPolygon*>& polygons);
  void removeMap(std::uint32_t type, const std::string& name);
  // Gives the new layer's number.
  int addLayer(const std::string& name);
  lw::PointId addPoint(int layer, std::array<double, 3> position);
  // Without a name the skelegon gets no name tag.
  const MeshPolygon& addSkelegon(int layer, lw::PointId head, lw::PointId tail, const std::optional<std::string>& name);
  const MeshPolygon& addFace(int layer, const std::vector<lw::PointId>& points);
  void setTag(const MeshPolygon& polygon, std::uint32_t type, std::optional<std::string> text);

  // Makes the changes that differ from what is; they become one step, or are none. Nothing to change: no step.
  void perform(MeshStep step, bool isStep = true);
  bool undo();
  bool redo();
  std::size_t undoSteps() const { return undo_.size(); }

  // Empty when saved, else the failure.
  std::optional<Failure> save(const std::string& fileName);
  // What save would write.
  ObjectFile toFile() const;

 private:
  friend class ObjectLoader;
  MeshPolygon& own(const MeshPolygon& polygon) { return polygons_[handles_.find(polygon.id)->place]; }
  MeshPolygon& makePolygon(int layer, std::size_t group, std::uint32_t type, ObjectPolygon content);
  const MeshPolygon& addPolygon(int layer, std::uint32_t type, const std::vector<lw::PointId>& points,
                                ObjectPolygon content);
  bool ownsItsIdentifier(const MeshPolygon& polygon) const;
  MeshPoint& makePoint(const MeshLayer& layer, const FilePoint& position);
  void apply(const MeshChange& change, bool forward);
  void setThere(MeshPolygon& polygon, bool there);

  Handles& handles_;
  ObjectFile file_;  // as it was opened; polygons live in polygons_
  std::string fileName_;
  std::string referenceName_;
  std::vector<MeshLayer> layers_;
  std::deque<MeshPoint> points_;
  std::deque<MeshPolygon> polygons_;
  std::vector<std::vector<lw::PointId>> layerPoints_;          // by place of the layer, as the file counts them
  std::vector<std::vector<std::vector<std::size_t>>> groups_;  // by place of the layer and group: places in polygons_
  std::vector<MeshStep> undo_;
  std::vector<MeshStep> redo_;
};

}  // namespace standin
