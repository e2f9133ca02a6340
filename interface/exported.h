// What a module exports to the host: one symbol, its descriptor.
#pragma once

#if defined(_WIN32)
#define LW_EXPORTED __declspec(dllexport)
#else
#define LW_EXPORTED __attribute__((visibility("default")))
#endif
