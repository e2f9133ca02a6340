// What the services of channels and of envelopes share.
#pragma once

#include "standin/layout/handles.h"
#include "standin/layout/services.h"

namespace standin {

// LWItemInfo::chanGroup.
lw::GroupId channelGroupOf(lw::ItemId id);

// The item that an envelope belongs to; null with a fault when it is no envelope of this scene.
Item* checkedEnvelope(const HostCall& call, lw::EnvelopeId id, Handle& handle);

}  // namespace standin
