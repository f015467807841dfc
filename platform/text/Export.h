// Marks what the platform library lets out of its shared object, where all else is hidden.
#pragma once

#if !defined(_WIN32)
#define PLATFORM_API __attribute__((visibility("default")))
#elif defined(platform_EXPORTS)
#define PLATFORM_API __declspec(dllexport)
#else
#define PLATFORM_API __declspec(dllimport)
#endif
