// The tables that the stand-in Layout offers. Their functions speak to LayoutHost::current().
#pragma once

#include <string_view>

#include "interface/lightwave.h"
#include "standin/core/witness.h"
#include "standin/layout/layout_host.h"

namespace standin {

lw::LWItemInfo* itemInfoTable();
lw::LWObjectInfo* objectInfoTable();
lw::LWBoneInfo* boneInfoTable();
lw::LWChannelInfo* channelInfoTable();
lw::LWEnvelopeFuncs* envelopeTable();
lw::CommandFunc commandFunction();

// All but the selection.
void fillInterfaceInfo(lw::LWInterfaceInfo& info, const LayoutState& state);
// Makes a record unusable: its selection is of no item.
void spoilInterfaceRecord(InterfaceRecord& record);

// ---------------------------------------------------------------------------------------------------------------------
// For the functions of the tables

inline Scene& currentScene() { return LayoutHost::current().scene(); }
inline const char* giveText(std::string_view text) { return LayoutHost::current().texts().give(text); }

// The item behind an identifier. Null, with a fault, for anything that is not an item of this scene, alive and of the kind
// (-1: any kind).
Item* checkedItem(const HostCall& call, lw::ItemId id, int kind = -1);
// False, with a fault, for null.
bool checkedOutput(const HostCall& call, const void* pointer);

}  // namespace standin
