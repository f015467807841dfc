// Annotations may stand side by side without a blank, but what is glued to something unknown is not
// trusted: the whole stretch counts as not understood.
#include "desk/reading/LineReader.h"

#include <array>
#include <utility>

namespace Desk::Import {

namespace {

bool IsSeparator(char ch) { return ch == ' ' || ch == ',' || ch == ';'; }

// Words that say only what the name behind them says already.
constexpr std::string_view BeamWords[] = {"屋面框架梁", "非框架梁", "框架梁", "悬挑梁",
                                          "连梁",       "次梁",     "梁"};
constexpr std::string_view SectionWords[] = {"截面尺寸", "截面"};
constexpr std::string_view ElevationWord = "标高";

class LineReader {
public:
    LineReader(std::string_view plain, const Choices& choices) : m_at(plain), m_choices(choices) {}

    Line Read()
    {
        while (SkipSeparators()) {
            const Cursor start = m_at;
            Line before = m_line;
            bool isUnderstood = false;
            do {
                isUnderstood = ReadOne();
            } while (isUnderstood && !m_at.AtEnd() && !IsSeparator(m_at.Peek()));
            if (!isUnderstood) {
                m_line = std::move(before);
                m_at = start;
                SkipStretch();
            }
        }
        return std::move(m_line);
    }

private:
    // False at the end of the text.
    bool SkipSeparators()
    {
        while (IsSeparator(m_at.Peek())) {
            m_at.Skip();
        }
        return !m_at.AtEnd();
    }

    void SkipStretch()
    {
        const std::size_t start = m_at.Place();
        while (!m_at.AtEnd() && !IsSeparator(m_at.Peek())) {
            m_at.Skip();
        }
        m_line.notUnderstood.emplace_back(m_at.Since(start));
    }

    template <class Word>
    static bool EatWord(Cursor& at, const Word& words)
    {
        for (const std::string_view word : words) {
            if (at.Eat(word)) {
                at.SkipBlank();
                static_cast<void>(at.Eat(':'));
                at.SkipBlank();
                return true;
            }
        }
        return false;
    }

    template <class Found>
    bool Keep(std::optional<Found>& place, std::optional<Found> found, std::size_t start)
    {
        if (!found) {
            return false;
        }
        if (place) {
            m_line.repeated.emplace_back(m_at.Since(start));
        } else {
            place = std::move(found);
        }
        return true;
    }

    bool ReadOne()
    {
        const std::size_t start = m_at.Place();
        if (EatWord(m_at, BeamWords)) {
            return Keep(m_line.name, ReadName(m_at), start);
        }
        if (EatWord(m_at, SectionWords)) {
            return Keep(m_line.section, ReadSection(m_at), start);
        }
        if (EatWord(m_at, std::array{ElevationWord})) {
            return Keep(m_line.elevation, ReadElevation(m_at), start);
        }
        return Keep(m_line.name, ReadName(m_at), start) ||
               Keep(m_line.spaced, ReadSpacedBars(m_at), start) ||
               Keep(m_line.section, ReadSection(m_at), start) ||
               Keep(m_line.elevation, ReadElevation(m_at), start) || ReadBars() || ReadSpans();
    }

    bool ReadBars()
    {
        std::optional<BarGroup> group = ReadBarGroup(m_at, m_choices);
        if (!group) {
            return false;
        }
        m_line.groups.push_back(std::move(*group));
        return true;
    }

    // "6000,6000,5000" behind a name.
    bool ReadSpans()
    {
        Cursor cursor = m_at;
        bool isLength = false;
        Cursor behind = cursor;
        do {
            isLength = cursor.Number(3, 5).has_value();
            behind = isLength ? cursor : behind;
        } while (isLength && cursor.Eat(','));
        if (!m_line.name || !m_line.spans.empty() || behind.Place() == m_at.Place()) {
            return false;
        }
        m_line.spans = behind.Since(m_at.Place());
        m_at = behind;
        return true;
    }

    Cursor m_at;
    const Choices& m_choices;
    Line m_line;
};

}  // namespace

Line ReadLine(std::string_view plain, const Choices& choices) { return LineReader(plain, choices).Read(); }

}  // namespace Desk::Import
