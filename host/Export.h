// Marks what RankerModule lets out of its shared object, where all else is hidden.
#pragma once

#if !defined(_WIN32)
#define RANKER_API __attribute__((visibility("default")))
#elif defined(RankerModule_EXPORTS)
#define RANKER_API __declspec(dllexport)
#else
#define RANKER_API __declspec(dllimport)
#endif
