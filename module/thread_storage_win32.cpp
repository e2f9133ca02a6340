// Gives thread-storage indices back at unload.
//
// The compiler's runtime is linked into the module. At the first throw it takes indices of thread storage from the system,
// of which a process has about a thousand, and never gives them back: a host that loads and unloads the module again and
// again would run out of them. So the runtime's way to the system's function, the import below, leads here.
#include <windows.h>

#include <array>
#include <cstddef>

namespace {

constexpr std::size_t kMostIndices = 16;  // the runtime takes two or three

struct TakenIndices {
  std::array<DWORD, kMostIndices> index;
  std::size_t count;
};

// Plain data: it is used before constructors run and after destructors did.
TakenIndices taken;

DWORD WINAPI takeIndex() {
  // Asked for each time: a guarded static would itself need thread storage.
  using Function = DWORD(WINAPI*)();
  const auto system =
      reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "TlsAlloc")));
  if (system == nullptr) return TLS_OUT_OF_INDEXES;
  const DWORD index = system();
  if (index != TLS_OUT_OF_INDEXES && taken.count < taken.index.size()) taken.index[taken.count++] = index;
  return index;
}

}  // namespace

extern "C" {
// The linker takes this for the import of TlsAlloc.
DWORD(WINAPI* __imp_TlsAlloc)() = &takeIndex;  // NOLINT

BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD reason, LPVOID processEnds) {
  if (reason == DLL_PROCESS_DETACH && processEnds == nullptr) {
    while (taken.count > 0) TlsFree(taken.index[--taken.count]);
  }
  return TRUE;
}
}
