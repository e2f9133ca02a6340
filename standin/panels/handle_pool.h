// What the host gives out in place of its records, and how it knows any address that comes back.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <vector>

namespace standin {

// Handles of one kind. None is freed before the end of the process: one whose record died is known as dead for good.
// There may be millions, and each call of the module brings one.
template <class Handle>
class HandlePool {
 public:
  // Stays where it is.
  Handle& add(const Handle& handle) {
    if (newest_ == nullptr || newest_->size() == kBlockSize) startBlock();
    return newest_->emplace_back(handle);
  }

  // The handle at this address, null where there is none. The address need not be one of anything that lives.
  Handle* find(const void* address) {
    if (newest_ == nullptr) return nullptr;
    if (Handle* const handle = in(*newest_, address)) return handle;
    const auto next = blocks_.upper_bound(address);
    return next == blocks_.begin() ? nullptr : in(std::prev(next)->second, address);
  }

 private:
  using Block = std::vector<Handle>;
  static constexpr std::size_t kBlockSize = 4096;

  void startBlock() {
    Block block;
    block.reserve(kBlockSize);
    const void* const start = block.data();
    newest_ = &blocks_.emplace(start, std::move(block)).first->second;
  }

  static Handle* in(Block& block, const void* address) {
    const std::less<const void*> isBefore;
    if (isBefore(address, block.data()) || !isBefore(address, block.data() + block.size())) return nullptr;
    const auto offset =
        static_cast<std::size_t>(static_cast<const std::byte*>(address) - reinterpret_cast<const std::byte*>(block.data()));
    return offset % sizeof(Handle) == 0 ? &block[offset / sizeof(Handle)] : nullptr;
  }

  std::map<const void*, Block, std::less<>> blocks_;
  Block* newest_ = nullptr;
};

}  // namespace standin
