#include "win32/Texts.h"

#include <algorithm>
#include <vector>

#include "platform/text/GbkWalk.h"
#include "win32/Native.h"

namespace Texts {

std::wstring Shown(const CString& text)
{
    constexpr wchar_t NoCharacter = 0xFFFD;
    const std::string_view bytes = text.View();
    std::wstring shown;
    for (int at = 0; at < text.GetLength();) {
        const int next = NextCharacter(bytes, at);
        shown +=
            Native::Decode(bytes.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(next - at)))
                .value_or(NoCharacter);
        at = next;
    }
    return shown;
}

int ShownPosition(const CString& text, int position)
{
    return static_cast<int>(Shown(text.Left(position)).size());
}

std::optional<CString> GbkFrom(std::wstring_view shown)
{
    const std::optional<std::string> bytes = Native::Encode(shown);
    return bytes ? std::optional(CString(std::string_view(*bytes))) : std::nullopt;
}

std::optional<Edited> EditedFrom(const CString& before, std::wstring_view now, int caret)
{
    const std::wstring shown = Shown(before);
    std::vector<int> bytes{0};  // where each character shown begins in the text
    while (bytes.back() < before.GetLength()) {
        bytes.push_back(NextCharacter(before.View(), bytes.back()));
    }
    const std::size_t shorter = std::min(shown.size(), now.size());
    std::size_t head = 0;
    while (head < shorter && shown[head] == now[head]) {
        ++head;
    }
    std::size_t tail = 0;
    while (tail < shorter - head && shown[shown.size() - 1 - tail] == now[now.size() - 1 - tail]) {
        ++tail;
    }
    const std::size_t typedEnd = now.size() - tail;
    const std::optional<CString> typed = GbkFrom(now.substr(head, typedEnd - head));
    if (!typed) {
        return std::nullopt;
    }
    const CString start = before.Left(bytes[head]);
    const int tailStart = bytes[shown.size() - tail];
    const auto cursor = static_cast<std::size_t>(std::clamp(caret, 0, static_cast<int>(now.size())));
    Edited edited;
    edited.text = start + *typed + before.Mid(tailStart);
    if (cursor <= head) {
        edited.caret = bytes[cursor];
    } else if (cursor >= typedEnd) {
        edited.caret =
            start.GetLength() + typed->GetLength() + bytes[cursor + shown.size() - now.size()] - tailStart;
    } else {
        const std::optional<CString> part = GbkFrom(now.substr(head, cursor - head));
        edited.caret = start.GetLength() + (part ? part->GetLength() : 0);
    }
    return edited;
}

}  // namespace Texts
