// Reading steps: which words each step takes.
#include "desk/console/panel/Step.h"

#include <algorithm>
#include <charconv>

#include "desk/console/Print.h"
#include "desk/console/panel/EventNames.h"
#include "desk/project/Encoding.h"
#include "desk/project/Failure.h"

namespace Desk::Panels {

namespace {

// parts has a letter for each thing that a step takes: P a target, p a target or none, C a control, B a
// box, T a text, K a key and how many times, N notches of the wheel, D a distance, k a kind.
struct Form {
    Verb verb;
    const char* name;
    const char* parts;
    const char* form;
    const char* about;
};

constexpr Form Forms[] = {
    {Verb::Click, "click", "P", "click LIST ROW, click CONTROL or click X,Y", "press and release"},
    {Verb::Double, "double", "P", "double LIST ROW, double CONTROL or double X,Y", "double click"},
    {Verb::Right, "right", "p", "right, right CONTROL, right LIST ROW or right X,Y",
     "confirm: right press and release"},
    {Verb::Type, "type", "BT", "type BOX TEXT", "type at the end of a box's text"},
    {Verb::Clear, "clear", "B", "clear BOX", "delete a box's text with the Backspace key"},
    {Verb::Key, "key", "K", "key NAME or key NAME TIMES",
     "esc tab shift+tab enter space back delete left ..."},
    {Verb::Wheel, "wheel", "CN", "wheel CONTROL NOTCHES", "turn the wheel, above 0 towards the first row"},
    {Verb::Drag, "drag", "Dp", "drag DX DY, or followed by a target as for click",
     "press, and release at that distance"},
    {Verb::Press, "press", "P", "press LIST ROW, press CONTROL or press X,Y", "the left button goes down"},
    {Verb::Release, "release", "P", "release CONTROL or release X,Y", "it goes up"},
    {Verb::Text, "text", "T", "text TEXT", "the host sets a new text"},
    {Verb::Kind, "kind", "k", "kind N", "the host opens the bar panel for a kind, -1 to 8"},
    {Verb::Show, "show", "", "show", "the host shows the panel"},
    {Verb::Hide, "hide", "", "hide", "the host hides it"},
};

std::string NameIn(const Form& form) { return form.name; }
std::string NameIn(const NamedKey& key) { return key.name; }

// The row of a table with a name; null where there is none.
template <class Row, std::size_t Count>
const Row* Find(const Row (&table)[Count], const std::string& name)
{
    const Row* const row =
        std::find_if(std::begin(table), std::end(table), [&](const Row& one) { return name == one.name; });
    return row != std::end(table) ? row : nullptr;
}

template <class Row, std::size_t Count>
std::string Unknown(const char* what, const std::string& name, const Row (&table)[Count])
{
    return "unknown " + (what + (" " + Quoted(name))) + "; " + what +
           "s: " + Joined(table, [](const Row& row) { return NameIn(row); });
}

struct Word {
    std::string text;
    bool quoted = false;
};

std::optional<int> NumberOf(std::string_view text)
{
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end && !text.empty() ? std::optional(number) : std::nullopt;
}

std::optional<CPoint> PointOf(const Word& word)
{
    const std::size_t comma = word.text.find(',');
    if (word.quoted || comma == std::string::npos) {
        return std::nullopt;
    }
    const std::optional<int> x = NumberOf(std::string_view(word.text).substr(0, comma));
    const std::optional<int> y = NumberOf(std::string_view(word.text).substr(comma + 1));
    return x && y ? std::optional(CPoint(*x, *y)) : std::nullopt;
}

struct Line {
    Step step;  // with origin and source alone
    std::vector<Word> words;
};

void SkipBlanks(std::string_view& rest)
{
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t\r"), rest.size()));
}

// Takes the next word of a step. In quotes of either kind it keeps its blanks and ";".
Word TakeWord(std::string_view& rest, const Step& step)
{
    constexpr std::string_view Ends = " \t\r;\n";
    const char quote = rest.front();
    if (quote != '"' && quote != '\'') {
        const std::size_t length = std::min(rest.find_first_of(Ends), rest.size());
        Word word = {std::string(rest.substr(0, length)), false};
        rest.remove_prefix(length);
        return word;
    }
    const std::size_t close = std::min(rest.find_first_of(std::string{quote, '\n'}, 1), rest.size());
    if (close == rest.size() || rest[close] != quote) {
        ThrowAt(step, std::string("the closing quote is missing: ") + quote);
    }
    Word word = {std::string(rest.substr(1, close - 1)), true};
    rest.remove_prefix(close + 1);
    if (!rest.empty() && Ends.find(rest.front()) == std::string_view::npos) {
        ThrowAt(step, "a blank is required after a closing quote");
    }
    return word;
}

std::vector<Line> CutSteps(std::string_view rest, const std::string& file)
{
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    rest.remove_prefix(rest.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0);
    std::vector<Line> lines;
    for (int number = 1; !rest.empty();) {
        SkipBlanks(rest);
        if (rest.starts_with('#')) {
            rest.remove_prefix(std::min(rest.find('\n'), rest.size()));
        }
        Line line;
        line.step.origin =
            file.empty() ? "step " + std::to_string(lines.size() + 1) : file + ":" + std::to_string(number);
        const std::string_view start = rest;
        line.step.source = start.substr(0, start.find('\n'));
        std::size_t length = 0;
        while (!rest.empty() && rest.front() != ';' && rest.front() != '\n') {
            line.words.push_back(TakeWord(rest, line.step));
            length = start.size() - rest.size();
            SkipBlanks(rest);
        }
        line.step.source = start.substr(0, length);
        if (!rest.empty()) {
            number += rest.front() == '\n' ? 1 : 0;
            rest.remove_prefix(1);
        }
        if (!line.words.empty()) {
            lines.push_back(std::move(line));
        }
    }
    return lines;
}

// Turns the words of one step into its parts.
class Reader {
public:
    explicit Reader(Line& line) : m_step(line.step), m_words(line.words) {}

    Step Read()
    {
        const std::string& name = m_words.front().text;
        m_form = Find(Forms, name);
        if (m_form == nullptr) {
            ThrowAt(m_step, Unknown("step", name, Forms));
        }
        m_step.verb = m_form->verb;
        for (const char* part = m_form->parts; *part != '\0'; ++part) {
            TakePart(*part);
        }
        if (HasMore()) {
            Refuse("unexpected " + Quoted(m_words[m_next].text) + "; a text with blanks needs quotes");
        }
        return std::move(m_step);
    }

private:
    [[noreturn]] void Refuse(const std::string& what) const
    {
        ThrowAt(m_step, what + "; write: " + m_form->form);
    }

    [[nodiscard]] bool HasMore() const { return m_next < m_words.size(); }

    const Word& Take(const char* what)
    {
        if (!HasMore()) {
            Refuse(std::string(what) + " is missing");
        }
        return m_words[m_next++];
    }

    int TakeNumber(const char* what, int least, int most)
    {
        const std::string& text = Take(what).text;
        const std::optional<int> number = NumberOf(text);
        if (!number || *number < least || *number > most) {
            Refuse(std::string(what) + " is a whole number from " + std::to_string(least) + " to " +
                   std::to_string(most) + ", not " + Quoted(text));
        }
        return *number;
    }

    void TakeTarget()
    {
        Target& target = m_step.target;
        const Word& word = Take("the control or position");
        target.point = PointOf(word);
        if (target.point) {
            return;
        }
        target.control = word.text;
        if (HasMore()) {
            const Word& row = m_words[m_next++];
            if (row.quoted || !row.text.starts_with('#')) {
                target.rowText = row.text;
            } else if (target.rowNumber = NumberOf(std::string_view(row.text).substr(1));
                       !target.rowNumber) {
                Refuse("a row's number is #0, #1, ..., not " + Quoted(row.text));
            }
        }
    }

    void TakeKey()
    {
        const std::string& name = Take("the key").text;
        const NamedKey* const key = Find(Keys, name);
        if (key == nullptr) {
            Refuse(Unknown("key", name, Keys));
        }
        m_step.key = key->key;
        m_step.shift = key->shift;
    }

    void TakeText()
    {
        const std::optional<CString> text = GbkFromUtf8(Take("the text").text);
        if (!text) {
            Refuse("the text has a character that GBK lacks");
        }
        m_step.text = *text;
    }

    void TakePart(char part)
    {
        constexpr int Far = 10'000;  // pixels
        constexpr int Many = 1000;
        switch (part) {
        case 'p':
            if (HasMore()) {
                TakeTarget();
            }
            break;
        case 'P': TakeTarget(); break;
        case 'C': m_step.target.control = Take("the control").text; break;
        case 'B': m_step.target.control = Take("the box").text; break;
        case 'T': TakeText(); break;
        case 'K':
            TakeKey();
            m_step.number = HasMore() ? TakeNumber("the number of times", 1, Many) : 1;
            break;
        case 'N': m_step.number = TakeNumber("the number of notches", -Many, Many); break;
        case 'D':
            m_step.distance.x = TakeNumber("the distance across", -Far, Far);
            m_step.distance.y = TakeNumber("the distance down", -Far, Far);
            break;
        default: m_step.number = TakeNumber("the kind", -1, 8); break;
        }
    }

    Step& m_step;
    const std::vector<Word>& m_words;
    const Form* m_form = nullptr;
    std::size_t m_next = 1;
};

}  // namespace

std::vector<Step> ReadSteps(std::string_view text, const std::string& file)
{
    std::vector<Step> steps;
    for (Line& line : CutSteps(text, file)) {
        steps.push_back(Reader(line).Read());
    }
    return steps;
}

void ThrowAt(const Step& step, const std::string& what)
{
    throw Failure(step.origin + ": " + step.source + ": " + what);
}

std::string StepHelp()
{
    constexpr int FormWidth = 51;
    std::string help = "Steps, separated by \";\" or line ends:\n";
    for (const Form& row : Forms) {
        help += "  " + PadRight(row.form, FormWidth) + row.about + "\n";
    }
    return help +
           "A control is named by its id, a button also by its caption; a row by its text or as #N, from "
           "0;\nX,Y are pixels from the panel's corner. A word that contains blanks or \";\" needs quotes.";
}

}  // namespace Desk::Panels
