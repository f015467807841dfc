// CString: a text of GBK bytes with the operations that Windows developers know.
#pragma once

#include <compare>
#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/text/Export.h"

// Any sequence of bytes without a zero byte is a valid text; nothing is ever decoded. Positions
// and lengths count bytes, also inside a double-byte character. Equal bytes are equal texts.
class PLATFORM_API CString {
public:
    CString() noexcept = default;
    CString(const char* text);  // a null pointer gives the empty text
    CString(std::string_view text);
    explicit CString(char ch, int nRepeat = 1);  // a repeat below 1 gives the empty text

    [[nodiscard]] int GetLength() const noexcept { return static_cast<int>(m_text.size()); }
    [[nodiscard]] bool IsEmpty() const noexcept { return m_text.empty(); }
    void Empty() noexcept { m_text.clear(); }

    // The byte at a position; 0 for a position outside the text.
    [[nodiscard]] char GetAt(int nIndex) const noexcept
    {
        return nIndex >= 0 && nIndex < GetLength() ? m_text[static_cast<std::size_t>(nIndex)] : '\0';
    }
    template <std::integral Index>
    [[nodiscard]] char operator[](Index nIndex) const noexcept
    {
        return GetAt(static_cast<int>(nIndex));
    }

    // Byte position of the first occurrence at or behind nStart, -1 when there is none. A negative
    // start counts as 0.
    [[nodiscard]] int Find(char ch, int nStart = 0) const noexcept;
    [[nodiscard]] int Find(const char* text, int nStart = 0) const noexcept;
    // Byte position of the last occurrence, -1 when there is none.
    [[nodiscard]] int ReverseFind(char ch) const noexcept;

    // Substrings. A negative count gives the empty text, a count past the end stops at the end; a
    // negative first position counts as 0, one behind the end gives the empty text.
    [[nodiscard]] CString Left(int nCount) const;
    [[nodiscard]] CString Right(int nCount) const;
    [[nodiscard]] CString Mid(int nFirst) const;
    [[nodiscard]] CString Mid(int nFirst, int nCount) const;

    // Remove blanks at one end: space, tab, carriage return and line feed.
    void TrimLeft();
    void TrimRight();

    // Replaces the text by printf-style output. Texts are passed as const char*.
    void Format(const char* format, ...) __attribute__((format(printf, 2, 3)));

    CString& operator+=(const CString& text);
    CString& operator+=(const char* text);
    CString& operator+=(char ch);

    // -1, 0 or 1: the order of the bytes as unsigned numbers, a text that begins another one first.
    // On GBK text this is the order of the characters too, since a lead byte is above every
    // single-byte character and the trail byte decides behind equal lead bytes.
    [[nodiscard]] int Compare(const CString& other) const noexcept;

    operator const char*() const noexcept { return m_text.c_str(); }
    [[nodiscard]] std::string_view View() const noexcept { return m_text; }

    friend bool operator==(const CString& a, const CString& b) noexcept { return a.m_text == b.m_text; }
    friend bool operator==(const CString& a, const char* b) noexcept
    {
        return a.View() == std::string_view(b == nullptr ? "" : b);
    }
    friend std::strong_ordering operator<=>(const CString& a, const CString& b) noexcept
    {
        return a.Compare(b) <=> 0;
    }
    friend std::strong_ordering operator<=>(const CString& a, const char* b) { return a <=> CString(b); }

private:
    std::string m_text;
};

PLATFORM_API CString operator+(const CString& a, const CString& b);
PLATFORM_API CString operator+(const CString& a, const char* b);
PLATFORM_API CString operator+(const char* a, const CString& b);
PLATFORM_API CString operator+(const CString& a, char b);
PLATFORM_API CString operator+(char a, const CString& b);
