#include <pthread.h>

#include "modeler/renamer/deep_stack.h"
#include "modeler/renamer/work_elsewhere.h"

namespace mst {

bool runOnStack(std::size_t bytes, const std::function<void()>& work) {
  const auto enter = [](void* elsewhere) -> void* {
    static_cast<WorkElsewhere*>(elsewhere)->run();
    return nullptr;
  };
  WorkElsewhere elsewhere{work};
  pthread_attr_t attributes;
  if (pthread_attr_init(&attributes) != 0) return false;
  pthread_t thread{};
  const bool isStarted =
      pthread_attr_setstacksize(&attributes, bytes) == 0 && pthread_create(&thread, &attributes, enter, &elsewhere) == 0;
  pthread_attr_destroy(&attributes);
  if (!isStarted) return false;
  pthread_join(thread, nullptr);
  elsewhere.rethrow();
  return true;
}

}  // namespace mst
