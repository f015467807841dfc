// The module's GBK bytes as the system shows them, and what the user made of them.
#pragma once

#include <optional>
#include <string>

#include "platform/text/CString.h"

namespace Texts {

// One character each; U+FFFD for bytes that are none.
[[nodiscard]] std::wstring Shown(const CString& text);
// A byte position as a position among the characters shown.
[[nodiscard]] int ShownPosition(const CString& text, int position);
[[nodiscard]] std::optional<CString> GbkFrom(std::wstring_view shown);

struct Edited {
    CString text;
    int caret = 0;  // byte position
};

// A text after the user's edit. Only what the edit brought in is converted; bytes that show as U+FFFD keep
// their values. Nothing when a character came in that GBK lacks.
[[nodiscard]] std::optional<Edited> EditedFrom(const CString& before, std::wstring_view now, int caret);

}  // namespace Texts
