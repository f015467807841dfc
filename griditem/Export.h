// Marks what the griditem library lets out of its shared object, where all else is hidden.
#pragma once

#if !defined(_WIN32)
#define GRIDITEM_API __attribute__((visibility("default")))
#elif defined(griditem_EXPORTS)
#define GRIDITEM_API __declspec(dllexport)
#else
#define GRIDITEM_API __declspec(dllimport)
#endif
