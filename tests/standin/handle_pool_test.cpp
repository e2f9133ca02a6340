// Which addresses are handles that the host gave out.
#include "standin/panels/handle_pool.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace standin {
namespace {

struct Handle {
  int number;
  int other;
};
constexpr int kMany = 100'000;

TEST(HandlePool, KnowsEveryHandleThatItGaveOut) {
  HandlePool<Handle> pool;
  std::vector<Handle*> given;
  for (int i = 0; i < kMany; ++i) given.push_back(&pool.add({i, 0}));
  for (int i = 0; i < kMany; ++i) {
    const Handle* const handle = given[static_cast<std::size_t>(i)];
    ASSERT_TRUE(pool.find(handle) == handle && handle->number == i) << i;
  }
}

TEST(HandlePool, HasNoneAtAnAddressWithinAHandle) {
  HandlePool<Handle> pool;
  const Handle& handle = pool.add({});
  EXPECT_EQ(pool.find(&handle.other), nullptr);
  EXPECT_EQ(pool.find(reinterpret_cast<const char*>(&handle) + 1), nullptr);
}

TEST(HandlePool, HasNoneBesideItsHandles) {
  HandlePool<Handle> pool;
  const int elsewhere = 0;
  EXPECT_EQ(pool.find(&elsewhere), nullptr);
  Handle* const first = &pool.add({});
  for (int i = 0; i < kMany; ++i) pool.add({});
  EXPECT_EQ(pool.find(&elsewhere), nullptr);
  EXPECT_EQ(pool.find(reinterpret_cast<void*>(UINTPTR_MAX - 7)), nullptr);
  EXPECT_EQ(pool.find(reinterpret_cast<void*>(std::uintptr_t{8})), nullptr);
  HandlePool<Handle> one;
  Handle* const last = &one.add(*first);
  EXPECT_EQ(one.find(last + 1), nullptr);
}

}  // namespace
}  // namespace standin
