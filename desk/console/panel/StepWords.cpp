// Blanks separate words, ";" and line ends separate steps, except inside quotes.
#include "desk/console/panel/StepWords.h"

#include <algorithm>

namespace Desk::Panels {

namespace {

bool IsBlank(char ch) { return ch == ' ' || ch == '\t' || ch == '\r'; }

// Cuts a text into steps of words.
class Cutter {
public:
    Cutter(std::string_view text, const std::string& file) : m_text(text), m_file(file) {}

    std::vector<Line> Cut()
    {
        while (m_at < m_text.size()) {
            CutStep();
        }
        return std::move(m_lines);
    }

private:
    [[nodiscard]] char Now() const { return m_at < m_text.size() ? m_text[m_at] : '\n'; }
    [[nodiscard]] bool AtEnd() const { return Now() == '\n' || Now() == ';'; }

    void SkipBlanks()
    {
        while (IsBlank(Now())) {
            ++m_at;
        }
    }

    void CutStep()
    {
        SkipBlanks();
        if (Now() == '#') {
            m_at = std::min(m_text.find('\n', m_at), m_text.size());
        }
        Line line;
        line.step.origin = m_file.empty() ? "step " + std::to_string(m_lines.size() + 1)
                                          : m_file + ":" + std::to_string(m_lineNumber);
        const std::size_t start = m_at;
        std::size_t stop = start;
        while (!AtEnd()) {
            line.words.push_back(CutWord(line.step, start));
            stop = m_at;
            SkipBlanks();
        }
        line.step.source = m_text.substr(start, stop - start);
        m_lineNumber += Now() == '\n' ? 1 : 0;
        ++m_at;
        if (!line.words.empty()) {
            m_lines.push_back(std::move(line));
        }
    }

    Word CutWord(Step& step, std::size_t start)
    {
        Word word;
        const char quote = Now();
        word.quoted = quote == '"' || quote == '\'';
        const std::size_t first = word.quoted ? ++m_at : m_at;
        const auto ends = [&] { return word.quoted ? Now() == quote : AtEnd() || IsBlank(Now()); };
        while (!ends() && Now() != '\n') {
            ++m_at;
        }
        word.text = m_text.substr(first, m_at - first);
        if (word.quoted) {
            const bool closed = Now() == quote;
            m_at += closed ? 1 : 0;
            if (!closed || !(AtEnd() || IsBlank(Now()))) {
                step.source =
                    m_text.substr(start, std::min(m_text.find('\n', start), m_text.size()) - start);
                ThrowAt(step, closed ? "a blank is required after a closing quote"
                                     : std::string("the closing quote is missing: ") + quote);
            }
        }
        return word;
    }

    std::string_view m_text;
    const std::string& m_file;
    std::size_t m_at = 0;
    std::size_t m_lineNumber = 1;
    std::vector<Line> m_lines;
};

}  // namespace

std::vector<Line> CutSteps(std::string_view text, const std::string& file)
{
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(ByteOrderMark)) {
        text.remove_prefix(ByteOrderMark.size());
    }
    return Cutter(text, file).Cut();
}

}  // namespace Desk::Panels
