// Marks what the display's library lets out.
#pragma once

#if defined(RankerWin32_EXPORTS)
#define WIN32_API __declspec(dllexport)
#else
#define WIN32_API __declspec(dllimport)
#endif
