// How a look-up adds a text to the caller's list.
#pragma once

#include <algorithm>

#include "platform/text/Arrays.h"
#include "platform/text/CString.h"

[[nodiscard]] inline bool HoldsText(const CStringArray& arResult, const CString& text)
{
    return std::find(arResult.begin(), arResult.end(), text) != arResult.end();
}

// Appends the text if no entry equals it; true when it was appended.
inline bool TakeText(const CString& text, CStringArray& arResult)
{
    if (HoldsText(arResult, text)) {
        return false;
    }
    arResult.Add(text);
    return true;
}
