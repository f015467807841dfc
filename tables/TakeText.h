// How a look-up adds a text to the caller's list.
#pragma once

#include <algorithm>

#include "platform/text/Arrays.h"
#include "platform/text/CString.h"

// Appends the text if no entry equals it; true when it was appended.
inline bool TakeText(const CString& text, CStringArray& arResult)
{
    if (std::find(arResult.begin(), arResult.end(), text) != arResult.end()) {
        return false;
    }
    arResult.Add(text);
    return true;
}
