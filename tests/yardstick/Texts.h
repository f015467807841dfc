// Plain text operations for the yardsticks: each rule word for word, on std::string and std::vector.
#pragma once

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

// A yardstick says what a result must be, in the slowest and plainest way; it never looks at how the
// module finds it.
namespace Yardstick {

using List = std::vector<std::string>;

inline int Length(const std::string& text) { return static_cast<int>(text.size()); }

inline int Find(const std::string& text, char ch, int from = 0)
{
    for (int i = from; i < Length(text); ++i) {
        if (text[static_cast<std::size_t>(i)] == ch) {
            return i;
        }
    }
    return -1;
}

inline std::string Mid(const std::string& text, int first, int count = INT_MAX)
{
    std::string result;
    for (int i = first; i < Length(text) && i - first < count; ++i) {
        result += text[static_cast<std::size_t>(i)];
    }
    return result;
}

inline std::string Left(const std::string& text, int count) { return Mid(text, 0, count); }

// What stands between two positions, without the characters at them.
inline std::string Between(const std::string& text, int begin, int end)
{
    return Mid(text, begin + 1, end - begin - 1);
}

inline char First(const std::string& text) { return text.empty() ? '\0' : text[0]; }

inline bool IsDigit(char ch) { return ch >= '0' && ch <= '9'; }

inline std::string TrimLeft(std::string text)
{
    while (!text.empty() && Find(" \t\r\n", text[0]) >= 0) {
        text = Mid(text, 1);
    }
    return text;
}

inline std::string Trim(std::string text)
{
    text = TrimLeft(text);
    while (!text.empty() && Find(" \t\r\n", text.back()) >= 0) {
        text.pop_back();
    }
    return text;
}

// The number value: as atoi, and the nearest 32-bit number for a number outside that range.
inline int Number(const std::string& text)
{
    const long long value = std::strtoll(text.c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long long>(value, INT_MIN, INT_MAX));
}

// The real value: as atof on decimal numbers; hexadecimal, infinity and not-a-number forms are 0.
inline double Real(const std::string& text)
{
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || (text[i] >= '\t' && text[i] <= '\r'))) {
        ++i;
    }
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        ++i;
    }
    const bool decimal = i < text.size() && (IsDigit(text[i]) || text[i] == '.');
    const bool hexadecimal = text.compare(i, 2, "0x") == 0 || text.compare(i, 2, "0X") == 0;
    return decimal && !hexadecimal ? std::strtod(text.c_str(), nullptr) : 0.0;
}

// The text order: byte by byte, a text that begins the other one first.
inline int Compare(const std::string& a, const std::string& b)
{
    for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
        if (a[i] != b[i]) {
            return static_cast<unsigned char>(a[i]) < static_cast<unsigned char>(b[i]) ? -1 : 1;
        }
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

inline bool Holds(const List& list, const std::string& text)
{
    for (const std::string& entry : list) {
        if (Compare(entry, text) == 0) {
            return true;
        }
    }
    return false;
}

// "Takes" a text: appends it only if no entry equals it.
inline bool Take(List& list, const std::string& text)
{
    if (Holds(list, text)) {
        return false;
    }
    list.push_back(text);
    return true;
}

// Removes repeats by searching a work list; the first of equal texts stays.
inline void KeepFirst(List& list)
{
    List work;
    for (const std::string& entry : list) {
        Take(work, entry);
    }
    list = work;
}

// The same with the stamps that run parallel; a missing stamp counts as 0.
inline void KeepFirst(List& list, std::vector<unsigned>& stamps)
{
    List work;
    std::vector<unsigned> workStamps;
    stamps.resize(std::max(list.size(), stamps.size()));
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (Take(work, list[i])) {
            workStamps.push_back(stamps[i]);
        }
    }
    list = work;
    stamps = workStamps;
}

// Exchange passes over n entries: wrong(j) looks at entries j and j + 1, exchange(j) swaps them.
template <class Wrong, class Exchange>
void ExchangePasses(std::size_t n, Wrong wrong, Exchange exchange)
{
    for (std::size_t p = 1; p + 1 <= n; ++p) {
        for (std::size_t j = 0; j + p + 1 <= n; ++j) {
            if (wrong(j)) {
                exchange(j);
            }
        }
    }
}

// What the host answers with: the texts of the annotation asked for.
inline List projectTexts;

}  // namespace Yardstick
