// Marks what the bartext library lets out of its shared object, where all else is hidden.
#pragma once

#if !defined(_WIN32)
#define BARTEXT_API __attribute__((visibility("default")))
#elif defined(bartext_EXPORTS)
#define BARTEXT_API __declspec(dllexport)
#else
#define BARTEXT_API __declspec(dllimport)
#endif
