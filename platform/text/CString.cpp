// The text operations of CString on top of std::string.
#include "platform/text/CString.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <vector>

namespace {

constexpr std::string_view Blanks = " \t\r\n";

std::string_view OrEmpty(const char* text) noexcept
{
    return text == nullptr ? std::string_view() : std::string_view(text);
}

int PositionOf(std::size_t found) noexcept
{
    return found == std::string_view::npos ? -1 : static_cast<int>(found);
}

std::size_t AtLeastZero(int n) noexcept { return static_cast<std::size_t>(std::max(n, 0)); }

CString Join(std::string_view a, std::string_view b)
{
    std::string joined;
    joined.reserve(a.size() + b.size());
    joined.append(a).append(b);
    return CString(std::string_view(joined));
}

}  // namespace

CString::CString(const char* text) : m_text(OrEmpty(text)) {}

CString::CString(std::string_view text) : m_text(text) {}

CString::CString(char ch, int nRepeat) : m_text(AtLeastZero(nRepeat), ch) {}

int CString::Find(char ch, int nStart) const noexcept
{
    return PositionOf(View().find(ch, AtLeastZero(nStart)));
}

int CString::Find(const char* text, int nStart) const noexcept
{
    return PositionOf(View().find(OrEmpty(text), AtLeastZero(nStart)));
}

int CString::ReverseFind(char ch) const noexcept { return PositionOf(View().rfind(ch)); }

CString CString::Left(int nCount) const { return CString(View().substr(0, AtLeastZero(nCount))); }

CString CString::Right(int nCount) const
{
    const std::size_t count = std::min(AtLeastZero(nCount), m_text.size());
    return CString(View().substr(m_text.size() - count));
}

CString CString::Mid(int nFirst) const { return Mid(nFirst, GetLength()); }

CString CString::Mid(int nFirst, int nCount) const
{
    const std::size_t first = AtLeastZero(nFirst);
    return first >= m_text.size() ? CString() : CString(View().substr(first, AtLeastZero(nCount)));
}

void CString::TrimLeft() { m_text.erase(0, m_text.find_first_not_of(Blanks)); }

void CString::TrimRight() { m_text.erase(m_text.find_last_not_of(Blanks) + 1); }

void CString::Format(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    if (length >= 0) {
        std::vector<char> buffer(static_cast<std::size_t>(length) + 1);
        std::vsnprintf(buffer.data(), buffer.size(), format, again);
        m_text.assign(buffer.data(), static_cast<std::size_t>(length));
    }
    va_end(again);
}

CString& CString::operator+=(const CString& text)
{
    m_text += text.m_text;
    return *this;
}

CString& CString::operator+=(const char* text)
{
    m_text += OrEmpty(text);
    return *this;
}

CString& CString::operator+=(char ch)
{
    m_text += ch;
    return *this;
}

int CString::Compare(const CString& other) const noexcept
{
    const int order = View().compare(other.View());  // char_traits<char> compares unsigned bytes
    return (order > 0) - (order < 0);
}

CString operator+(const CString& a, const CString& b) { return Join(a.View(), b.View()); }

CString operator+(const CString& a, const char* b) { return Join(a.View(), OrEmpty(b)); }

CString operator+(const char* a, const CString& b) { return Join(OrEmpty(a), b.View()); }

CString operator+(const CString& a, char b) { return Join(a.View(), std::string_view(&b, 1)); }

CString operator+(char a, const CString& b) { return Join(std::string_view(&a, 1), b.View()); }
