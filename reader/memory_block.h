// Memory for a number of items known before: taken once, and not cleared, for it is filled right away.
#pragma once

#include <cstddef>
#include <memory>

namespace lwp::st {

template <class Item>
class Block {
 public:
  Block() = default;
  // Throws std::bad_alloc.
  explicit Block(std::size_t size) : items_(std::make_unique_for_overwrite<Item[]>(size)), size_(size) {}

  std::size_t size() const { return size_; }
  Item* data() { return items_.get(); }
  const Item* data() const { return items_.get(); }
  Item& operator[](std::size_t at) { return items_[at]; }
  const Item& operator[](std::size_t at) const { return items_[at]; }

 private:
  std::unique_ptr<Item[]> items_;
  std::size_t size_ = 0;
};

}  // namespace lwp::st
