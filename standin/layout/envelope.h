// The keys of one motion channel.
#pragma once

#include <cstdint>
#include <vector>

#include "standin/layout/options.h"

namespace standin {

struct Key {
  std::uint16_t number = 0;  // names the key in its envelope
  double time = 0;
  double value = 0;
};

// What a host does with keys at the same time, and which times are the same to it.
struct KeyHabits {
  KeyAtSameTime same = KeyAtSameTime::Changed;
  double tolerance = 1e-6;  // in seconds
};

class Envelope {
 public:
  explicit Envelope(double resting = 0, KeyHabits habits = {}) : resting_(resting), habits_(habits) {}

  // In order of time.
  const std::vector<Key>& keys() const { return keys_; }
  Key* byNumber(std::uint16_t number);
  // Null when no key stands at the time.
  Key* at(double time);
  // The key after the one given, null at the end.
  Key* after(const Key& key);
  // A key at the time; where one stands already, what the host's habit is. Null where that gives none back.
  Key* create(double time, double value);

  // Straight lines between keys, level beyond them; of keys at one time the last. Without keys the channel's resting value.
  double valueAt(double time) const;
  // What the host does itself: changes the only key, or the one at the time, or else makes one.
  void assign(double time, double value);

 private:
  Key& insert(double time, double value);

  double resting_;
  KeyHabits habits_;
  std::uint16_t lastNumber_ = 0;
  std::vector<Key> keys_;
};

}  // namespace standin
