// Annotations may be side by side without a blank, but what is glued to something unknown is not
// trusted: the whole stretch counts as not understood.
#include "desk/reading/LineReader.h"

#include <algorithm>
#include <span>
#include <utility>

#include "desk/reading/Cursor.h"

namespace Desk {

namespace {

bool IsSeparator(char ch) { return ch == ' ' || ch == ',' || ch == ';'; }

// Words that say only what the name after them says already.
constexpr std::string_view BeamWords[] = {"屋面框架梁", "非框架梁", "框架梁", "悬挑梁",
                                          "连梁",       "次梁",     "梁"};
constexpr std::string_view SectionWords[] = {"截面尺寸", "截面"};
constexpr std::string_view ElevationWords[] = {"梁顶标高", "标高"};

class LineReader {
public:
    LineReader(std::string_view plain, const Choices& choices) : m_at(plain, choices)
    {
        m_line.beginsWithBottom = plain.starts_with(';');
    }

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
        m_line.filled = m_at.Marks();
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
        const Cursor start = m_at;
        while (!m_at.AtEnd() && !IsSeparator(m_at.Peek())) {
            m_at.Skip();
        }
        m_line.notUnderstood.emplace_back(m_at.Since(start));
    }

    static bool EatWord(Cursor& at, std::span<const std::string_view> words)
    {
        const auto isHere = [&at](std::string_view word) { return at.Eat(word); };
        if (std::none_of(words.begin(), words.end(), isHere)) {
            return false;
        }
        static_cast<void>(at.EatJoint(':'));
        at.SkipBlank();
        return true;
    }

    // What read takes here is kept, and where; start is where the words before it begin.
    template <class Found>
    bool Keep(std::optional<Found>& kept, Stretch& where, std::optional<Found> (*read)(Cursor&),
              const Cursor& start)
    {
        const std::size_t begin = m_at.At();
        std::optional<Found> found = read(m_at);
        if (!found) {
            return false;
        }
        if (kept) {
            m_line.repeated.emplace_back(m_at.Since(start));
            m_at.ForgetMarksSince(start);
        } else {
            kept = std::move(found);
            where = {begin, m_at.At()};
        }
        return true;
    }
    bool KeepName(const Cursor& start) { return Keep(m_line.name, m_line.nameAt, ReadName, start); }
    bool KeepSection(const Cursor& start)
    {
        return Keep(m_line.section, m_line.sectionAt, ReadSection, start);
    }
    bool KeepElevation(const Cursor& start)
    {
        return Keep(m_line.elevation, m_line.elevationAt, ReadElevation, start);
    }

    bool ReadOne()
    {
        const Cursor start = m_at;
        if (EatWord(m_at, ElevationWords)) {
            return KeepElevation(start);
        }
        if (EatWord(m_at, BeamWords)) {
            return KeepName(start);
        }
        if (EatWord(m_at, SectionWords)) {
            return KeepSection(start);
        }
        return KeepName(start) || ReadSpacedBars(start) || KeepSection(start) || KeepElevation(start) ||
               ReadBars() || ReadSpans();
    }

    bool ReadSpacedBars(const Cursor& start)
    {
        if (!Keep(m_line.stirrup, m_line.stirrupAt, ReadStirrup, start)) {
            return false;
        }
        if (Cursor end = m_at; m_line.stirrup->legs == 0 && end.EatJoint('(') && end.AtEnd()) {
            m_at = end;
            m_line.isCutOff = true;
        }
        return true;
    }

    bool ReadBars()
    {
        std::optional<DrawnBars> bars = ReadDrawnBars(m_at);
        if (!bars) {
            return false;
        }
        m_line.bars.push_back(std::move(*bars));
        return true;
    }

    // "6000,6000,5000" after a name.
    bool ReadSpans()
    {
        Cursor end = m_at;
        for (Cursor next = m_at; next.Number(3, 5); static_cast<void>(next.Eat(','))) {
            end = next;
        }
        if (!m_line.name || !m_line.spans.empty() || end.At() == m_at.At()) {
            return false;
        }
        m_line.spans = end.Since(m_at);
        m_at = end;
        return true;
    }

    Cursor m_at;
    Line m_line;
};

}  // namespace

Line ReadLine(std::string_view plain, const Choices& choices) { return LineReader(plain, choices).Read(); }

}  // namespace Desk
