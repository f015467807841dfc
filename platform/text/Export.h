// Marks what the platform library lets out of its hidden-visibility shared object.
#pragma once

#if defined(_WIN32)
#error "the platform layer stands in for the Windows class library and is not built there"
#else
#define PLATFORM_API __attribute__((visibility("default")))
#endif
