// "Animation Envelopes 4".
#include "standin/core/gap_slots.h"
#include "standin/layout/channel_services.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWEnvelopeFuncs> = "LWEnvelopeFuncs";

namespace {

// An envelope that the module named, and the item whose motion it is.
struct OpenEnvelope {
  Handle handle;  // first: the item is found by way of it
  Item* item = nullptr;
  Envelope* envelope = nullptr;

  OpenEnvelope(const HostCall& call, lw::EnvelopeId id) : item(checkedEnvelope(call, id, handle)) {
    if (item != nullptr) envelope = &item->motion[handle.part];
  }

  lw::KeyId idOf(const Key* key) const {
    return key == nullptr ? nullptr : toHandle<lw::KeyId>(HandleKind::Key, {handle.item, handle.part, key->number});
  }

  // Null with a fault when it is no key of this envelope.
  Key* key(const HostCall& call, lw::KeyId id) const {
    Handle wanted;
    const bool isKey = fromHandle(id, HandleKind::Key, wanted);
    if (!isKey || wanted.item != handle.item || wanted.part != handle.part) {
      call.fault(isKey ? "was given a key of another envelope" : "was given something that is no key");
      return nullptr;
    }
    Key* found = envelope->byNumber(wanted.key);
    if (found == nullptr) call.fault("was given a key that never was");
    return found;
  }
};

lw::KeyId createKey(lw::EnvelopeId id, double time, double value) {
  const HostCall call("LWEnvelopeFuncs::createKey");
  const OpenEnvelope open(call, id);
  if (open.item == nullptr || call.refused()) return nullptr;
  const Key* key = open.envelope->create(time, value);
  currentScene().moved(*open.item);
  return open.idOf(key);
}

lw::KeyId findKey(lw::EnvelopeId id, double time) {
  const HostCall call("LWEnvelopeFuncs::findKey");
  const OpenEnvelope open(call, id);
  return open.item == nullptr || call.refused() ? nullptr : open.idOf(open.envelope->at(time));
}

lw::KeyId nextKey(lw::EnvelopeId id, lw::KeyId previous) {
  const HostCall call("LWEnvelopeFuncs::nextKey");
  const OpenEnvelope open(call, id);
  if (open.item == nullptr || call.refused()) return nullptr;
  const auto& keys = open.envelope->keys();
  if (previous == nullptr) return keys.empty() ? nullptr : open.idOf(&keys.front());
  const Key* key = open.key(call, previous);
  return key == nullptr ? nullptr : open.idOf(open.envelope->after(*key));
}

void faultTag(const HostCall& call, int tag) {
  call.fault("tag " + std::to_string(tag) + " is not one that this host knows");
}

int keySet(lw::EnvelopeId id, lw::KeyId keyId, int tag, void* value) {
  const HostCall call("LWEnvelopeFuncs::keySet");
  const OpenEnvelope open(call, id);
  Key* key = open.item == nullptr ? nullptr : open.key(call, keyId);
  if (!checkedOutput(call, value) || key == nullptr) return 0;
  if (tag != lw::kKeyValue) faultTag(call, tag);
  if (tag != lw::kKeyValue || call.refused()) return 0;
  key->value = *static_cast<const double*>(value);
  currentScene().moved(*open.item);
  return 1;
}

int keyGet(lw::EnvelopeId id, lw::KeyId keyId, int tag, void* value) {
  const HostCall call("LWEnvelopeFuncs::keyGet");
  const OpenEnvelope open(call, id);
  const Key* key = open.item == nullptr ? nullptr : open.key(call, keyId);
  if (!checkedOutput(call, value) || key == nullptr) return 0;
  if (tag != lw::kKeyValue && tag != lw::kKeyTime) {
    faultTag(call, tag);
    return 0;
  }
  if (call.refused()) return 0;
  *static_cast<double*>(value) = tag == lw::kKeyValue ? key->value : key->time;
  return 1;
}

}  // namespace

lw::LWEnvelopeFuncs* envelopeTable() {
  static lw::LWEnvelopeFuncs table = [] {
    lw::LWEnvelopeFuncs t{};
    t.createKey = &createKey;
    t.findKey = &findKey;
    t.nextKey = &nextKey;
    t.keySet = &keySet;
    t.keyGet = &keyGet;
    STANDIN_FILL_GAP(t, 0);
    STANDIN_FILL_GAP(t, 88);
    STANDIN_FILL_GAP(t, 112);
    STANDIN_FILL_GAP(t, 136);
    return t;
  }();
  return &table;
}

}  // namespace standin
