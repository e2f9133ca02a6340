// The watch over the registers that the module must give back. Every test of this build relies on it.
#include "standin/core/kept_registers.h"

#include <gtest/gtest.h>

#include "standin/core/witness.h"

namespace standin {
namespace {

class KeptRegisters : public testing::Test {
 protected:
  void SetUp() override { witness().reset(); }
  void TearDown() override { witness().reset(); }
};

// The compiler is not told that these change something.
void changeTheFirst() { asm volatile("xorps %xmm6, %xmm6"); }
void changeTheLast() { asm volatile("pcmpeqd %xmm15, %xmm15"); }

TEST_F(KeptRegisters, ACallThatChangesNoneIsFine) {
  EXPECT_EQ(callModule("a callback", [] { return 3; }), 3);
  EXPECT_EQ(witness().report(), "");
}

TEST_F(KeptRegisters, EachThatComesBackChangedIsNamedWithTheFunction) {
  callModule("a callback", [] { changeTheFirst(); });
  callModule("another", [] {
    changeTheFirst();
    changeTheLast();
    return 1;
  });
  EXPECT_EQ(witness().report(),
            "a callback: gave back other values in xmm6\nanother: gave back other values in xmm6 xmm15\n");
}

TEST_F(KeptRegisters, ACallWithinACallIsNamedAlone) {
  callModule("outer", [] { callModule("inner", [] { changeTheFirst(); }); });
  EXPECT_EQ(witness().report(), "inner: gave back other values in xmm6\n");
}

// The outer watch sees what the inner one left behind.
TEST_F(KeptRegisters, TheCallersOwnSurvive) {
  std::string inner;
  const std::string outer = changedRegistersOf([&] { inner = changedRegistersOf([] { changeTheFirst(); }); });
  EXPECT_EQ(inner, "xmm6");
  EXPECT_EQ(outer, "");
}

TEST_F(KeptRegisters, TheCallersOwnSurviveAnExceptionThatPasses) {
  bool caught = false;
  const std::string outer = changedRegistersOf([&] {
    try {
      changedRegistersOf([] {
        changeTheLast();
        throw 1;
      });
    } catch (int) {
      caught = true;
    }
  });
  EXPECT_TRUE(caught);
  EXPECT_EQ(outer, "");
}

}  // namespace
}  // namespace standin
