// The keys of one motion channel.
#pragma once

#include <cstdint>
#include <vector>

namespace standin {

struct Key {
  std::uint16_t number = 0;  // names the key for as long as it lives; never used again in the same envelope
  double time = 0;
  double value = 0;
};

class Envelope {
 public:
  explicit Envelope(double resting = 0) : resting_(resting) {}

  // In order of time.
  const std::vector<Key>& keys() const { return keys_; }
  Key* byNumber(std::uint16_t number);
  // Null when no key stands at the time (within a millionth of a second).
  Key* at(double time);
  // The key after the one given, null at the end.
  Key* after(const Key& key);
  Key* before(const Key& key);
  // A key at the time; where one stands already it takes the value.
  Key& create(double time, double value);
  void destroy(std::uint16_t number);

  // Straight lines between keys, level beyond them. Without keys the channel's resting value.
  double valueAt(double time) const;
  // Changes the only key, or else makes a key at the time.
  void assign(double time, double value);

 private:
  double resting_;
  std::uint16_t lastNumber_ = 0;
  std::vector<Key> keys_;
};

}  // namespace standin
