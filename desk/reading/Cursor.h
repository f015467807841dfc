// A place in a plain text, with the small steps that the readers of the annotations take. A step that
// does not fit leaves the place where it is.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "desk/reading/DrawingText.h"

namespace Desk::Import {

class Cursor {
public:
    explicit Cursor(std::string_view text) : m_text(text) {}

    [[nodiscard]] bool AtEnd() const { return m_place == m_text.size(); }
    [[nodiscard]] std::size_t Place() const { return m_place; }
    [[nodiscard]] std::string_view Rest() const { return m_text.substr(m_place); }
    [[nodiscard]] char Peek() const { return AtEnd() ? '\0' : m_text[m_place]; }
    // The text between a former place and this one.
    [[nodiscard]] std::string_view Since(std::size_t place) const
    {
        return m_text.substr(place, m_place - place);
    }

    void Skip() { ++m_place; }
    void SkipBlank() { static_cast<void>(Eat(' ')); }
    bool Eat(char ch)
    {
        if (AtEnd() || m_text[m_place] != ch) {
            return false;
        }
        ++m_place;
        return true;
    }
    bool Eat(std::string_view word)
    {
        if (Rest().substr(0, word.size()) != word) {
            return false;
        }
        m_place += word.size();
        return true;
    }
    // One of several characters; 0 for none of them.
    char EatOneOf(std::string_view characters)
    {
        if (AtEnd() || characters.find(m_text[m_place]) == std::string_view::npos) {
            return '\0';
        }
        return m_text[m_place++];
    }
    char EatGrade() { return EatOneOf("ABCD\x01"); }

    static bool IsDigit(char ch) { return ch >= '0' && ch <= '9'; }
    static bool IsLetter(char ch) { return (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z'); }

    // All digits that stand here; empty for none, and then nothing moves.
    std::string_view Digits()
    {
        const std::size_t start = m_place;
        while (IsDigit(Peek())) {
            ++m_place;
        }
        return Since(start);
    }
    // A whole run of digits, of a length within the bounds and without a leading zero.
    std::optional<std::string_view> Number(std::size_t least, std::size_t most)
    {
        const std::size_t start = m_place;
        const std::string_view digits = Digits();
        if (digits.size() < least || digits.size() > most || digits.front() == '0') {
            m_place = start;
            return std::nullopt;
        }
        return digits;
    }
    // A number in brackets: "(2)".
    std::optional<std::string_view> BracketedNumber(std::size_t most)
    {
        const Cursor before = *this;
        if (Eat('(')) {
            const std::optional<std::string_view> number = Number(1, most);
            if (number && Eat(')')) {
                return number;
            }
        }
        *this = before;
        return std::nullopt;
    }

private:
    std::string_view m_text;
    std::size_t m_place = 0;
};

// The value of a run of at most six digits.
[[nodiscard]] inline int ValueOf(std::string_view digits)
{
    int value = 0;
    for (const char ch : digits) {
        value = value * 10 + (ch - '0');
    }
    return value;
}

}  // namespace Desk::Import
