#include "standin/layout/envelope.h"

#include <algorithm>
#include <cmath>

namespace standin {
namespace {

constexpr double kSameTime = 1e-6;

}  // namespace

Key* Envelope::byNumber(std::uint16_t number) {
  const auto found = std::find_if(keys_.begin(), keys_.end(), [&](const Key& key) { return key.number == number; });
  return found == keys_.end() ? nullptr : &*found;
}

Key* Envelope::at(double time) {
  const auto found =
      std::find_if(keys_.begin(), keys_.end(), [&](const Key& key) { return std::abs(key.time - time) < kSameTime; });
  return found == keys_.end() ? nullptr : &*found;
}

Key* Envelope::after(const Key& key) {
  const auto next = static_cast<std::size_t>(&key - keys_.data()) + 1;
  return next < keys_.size() ? &keys_[next] : nullptr;
}

Key* Envelope::before(const Key& key) {
  const auto place = static_cast<std::size_t>(&key - keys_.data());
  return place > 0 ? &keys_[place - 1] : nullptr;
}

Key& Envelope::create(double time, double value) {
  if (Key* existing = at(time)) {
    existing->value = value;
    return *existing;
  }
  const auto place = std::find_if(keys_.begin(), keys_.end(), [&](const Key& key) { return key.time > time; });
  return *keys_.insert(place, Key{++lastNumber_, time, value});
}

void Envelope::destroy(std::uint16_t number) {
  std::erase_if(keys_, [&](const Key& key) { return key.number == number; });
}

double Envelope::valueAt(double time) const {
  if (keys_.empty()) return resting_;
  if (time <= keys_.front().time) return keys_.front().value;
  if (time >= keys_.back().time) return keys_.back().value;
  const auto next = std::find_if(keys_.begin(), keys_.end(), [&](const Key& key) { return key.time > time; });
  const Key& from = *(next - 1);
  const double part = (time - from.time) / (next->time - from.time);
  return from.value + (next->value - from.value) * part;
}

void Envelope::assign(double time, double value) {
  if (keys_.size() == 1) {
    keys_.front().value = value;
  } else {
    create(time, value);
  }
}

}  // namespace standin
