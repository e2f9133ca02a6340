// Whether a table of the host's has all the functions that the probe calls: one that is missing must not be called.
#pragma once

#include "interface/lightwave.h"

namespace probe {

template <class... Functions>
bool areThere(Functions... functions) {
  return ((functions != nullptr) && ...);
}

// What has no functions is whole as it is.
template <class Table>
bool isWhole(const Table& /*table*/) {
  return true;
}

inline bool isWhole(const lw::LWStateQueryFuncs& t) { return areThere(t.numLayers, t.object); }

inline bool isWhole(const lw::LWObjectFuncs& t) {
  return areThere(t.numObjects, t.filename, t.layerExists, t.numVMaps, t.vmapName, t.layerName, t.refName);
}

// Not `done`: an edit is ended also where other functions are missing.
inline bool isWhole(const lw::MeshEditOp& t) {
  return areThere(t.polyInfo, t.polTag, t.polyTag, t.polSelect, t.polyType, t.fastPolyScan);
}

inline bool isWhole(const lw::LWPanelFuncs& t) {
  return areThere(t.create, t.destroy, t.open, t.close, t.get, t.set, t.addControl);
}

inline bool isWhole(const lw::LWControl& t) { return areThere(t.draw, t.get, t.set); }

inline bool isWhole(const lw::LWItemInfo& t) {
  return areThere(t.first, t.next, t.parent, t.target, t.goal, t.name, t.param, t.limits, t.chanGroup, t.server,
                  t.controller, t.flags, t.goalObjective, t.ikInitialState, t.ikSoft, t.pole, t.sameItem, t.rotationOrder);
}

inline bool isWhole(const lw::LWObjectInfo& t) {
  return areThere(t.filename, t.boneSource, t.layerLoaded, t.boneMode, t.numLimitedBones);
}

inline bool isWhole(const lw::LWBoneInfo& t) { return areThere(t.flags, t.weightMap, t.strength, t.falloff, t.type); }

inline bool isWhole(const lw::LWInterfaceInfo& t) { return areThere(t.itemVis, t.itemColor); }

inline bool isWhole(const lw::LWChannelInfo& t) {
  return areThere(t.nextGroup, t.nextChannel, t.groupName, t.channelName, t.channelEnvelope);
}

inline bool isWhole(const lw::LWEnvelopeFuncs& t) { return areThere(t.createKey, t.findKey, t.nextKey, t.keySet, t.keyGet); }

}  // namespace probe
