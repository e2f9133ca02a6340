#include "host/host_call.h"

#include <utility>

#include "host/found_skelegons.h"

namespace lw {
namespace {

// How many calls are running now, on the host's one thread.
int& depth() noexcept {
  static int calls = 0;
  return calls;
}

}  // namespace

// What is forgotten at the end must be there before whatever else the module makes in this call, and so outlive it.
CHostCall::CHostCall() noexcept {
  foundSkelegons();
  ++depth();
}

CHostCall::~CHostCall() {
  if (--depth() == 0) foundSkelegons().forget();
}

bool CHostCall::isRunning() noexcept { return depth() > 0; }

CUsersTurn::CUsersTurn() noexcept : depth_(std::exchange(depth(), 0)) { foundSkelegons().forget(); }

CUsersTurn::~CUsersTurn() {
  depth() = depth_;
  foundSkelegons().forget();
}

}  // namespace lw
