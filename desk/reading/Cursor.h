// A position in a text, with the small steps that the readers of the annotations take. A step that does
// not fit leaves it where it is. What is filled in on the way goes with the position, so that a reader
// that steps back forgets that too.
#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <string_view>

#include "desk/reading/Annotation.h"
#include "desk/reading/DrawingText.h"
#include "platform/text/Numbers.h"

namespace Desk {

class Cursor {
public:
    explicit Cursor(std::string_view text, const Choices& choices = {}) : m_text(text), m_choices(choices)
    {
    }

    [[nodiscard]] bool AtEnd() const { return m_at == m_text.size(); }
    [[nodiscard]] std::size_t At() const { return m_at; }
    [[nodiscard]] std::string_view Rest() const { return m_text.substr(m_at); }
    [[nodiscard]] char Peek() const { return AtEnd() ? '\0' : m_text[m_at]; }
    // The text between a former position and this one.
    [[nodiscard]] std::string_view Since(const Cursor& start) const
    {
        return m_text.substr(start.m_at, m_at - start.m_at);
    }

    [[nodiscard]] const Choices& Chosen() const { return m_choices; }
    [[nodiscard]] const std::set<Filled>& Marks() const { return m_marks; }
    void Mark(Filled filled) { m_marks.insert(filled); }
    void ForgetMarksSince(const Cursor& start) { m_marks = start.m_marks; }

    void Skip(std::size_t count = 1) { m_at += count; }
    void SkipBlank()
    {
        while (Eat(' ')) {
        }
    }
    bool Eat(char ch)
    {
        const bool isHere = !AtEnd() && m_text[m_at] == ch;
        m_at += isHere ? 1 : 0;
        return isHere;
    }
    bool Eat(std::string_view word)
    {
        const bool isHere = Rest().starts_with(word);
        m_at += isHere ? word.size() : 0;
        return isHere;
    }
    // One of several characters; 0 for none of them.
    char EatOneOf(std::string_view characters)
    {
        if (AtEnd() || characters.find(m_text[m_at]) == std::string_view::npos) {
            return '\0';
        }
        return m_text[m_at++];
    }
    // A to D; 0 for none. A sign that does not say its grade is marked and gives the one for it.
    char EatGrade(char forOpenGrade)
    {
        if (Eat(OpenGrade)) {
            Mark(Filled::Grade);
            return forOpenGrade;
        }
        return EatOneOf("ABCD");
    }
    // A character with the blanks around it.
    bool EatJoint(char joint)
    {
        Cursor cursor = *this;
        cursor.SkipBlank();
        if (!cursor.Eat(joint)) {
            return false;
        }
        cursor.SkipBlank();
        *this = cursor;
        return true;
    }

    static bool IsDigit(char ch) { return ch >= '0' && ch <= '9'; }
    static bool IsLetter(char ch) { return (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z'); }

    // All digits, or all letters, here; empty for none.
    std::string_view Digits() { return While(IsDigit); }
    std::string_view Letters() { return While(IsLetter); }
    // A whole run of digits, of a length within the bounds and without a leading zero.
    std::optional<int> Number(std::size_t least, std::size_t most)
    {
        const Cursor start = *this;
        const std::string_view digits = Digits();
        if (digits.size() < least || digits.size() > most || digits.front() == '0') {
            *this = start;
            return std::nullopt;
        }
        return NumberValue(digits);
    }

private:
    std::string_view While(bool (*belongs)(char))
    {
        const std::size_t start = m_at;
        while (!AtEnd() && belongs(m_text[m_at])) {
            ++m_at;
        }
        return m_text.substr(start, m_at - start);
    }

    std::string_view m_text;
    Choices m_choices;
    std::size_t m_at = 0;
    std::set<Filled> m_marks;
};

// What a reader makes of a whole text, where nothing has to be filled in; blanks may end the text.
template <class Value>
std::optional<Value> ReadWhole(std::string_view text, std::optional<Value> (*read)(Cursor&))
{
    Cursor at(text);
    std::optional<Value> value = read(at);
    at.SkipBlank();
    return at.AtEnd() && at.Marks().empty() ? value : std::nullopt;
}

}  // namespace Desk
