#include <windows.h>

#include "modeler/renamer/deep_stack.h"
#include "modeler/renamer/work_elsewhere.h"

namespace mst {
namespace {

DWORD WINAPI enter(void* elsewhere) {
  static_cast<WorkElsewhere*>(elsewhere)->run();
  return 0;
}

}  // namespace

bool runOnStack(std::size_t bytes, const std::function<void()>& work) {
  WorkElsewhere elsewhere{work};
  const HANDLE thread = CreateThread(nullptr, bytes, enter, &elsewhere, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
  if (thread == nullptr) return false;
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
  elsewhere.rethrow();
  return true;
}

}  // namespace mst
