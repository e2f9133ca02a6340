#include "standin/layout/envelope.h"

#include <algorithm>
#include <cmath>

namespace standin {

Key* Envelope::byNumber(std::uint16_t number) {
  const auto found = std::find_if(keys_.begin(), keys_.end(), [&](const Key& key) { return key.number == number; });
  return found == keys_.end() ? nullptr : &*found;
}

Key* Envelope::at(double time) {
  const auto found = std::find_if(keys_.begin(), keys_.end(),
                                  [&](const Key& key) { return std::abs(key.time - time) <= habits_.tolerance; });
  return found == keys_.end() ? nullptr : &*found;
}

Key* Envelope::after(const Key& key) {
  const auto next = static_cast<std::size_t>(&key - keys_.data()) + 1;
  return next < keys_.size() ? &keys_[next] : nullptr;
}

Key* Envelope::create(double time, double value) {
  Key* const existing = at(time);
  if (existing == nullptr || habits_.same == KeyAtSameTime::Second) return &insert(time, value);
  if (habits_.same == KeyAtSameTime::Refused) return nullptr;
  existing->value = value;
  return habits_.same == KeyAtSameTime::Changed ? existing : nullptr;
}

// Behind those at the same time.
Key& Envelope::insert(double time, double value) {
  const auto place = std::find_if(keys_.begin(), keys_.end(), [&](const Key& key) { return key.time > time; });
  return *keys_.insert(place, Key{++lastNumber_, time, value});
}

double Envelope::valueAt(double time) const {
  if (keys_.empty()) return resting_;
  const auto next = std::find_if(keys_.begin(), keys_.end(), [&](const Key& key) { return key.time > time; });
  if (next == keys_.begin()) return keys_.front().value;
  if (next == keys_.end()) return keys_.back().value;
  const Key& from = *(next - 1);
  const double part = (time - from.time) / (next->time - from.time);
  return from.value + (next->value - from.value) * part;
}

void Envelope::assign(double time, double value) {
  Key* const key = keys_.size() == 1 ? &keys_.front() : at(time);
  if (key != nullptr) {
    key->value = value;
  } else {
    insert(time, value);
  }
}

}  // namespace standin
