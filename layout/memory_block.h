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
  explicit Block(std::size_t size) : m_items(std::make_unique_for_overwrite<Item[]>(size)), m_size(size) {}

  std::size_t size() const { return m_size; }
  Item* data() { return m_items.get(); }
  const Item* data() const { return m_items.get(); }
  Item& operator[](std::size_t at) { return m_items[at]; }
  const Item& operator[](std::size_t at) const { return m_items[at]; }

 private:
  std::unique_ptr<Item[]> m_items;
  std::size_t m_size = 0;
};

}  // namespace lwp::st
