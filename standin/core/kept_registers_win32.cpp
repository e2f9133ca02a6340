#include "standin/core/kept_registers.h"

#ifdef __GNUC__

#include <array>
#include <cstddef>
#include <cstdint>

namespace {

constexpr std::size_t kFirstKept = 6;
constexpr std::size_t kKeptCount = 10;

struct alignas(16) Xmm {
  std::array<std::uint64_t, 2> halves{};
  bool operator==(const Xmm&) const = default;
};
static_assert(sizeof(Xmm) == 16);

using Registers = std::array<Xmm, kKeptCount>;

}  // namespace

// Takes the function, its data, the values to call it with and where the values of its return go.
extern "C" void standin_call_with_registers(void (*function)(void*), void* data, const void* before, void* after);

// The frame: 32 bytes for the called function, ten saved registers, the place for the values, 16 bytes in line. The words
// behind the points tell the unwinder where everything is.
asm(R"(
    .text
    .globl standin_call_with_registers
    .def standin_call_with_registers; .scl 2; .type 32; .endef
    .seh_proc standin_call_with_registers
standin_call_with_registers:
    subq $216, %rsp
    .seh_stackalloc 216
    movaps %xmm6, 32(%rsp)
    .seh_savexmm %xmm6, 32
    movaps %xmm7, 48(%rsp)
    .seh_savexmm %xmm7, 48
    movaps %xmm8, 64(%rsp)
    .seh_savexmm %xmm8, 64
    movaps %xmm9, 80(%rsp)
    .seh_savexmm %xmm9, 80
    movaps %xmm10, 96(%rsp)
    .seh_savexmm %xmm10, 96
    movaps %xmm11, 112(%rsp)
    .seh_savexmm %xmm11, 112
    movaps %xmm12, 128(%rsp)
    .seh_savexmm %xmm12, 128
    movaps %xmm13, 144(%rsp)
    .seh_savexmm %xmm13, 144
    movaps %xmm14, 160(%rsp)
    .seh_savexmm %xmm14, 160
    movaps %xmm15, 176(%rsp)
    .seh_savexmm %xmm15, 176
    .seh_endprologue
    movq %r9, 192(%rsp)
    movaps 0(%r8), %xmm6
    movaps 16(%r8), %xmm7
    movaps 32(%r8), %xmm8
    movaps 48(%r8), %xmm9
    movaps 64(%r8), %xmm10
    movaps 80(%r8), %xmm11
    movaps 96(%r8), %xmm12
    movaps 112(%r8), %xmm13
    movaps 128(%r8), %xmm14
    movaps 144(%r8), %xmm15
    movq %rcx, %rax
    movq %rdx, %rcx
    call *%rax
    movq 192(%rsp), %rax
    movaps %xmm6, 0(%rax)
    movaps %xmm7, 16(%rax)
    movaps %xmm8, 32(%rax)
    movaps %xmm9, 48(%rax)
    movaps %xmm10, 64(%rax)
    movaps %xmm11, 80(%rax)
    movaps %xmm12, 96(%rax)
    movaps %xmm13, 112(%rax)
    movaps %xmm14, 128(%rax)
    movaps %xmm15, 144(%rax)
    movaps 32(%rsp), %xmm6
    movaps 48(%rsp), %xmm7
    movaps 64(%rsp), %xmm8
    movaps 80(%rsp), %xmm9
    movaps 96(%rsp), %xmm10
    movaps 112(%rsp), %xmm11
    movaps 128(%rsp), %xmm12
    movaps 144(%rsp), %xmm13
    movaps 160(%rsp), %xmm14
    movaps 176(%rsp), %xmm15
    addq $216, %rsp
    ret
    .seh_endproc
)");

namespace standin {

std::string changedRegisters(void (*function)(void*), void* data) {
  Registers before;
  for (std::size_t i = 0; i < before.size(); ++i) before[i].halves = {0xA5C3'0000'5A3C'0000 + i, 0x1234'5678'9ABC'DE00 + i};
  Registers after{};
  standin_call_with_registers(function, data, before.data(), after.data());
  std::string changed;
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (after[i] == before[i]) continue;
    changed += (changed.empty() ? "xmm" : " xmm") + std::to_string(kFirstKept + i);
  }
  return changed;
}

}  // namespace standin

#endif
