// A character's mesh beside the skelegons, of which the stand-in knows nothing: what the module asks about its faces is
// answered out of an array, so that no work of the stand-in's stands in the figures. Skelegons go to the stand-in as ever.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "benchmarks/loaded_module.h"
#include "interface/lightwave.h"
#include "standin/core/globals.h"
#include "standin/modeler/mesh_edit.h"
#include "standin/modeler/modeler_host.h"

namespace varnel::bench {

struct Faces {
  std::vector<std::uint32_t> types;  // one for each face, whose identifier is the address of its type
  bool areInForeground = true;
  std::size_t scans = 0;  // that the module has made, of the skelegons too
};

inline Faces& faces() {
  static Faces faces;
  return faces;
}

// What the module calls in place of the stand-in's functions.
class FacesEdit {
 public:
  static lw::MeshEditOp* begin(int pointBytes, int edgeBytes, int polygonBytes, int mode) {
    lw::MeshEditOp* const edit = standin::beginMeshEdit(pointBytes, edgeBytes, polygonBytes, mode);
    if (edit == nullptr) return nullptr;
    standins() = *edit;
    edit->polyType = &polyType;
    edit->fastPolyScan = &fastPolyScan;
    return edit;
  }

 private:
  static lw::MeshEditOp& standins() {
    static lw::MeshEditOp edit;
    return edit;
  }

  static std::uint32_t polyType(lw::EditId state, lw::PolygonId polygon) {
    const std::vector<std::uint32_t>& types = faces().types;
    const auto offset = reinterpret_cast<std::uintptr_t>(polygon) - reinterpret_cast<std::uintptr_t>(types.data());
    const std::size_t at = offset / sizeof(std::uint32_t);
    return at < types.size() ? types[at] : standins().polyType(state, polygon);
  }

  static int fastPolyScan(lw::EditId state, lw::FastPolygonScan callback, void* user, int layers, int selectedOnly) {
    ++faces().scans;
    if (faces().areInForeground || layers == lw::kLayersAll) {
      for (std::uint32_t& type : faces().types) {
        if (const int answer = callback(user, reinterpret_cast<lw::PolygonId>(&type)); answer != 0) return answer;
      }
    }
    return standins().fastPolyScan(state, callback, user, layers, selectedOnly);
  }
};

// So many faces from now on.
inline void setFaces(std::size_t count, bool inForeground = true) {
  faces() = {std::vector<std::uint32_t>(count, lw::kTypeFace), inForeground, 0};
}

// Runs a tool whose edits meet the faces. Edits are begun by a function that the tool's activation brings along.
inline standin::Panel& openBesideFaces(standin::ModelerHost& host, standin::ModuleFile& module, const char* tool) {
  static lw::ActivateFunc toolsOwn;
  const lw::ServerRecord* const server = module.server(tool);
  if (server == nullptr) must({false, std::string("no tool ") + tool});
  toolsOwn = server->activate;
  const lw::ActivateFunc activate = [](int version, lw::GlobalFunc global, void* local, void* serverData) {
    static_cast<lw::LWModCommand*>(local)->editBegin2 = &FacesEdit::begin;
    return toolsOwn(version, global, local, serverData);
  };
  host.activate(activate);
  standin::panels().turn();
  return opened(tool);
}

}  // namespace varnel::bench
